#include "mainwin/frmcustomsearchprop.h"
#include "ui_frmCustomSearchProp.h"

#include "app/company.h"
#include "platform/mnemonics.h"

namespace {

constexpr int kCustomFields = 6;

} // namespace

frmCustomSearchProp::frmCustomSearchProp(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmCustomSearchProp>()) {
    ui->setupUi(this);
    connect(ui->cmdSearch, &QPushButton::clicked, this, &frmCustomSearchProp::chooseSearch);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmCustomSearchProp::reject);
}

frmCustomSearchProp::~frmCustomSearchProp() = default;

// A field the company has not named stays hidden.
void frmCustomSearchProp::load() {
    const Company &settings = company();
    const QString names[kCustomFields] = {settings.customField1, settings.customField2,
                                          settings.customField3, settings.customField4,
                                          settings.customField5, settings.customField6};
    QLabel *labels[kCustomFields] = {ui->lblCustom1, ui->lblCustom2, ui->lblCustom3,
                                     ui->lblCustom4, ui->lblCustom5, ui->lblCustom6};
    QLineEdit *boxes[kCustomFields] = {ui->txtCustom1, ui->txtCustom2, ui->txtCustom3,
                                       ui->txtCustom4, ui->txtCustom5, ui->txtCustom6};
    QString taken = QStringLiteral("sc"); // Search and Cancel
    for (int field = 0; field < kCustomFields; ++field) {
        labels[field]->setText(withMnemonic(names[field], taken));
        boxes[field]->setVisible(!names[field].isEmpty());
        boxes[field]->setAccessibleName(
            names[field].isEmpty() ? tr("Custom Field %1").arg(field + 1) : names[field]);
        if (field < values.size())
            boxes[field]->setText(values.at(field));
    }
}

void frmCustomSearchProp::chooseSearch() {
    values = {ui->txtCustom1->text(), ui->txtCustom2->text(), ui->txtCustom3->text(),
              ui->txtCustom4->text(), ui->txtCustom5->text(), ui->txtCustom6->text()};
    searchChosen = true;
    accept();
}

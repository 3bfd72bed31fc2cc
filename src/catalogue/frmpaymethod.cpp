#include "catalogue/frmpaymethod.h"
#include "ui_frmPayMethod.h"

#include "platform/dialogs.h"
#include "receipts/receipt.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kStatusColumn = 1;

} // namespace

frmPayMethod::frmPayMethod(QWidget *parent)
    : CatalogueScreen({tr("Method Name"), tr("Status")}, parent)
    , ui(std::make_unique<Ui::frmPayMethod>()) {
    ui->setupUi(this);
    ui->optStatus->setId(ui->optStatus0, Receipt::PayMethodInactive);
    ui->optStatus->setId(ui->optStatus1, Receipt::PayMethodActive);
    attachList(ui->lstPaymentMethods);
    connect(ui->ID_Close, &QAction::triggered, this, &QDialog::reject);

    connect(ui->lstPaymentMethods, &QAbstractItemView::activated, this,
            &frmPayMethod::viewSelectedMethod);
    connect(ui->cmdNew, &QPushButton::clicked, this, &frmPayMethod::addMethod);
    connect(ui->cmdEdit, &QPushButton::clicked, this, &frmPayMethod::editMethod);
    connect(ui->cmdCan, &QPushButton::clicked, this, &frmPayMethod::cancelEdit);
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmPayMethod::saveMethod);
    connect(ui->cmdDelete, &QPushButton::clicked, this, &frmPayMethod::confirmDelete);

    ui->optStatus1->setChecked(true);
    setDetailsEnabled(false);
}

frmPayMethod::~frmPayMethod() = default;

void frmPayMethod::load() {
    loadPaymentMethods();
}

void frmPayMethod::loadPaymentMethods() {
    runCommand(tr("An error has occured:  "), [this] {
        QList<CatalogueListModel::Entry> entries;
        for (const db::Row &row : Receipt().GetPaymentMethods(Receipt::AllPayMethods)) {
            const bool inactive = row.int32(u"payMethodStatus"_s) == Receipt::PayMethodInactive;
            entries.append({row.int32(u"payMethodID"_s),
                            {row.text(u"methodName"_s), inactive ? tr("Inactive") : tr("Active")}});
        }
        showRows(std::move(entries));
    });
}

void frmPayMethod::viewSelectedMethod() {
    const int row = selectedRow();
    if (!hasRows() || row < 0)
        return;
    const CatalogueListModel::Entry &method = rows().entry(row);
    currentPayMethodID = method.key;
    ui->Frame2->setEnabled(true);
    ui->txtName->setText(method.texts.first());
    enableAll({ui->cmdEdit, ui->cmdCan}, true);
    const bool inactive = method.texts.value(kStatusColumn) == tr("Inactive");
    (inactive ? ui->optStatus0 : ui->optStatus1)->setChecked(true);
}

void frmPayMethod::addMethod() {
    currentPayMethodID = 0;
    ui->txtName->clear();
    setDetailsEnabled(true);
    ui->optStatus1->setChecked(true);
    enableAll({ui->cmdOK, ui->cmdCan}, true);
    ui->cmdEdit->setEnabled(false);
    ui->txtName->setFocus();
}

void frmPayMethod::editMethod() {
    setDetailsEnabled(true);
    ui->cmdOK->setEnabled(true);
}

void frmPayMethod::cancelEdit() {
    ui->txtName->clear();
    ui->optStatus1->setChecked(true);
    enableAll({ui->cmdEdit, ui->cmdOK, ui->cmdCan}, false);
    setDetailsEnabled(false);
}

// Neither an empty name nor a name already in the list is refused.
void frmPayMethod::saveMethod() {
    runCommand(tr("An error has occured:  "), [this] {
        const qint16 status =
            ui->optStatus0->isChecked() ? Receipt::PayMethodInactive : Receipt::PayMethodActive;
        Receipt().WritePaymentMethod(currentPayMethodID, ui->txtName->text(), status);
        loadPaymentMethods();
        returnToIdle();
    });
}

void frmPayMethod::confirmDelete() {
    if (!hasRows())
        return;
    runCommand(tr("An error has occured:  "), [this] {
        const int row = requireSelectedRow();
        const CatalogueListModel::Entry &method = rows().entry(row);
        const qint32 id = method.key;
        const QString question = tr("Are you sure you want to delete payment method type '%1'?")
                                     .arg(method.texts.first());
        if (dialogs().message(question, tr("Confirm Delete"), Dialogs::Icon::Question,
                              Dialogs::Buttons::YesNo) != Dialogs::Answer::Yes)
            return;
        deletePayMethod(id);
        loadPaymentMethods();
    });
}

// A method that a receipt names stays; the person sets it inactive instead.
void frmPayMethod::deletePayMethod(qint32 id) {
    runCommand(tr("An error has occured:  "), [&] {
        Receipt receipt;
        if (receipt.PaymentTypeIsUsed(id)) {
            dialogs().message(tr("This payment method type is used by one or more receipts.  You "
                                 "can not delete this payment type."),
                              tr("In Use"), Dialogs::Icon::Exclamation);
            return;
        }
        receipt.DeletePaymentMethod(id);
        loadPaymentMethods();
        returnToIdle();
    });
}

void frmPayMethod::setDetailsEnabled(bool enabled) {
    enableAll({ui->Frame2, ui->Label5, ui->Label6, ui->optStatus0, ui->optStatus1, ui->txtName},
              enabled);
}

void frmPayMethod::returnToIdle() {
    setDetailsEnabled(false);
    enableAll({ui->cmdEdit, ui->cmdOK, ui->cmdCan}, false);
    ui->txtName->clear();
    ui->optStatus1->setChecked(true);
}

#include "catalogue/frmservice.h"
#include "ui_frmService.h"

#include "app/runtimeformat.h"
#include "catalogue/service.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kCostFormat = u"#,##0.00"_s;

} // namespace

frmService::frmService(QWidget *parent)
    : CatalogueScreen({tr("Short Name")}, parent)
    , ui(std::make_unique<Ui::frmService>()) {
    ui->setupUi(this);
    attachList(ui->lstServices);
    connect(ui->ID_Close, &QAction::triggered, this, &QDialog::reject);

    for (QLineEdit *text : {ui->shortName, ui->defaultCost}) {
        connect(text, &QLineEdit::textChanged, this, &frmService::updateSaveButton);
        Utility::selectAllOnFocus(text);
    }
    connect(ui->longDesc, &QPlainTextEdit::textChanged, this, &frmService::updateSaveButton);
    Utility::selectAllOnFocus(ui->longDesc);
    // A click shows the row, and so does Enter for those who move by keys.
    for (auto signal : {&QAbstractItemView::clicked, &QAbstractItemView::activated}) {
        connect(ui->lstServices, signal, this,
                [this](const QModelIndex &index) { loadService(rows().entry(index.row()).key); });
    }
    connect(ui->cmdAdd, &QPushButton::clicked, this, &frmService::addService);
    connect(ui->cmdEdit, &QPushButton::clicked, this, &frmService::editService);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmService::cancelEdit);
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmService::saveService);
    connect(ui->cmdDelete, &QPushButton::clicked, this, &frmService::deleteService);

    clearDetails();
    setDetailsEnabled(false);
}

frmService::~frmService() = default;

void frmService::load() {
    loadServices();
}

void frmService::loadServices() {
    runCommand(tr("An error has occured:  "), tr("Load Service List"), [this] {
        QList<CatalogueListModel::Entry> entries;
        for (const db::Row &row : Service().GetServices())
            entries.append({row.int32(u"serviceID"_s), {row.text(u"shortName"_s)}});
        showRows(std::move(entries));
    });
}

void frmService::loadService(qint32 id) {
    runCommand(tr("An error has occured:  "), [&] {
        Service service;
        if (!service.GetService(id)) {
            dialogs().message(tr("Could not retrieve service description."), tr("Error"),
                              Dialogs::Icon::Critical);
            return;
        }
        ui->shortName->setText(service.shortName);
        ui->longDesc->setPlainText(service.longDesc);
        ui->defaultCost->setText(Runtime::formatNumber(service.defaultCost, kCostFormat));
        currentServiceID = id;
        enableAll({ui->Frame2, ui->cmdEdit, ui->cmdCancel, ui->cmdDelete}, true);
        ui->cmdOK->setEnabled(false);
    });
}

// A new description has nothing to edit or delete yet.
void frmService::addService() {
    clearDetails();
    setDetailsEnabled(true);
    ui->cmdCancel->setEnabled(true);
    enableAll({ui->cmdEdit, ui->cmdDelete}, false);
    ui->shortName->setFocus();
}

void frmService::editService() {
    setDetailsEnabled(true);
    ui->cmdCancel->setEnabled(true);
    ui->shortName->setFocus();
}

void frmService::cancelEdit() {
    setDetailsEnabled(false);
    enableAll({ui->cmdEdit, ui->cmdOK, ui->cmdCancel, ui->cmdDelete}, false);
}

void frmService::saveService() {
    if (!Runtime::isNumeric(ui->defaultCost->text())) {
        dialogs().message(tr("Invalid default cost amount.  Please correct and try again."),
                          tr("Error"), Dialogs::Icon::Critical);
        ui->defaultCost->setFocus();
        return;
    }
    runCommand(tr("An error has occured:  "), [this] {
        Service service;
        service.serviceID = currentServiceID;
        service.shortName = ui->shortName->text();
        service.longDesc = ui->longDesc->toPlainText();
        service.defaultCost = Currency::fromText(ui->defaultCost->text());
        service.WriteService();
        clearDetails();
        setDetailsEnabled(false);
        loadServices();
        enableAll({ui->cmdEdit, ui->cmdOK, ui->cmdCancel}, false);
    });
}

void frmService::deleteService() {
    if (dialogs().message(tr("Are you sure you want to remove this service description?"),
                          tr("Confirm Delete"), Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
        return;
    runCommand(tr("An error has occured:  "), [this] {
        Service().DeleteService(currentServiceID);
        dialogs().message(tr("The service description has been removed."), tr("OK"),
                          Dialogs::Icon::Information);
        clearDetails();
        enableAll({ui->cmdDelete, ui->cmdEdit, ui->cmdOK, ui->cmdCancel}, false);
        setDetailsEnabled(false);
        loadServices();
    });
}

void frmService::setDetailsEnabled(bool enabled) {
    enableAll({ui->Frame2, ui->Label1, ui->Label2, ui->Label3, ui->shortName, ui->longDesc,
               ui->defaultCost},
              enabled);
}

void frmService::clearDetails() {
    ui->shortName->clear();
    ui->longDesc->clear();
    ui->defaultCost->setText(u"0.00"_s);
    currentServiceID = 0;
}

void frmService::updateSaveButton() {
    ui->cmdOK->setEnabled(!ui->shortName->text().isEmpty() && !ui->defaultCost->text().isEmpty() &&
                          !ui->longDesc->toPlainText().isEmpty());
}

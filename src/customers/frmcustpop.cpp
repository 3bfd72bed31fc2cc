#include "customers/frmcustpop.h"
#include "ui_frmCustPop.h"

#include "app/database.h"
#include "customers/customerlistmodel.h"
#include "platform/dialogs.h"

using namespace Qt::Literals::StringLiterals;

frmCustPop::frmCustPop(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmCustPop>())
    , m_customers(new CustomerListModel(CustomerListModel::Layout::Search, this)) {
    ui->setupUi(this);
    ui->lstCustomers->setModel(m_customers);
    ui->lstCustomers->setModelColumn(CustomerListModel::Name);

    connect(ui->cmdOK, &QPushButton::clicked, this, &frmCustPop::selectCustomer);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmCustPop::reject);
}

frmCustPop::~frmCustPop() = default;

void frmCustPop::load() {
    runCommand(tr("An error has occured:  "), [this] { loadCustomers(); });
}

// Only the name and the key are read, so a Null elsewhere does no harm.
void frmCustPop::loadCustomers() {
    QList<CustomerListRow> rows;
    db::forEachRow(u"SELECT payeeID, payeeName FROM tblPayee ORDER BY payeeName"_s, {},
                   [&rows](const db::Cells &cells) {
                       rows.append({.payeeID = cells.int32(0), .payeeName = cells.text(1)});
                   });
    if (rows.isEmpty()) {
        dialogs().message(tr("No customer records found."), tr("No Records"),
                          Dialogs::Icon::Information);
        reject();
        return;
    }
    m_customers->setRecords(std::move(rows));
}

// With no entry selected there is nothing to hand back, and the list stays.
void frmCustPop::selectCustomer() {
    const QModelIndexList selected = ui->lstCustomers->selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return;
    selectedID = m_customers->keyAt(selected.first().row());
    accept();
}

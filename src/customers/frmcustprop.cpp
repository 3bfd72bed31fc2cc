#include "customers/frmcustprop.h"
#include "ui_frmCustProp.h"

#include "app/company.h"
#include "app/database.h"
#include "app/runtimeformat.h"
#include "app/screenlinks.h"
#include "app/session.h"
#include "customers/customertransactionsmodel.h"
#include "customers/frmcustpop.h"
#include "customers/payee.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "receipts/receipt.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QIcon>
#include <QKeySequence>
#include <QLineEdit>
#include <QStyle>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

namespace {

// States by their codes, then, after a blank, provinces by their names.
const char *const kStates[] = {"",
                               "AL",
                               "AK",
                               "AZ",
                               "AR",
                               "AA",
                               "AP",
                               "AE",
                               "CA",
                               "CO",
                               "CT",
                               "DE",
                               "DC",
                               "FL",
                               "GA",
                               "HI",
                               "ID",
                               "IL",
                               "IN",
                               "IA",
                               "KS",
                               "KY",
                               "LA",
                               "ME",
                               "MD",
                               "MA",
                               "MI",
                               "MN",
                               "MS",
                               "MO",
                               "MT",
                               "NE",
                               "NV",
                               "NH",
                               "NJ",
                               "NM",
                               "NY",
                               "NC",
                               "ND",
                               "OH",
                               "OK",
                               "OR",
                               "PA",
                               "RI",
                               "SC",
                               "SD",
                               "TN",
                               "TX",
                               "UT",
                               "VT",
                               "VA",
                               "WA",
                               "WV",
                               "WI",
                               "WY",
                               "",
                               "Alberta",
                               "British Columbia",
                               "Manitoba",
                               "New Brunswick",
                               "Newfoundland",
                               "N.W.T",
                               "Nova Scotia",
                               "Nunavut",
                               "Ontario",
                               "PEI",
                               "Quebec",
                               "Saskatchewan",
                               "Yukon"};

constexpr int kStateLength = 20;
const QString kBalanceFormat = u"#,##0.00"_s;
constexpr int kColumnWidths[] = {28, 90, 130, 90, 90, 70};

} // namespace

frmCustProp::frmCustProp(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmCustProp>())
    , m_transactions(new CustomerTransactionsModel(this)) {
    ui->setupUi(this);
    ui->lstState->view()->setAccessibleName(tr("States and provinces"));
    createToolBar();
    ui->lstOrders->setModel(m_transactions);
    for (int column = 0; column < std::ssize(kColumnWidths); ++column)
        ui->lstOrders->setColumnWidth(column, kColumnWidths[column]);
    ui->lstOrders->header()->setAccessibleName(tr("Transaction columns"));
    connectValidation();
    connect(m_transactions, &QAbstractItemModel::dataChanged, this,
            &frmCustProp::updateReassignTool);
    connect(ui->lstOrders, &QAbstractItemView::doubleClicked, this, &frmCustProp::openTransaction);
}

frmCustProp::~frmCustProp() = default;

void frmCustProp::createToolBar() {
    QToolBar *bar = addToolBar(ui->layoutMain);
    m_save = addTool(
        bar, u"ID_SaveChanges"_s, tr("Save Changes"),
        QIcon::fromTheme(u"document-save"_s, style()->standardIcon(QStyle::SP_DialogSaveButton)));
    m_delete = addTool(bar, u"ID_DeleteCustomer"_s, tr("Delete Customer"),
                       QIcon::fromTheme(u"edit-delete"_s));
    m_reassign = addTool(bar, u"ID_Reassign"_s, tr("Reassign"), QIcon::fromTheme(u"go-jump"_s));
    addCloseTool(bar);
    // A tool bar takes no focus: the keys reach its tools.
    m_save->setShortcut(QKeySequence::Save);
    m_delete->setShortcut(QKeySequence(tr("Ctrl+D")));
    m_reassign->setShortcut(QKeySequence(tr("Ctrl+R")));
    connect(m_save, &QAction::triggered, this, &frmCustProp::saveCustomer);
    connect(m_delete, &QAction::triggered, this, &frmCustProp::deleteCustomer);
    connect(m_reassign, &QAction::triggered, this, &frmCustProp::reassign);
}

// Typing checks the customer; picking a state from the list and typing an
// e-mail address do not, and the address's box checks when it takes the focus.
void frmCustProp::connectValidation() {
    for (QLineEdit *box : {ui->txtName, ui->txtAddress, ui->txtAddress2, ui->txtCity, ui->txtPhone,
                           ui->txtZip, ui->startingBalance})
        connect(box, &QLineEdit::textChanged, this, &frmCustProp::validateCustomer);
    connect(ui->lstState->lineEdit(), &QLineEdit::textEdited, this, &frmCustProp::validateCustomer);
    ui->email->installEventFilter(this);
    for (QLineEdit *box : {ui->txtName, ui->txtAddress, ui->txtAddress2, ui->txtCity, ui->txtPhone,
                           ui->txtZip, ui->lstState->lineEdit()})
        Utility::selectAllOnFocus(box);
}

bool frmCustProp::eventFilter(QObject *watched, QEvent *event) {
    if (watched == ui->email && event->type() == QEvent::FocusIn)
        validateCustomer();
    return ModalScreen::eventFilter(watched, event);
}

void frmCustProp::load() {
    fillStates();
    runCommand(tr("An error occured while loading customer information:  "),
               [this] { loadCustomerSheet(); });
    runCommand(tr("An error has occured:  "), [this] { loadTransactions(); });
    m_save->setEnabled(false);
    applyRights();
    ui->txtName->setFocus();
}

void frmCustProp::fillStates() {
    for (const char *state : kStates)
        ui->lstState->addItem(QString::fromLatin1(state));
    ui->lstState->setCurrentIndex(0);
}

// Without the edit right every field is locked and nothing moves; without
// the delete right the customer stays.
void frmCustProp::applyRights() {
    const UserRights rights = currentUserRights();
    m_delete->setEnabled(rights.canDelete);
    m_reassign->setEnabled(rights.canEdit);
    ui->lblLocked->setVisible(!rights.canEdit);
    const std::initializer_list<QWidget *> fields = {
        ui->txtName, ui->txtAddress, ui->txtAddress2, ui->txtCity,        ui->lstState,
        ui->txtZip,  ui->txtPhone,   ui->email,       ui->startingBalance};
    for (QWidget *field : fields)
        field->setEnabled(rights.canEdit);
}

// The balances show whether or not the customer's row was found.
void frmCustProp::loadCustomerSheet() {
    Payee payee;
    if (payee.LoadPayeeInfo(payeeID)) {
        ui->txtName->setText(payee.payeeName);
        ui->txtAddress->setText(payee.address1);
        ui->txtAddress2->setText(payee.address2);
        ui->txtCity->setText(payee.city);
        ui->email->setText(payee.email);
        showState(payee.State);
        ui->txtZip->setText(payee.zip);
        ui->txtPhone->setText(payee.phone);
    }
    ui->lblBalance->setText(Runtime::formatNumber(payee.GetPayeeBalance(payeeID), kBalanceFormat));
    ui->startingBalance->setText(
        Runtime::formatNumber(payee.GetOpeningBalance(payeeID), kBalanceFormat));
}

// A state of the list selects its entry; any other text stands as typed.
void frmCustProp::showState(const QString &state) {
    if (state.isEmpty())
        return;
    const int entry = ui->lstState->findText(state, Qt::MatchFixedString);
    if (entry >= 0)
        ui->lstState->setCurrentIndex(entry);
    ui->lstState->setEditText(state);
}

void frmCustProp::loadTransactions() {
    m_transactions->load(Receipt().GetCustomerReceipts(payeeID));
}

// Untrimmed: a name of blanks passes here and is saved empty.
void frmCustProp::validateCustomer() {
    bool valid = !ui->txtName->text().isEmpty();
    if (company().requireAddress) {
        valid = valid && !ui->txtAddress->text().isEmpty() && !ui->txtCity->text().isEmpty() &&
                !ui->lstState->currentText().isEmpty() && !ui->txtZip->text().isEmpty();
    }
    m_save->setEnabled(valid);
}

// The sheet stays open and its balance and list as they were.
void frmCustProp::saveCustomer() {
    if (ui->startingBalance->text().isEmpty())
        ui->startingBalance->setText(u"0"_s);
    bool written = false;
    if (!runCommand(tr("An error has occured "), [&] { written = writeCustomer(); }))
        return;
    if (!written) {
        dialogs().message(tr("Changes were not saved"), tr("Error"), Dialogs::Icon::Exclamation);
        return;
    }
    m_save->setEnabled(false);
    dialogs().message(tr("Customer record updated"), tr("Success"), Dialogs::Icon::Information);
}

// The address and the opening balance land together or not at all. The
// record is not loaded first, so the last purchase date is written empty.
bool frmCustProp::writeCustomer() {
    const Currency opening = Currency::fromText(ui->startingBalance->text());
    Payee payee;
    payee.payeeID = payeeID;
    payee.payeeName = ui->txtName->text().trimmed();
    payee.address1 = ui->txtAddress->text().trimmed();
    payee.address2 = ui->txtAddress2->text().trimmed();
    payee.city = ui->txtCity->text().trimmed();
    payee.zip = ui->txtZip->text().trimmed();
    payee.phone = ui->txtPhone->text().trimmed();
    payee.email = ui->email->text().trimmed();
    payee.State = ui->lstState->currentText().left(kStateLength);
    db::Transaction transaction;
    payee.WritePayee();
    if (!payee.SetBalance(payeeID, opening))
        return false;
    transaction.commit();
    return true;
}

// The customer and every receipt of the customer go in one transaction:
// all of them or none.
void frmCustProp::deleteCustomer() {
    if (dialogs().message(tr("ARE YOU SURE YOU WANT TO REMOVE THIS CUSTOMER?  This action will "
                             "permanently remove the customer and all receipts for this "
                             "customer.  This action can not be reversed!"),
                          tr("Delete Customer and Receipts"), Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
        return;
    enum class Outcome { Deleted, ReceiptsKept, CustomerKept } outcome = Outcome::Deleted;
    const bool ran = runCommand(tr("An error has occured "), [&] {
        db::Transaction transaction;
        if (!Receipt().DeletePayeeReceipts(payeeID)) {
            outcome = Outcome::ReceiptsKept;
            return;
        }
        if (!Payee().DeletePayee(payeeID)) {
            outcome = Outcome::CustomerKept;
            return;
        }
        transaction.commit();
    });
    if (!ran)
        return;
    switch (outcome) {
    case Outcome::ReceiptsKept:
        dialogs().message(tr("An occured while deleting the customer's receipts.  This process "
                             "will abort."),
                          tr("Error"), Dialogs::Icon::Exclamation);
        return;
    case Outcome::CustomerKept:
        dialogs().message(tr("The customer record was note deleted"), tr("Error"),
                          Dialogs::Icon::Exclamation);
        return;
    case Outcome::Deleted:
        dialogs().message(tr("Customer record deleted"), tr("Success"), Dialogs::Icon::Information);
        accept();
    }
}

void frmCustProp::reassign() {
    frmCustPop picker(this);
    picker.exec();
    const qint32 newID = picker.selectedID;
    if (newID <= 0)
        return;
    if (newID == payeeID) {
        dialogs().message(tr("You cannot reassign receipts to the same customer.  Please try "
                             "again."),
                          tr("Error"), Dialogs::Icon::Critical);
        return;
    }
    reassignReceipts(newID);
}

// The checked receipts move together or not at all; the balance shown
// stays as it was.
void frmCustProp::reassignReceipts(qint32 newID) {
    int moved = 0;
    const bool ran = runCommand(tr("An error has occured "), [&] {
        db::Transaction transaction;
        for (const qint32 receiptID : m_transactions->checkedReceiptIDs()) {
            Receipt receipt;
            if (!receipt.GetReceipt(receiptID, QString()))
                continue;
            receipt.payeeID = newID;
            receipt.writeReceipt();
            ++moved;
        }
        transaction.commit();
    });
    if (!ran)
        return;
    dialogs().message(tr("Complete.  %1 record(s) were reassigned.").arg(moved),
                      tr("Reassign Receipts"), Dialogs::Icon::None);
    runCommand(tr("An error has occured:  "), [this] { loadTransactions(); });
}

// Until the first check box changes the tool stands as the opening left it.
void frmCustProp::updateReassignTool() {
    if (!currentUserRights().canEdit)
        return;
    m_reassign->setEnabled(!m_transactions->checkedReceiptIDs().isEmpty());
}

// Nothing is reloaded after the receipt closes.
void frmCustProp::openTransaction(const QModelIndex &index) {
    const qint32 receiptID = index.data(CustomerTransactionsModel::ReceiptIDRole).toInt();
    if (receiptID == 0)
        return;
    runCommand(tr("An error has occured:  "), [&] { ScreenLinks::openReceipt(this, receiptID); });
}

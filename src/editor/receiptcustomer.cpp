// The customer of the receipt editor: found by name as it is typed, in a
// panel of matches under the name field, or picked from the customer list.

#include "editor/frmreceipt.h"
#include "ui_frmReceipt.h"

#include "admin/systemuser.h"
#include "app/company.h"
#include "app/database.h"
#include "app/runtimeformat.h"
#include "app/session.h"
#include "customers/customerlistmodel.h"
#include "customers/frmcustomerlist.h"
#include "customers/payee.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

// The beginning of the name, as the engine compares text; the typed
// wildcards match themselves.
const QString kMatchStatement =
    uR"(SELECT payeeID, payeeName, address1, address2, city, state, zip FROM tblPayee WHERE payeeName LIKE ? ESCAPE '\')"_s;

constexpr int kPanelHeight = 210;
constexpr int kPanelMaxWidth = 760;
constexpr int kMatchColumnWidths[] = {75, 170, 150, 90, 110, 60};

CustomerListRow matchOf(const db::Cells &cells) {
    return {.payeeID = cells.int32(0),
            .payeeName = cells.text(1),
            .address1 = cells.text(2),
            .address2 = cells.text(3),
            .city = cells.text(4),
            .state = cells.text(5),
            .zip = cells.text(6)};
}

} // namespace

void frmReceipt::prepareCustomerMatching() {
    m_matches = new CustomerListModel(CustomerListModel::Layout::Matches, this);
    ui->lstCustomerMatch->setModel(m_matches);
    QHeaderView *header = ui->lstCustomerMatch->header();
    header->setAccessibleName(tr("Customer columns"));
    header->setDefaultSectionSize(kMatchColumnWidths[std::size(kMatchColumnWidths) - 1]);
    for (int column = 0; column < std::ssize(kMatchColumnWidths); ++column)
        header->resizeSection(column, kMatchColumnWidths[column]);
    header->setStretchLastSection(true);
    // The columns fit the panel; a long text is cut short rather than scrolled.
    ui->lstCustomerMatch->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ui->Image1->setIcon(
        QIcon::fromTheme(u"window-close"_s, style()->standardIcon(QStyle::SP_TitleBarCloseButton)));

    connect(ui->txtPayeeName, &QLineEdit::textChanged, this, &frmReceipt::payeeNameChanged);
    connect(ui->lstCustomerMatch, &QAbstractItemView::clicked, this, &frmReceipt::pickCustomer);
    connect(ui->Image1, &QToolButton::clicked, this, &frmReceipt::clearCustomer);
    ui->txtPayeeName->installEventFilter(this);
    ui->lstCustomerMatch->installEventFilter(this);

    // The email and the name are not part of the address.
    for (QLineEdit *field :
         {ui->txtAddress, ui->txtAddress2, ui->txtCity, ui->txtPhone, ui->txtZip})
        connect(field, &QLineEdit::textChanged, this, &frmReceipt::markCustomerChanged);
    connect(ui->txtState, &QComboBox::editTextChanged, this, &frmReceipt::markCustomerChanged);
    connect(ui->txtState, &QComboBox::activated, this, &frmReceipt::markCustomerChanged);
}

void frmReceipt::markCustomerChanged() {
    customerChanged = true;
}

// Each change of the name searches, unless the change is the screen's own
// (a loaded receipt). A name of blanks neither searches nor hides.
void frmReceipt::payeeNameChanged() {
    if (!company().useAutoComplete)
        return;
    if (!skipNameSearch) {
        const QString text = ui->txtPayeeName->text();
        if (!text.trimmed().isEmpty())
            searchCustomers(text);
        if (text.isEmpty())
            hideCustomerPanel();
    }
    skipNameSearch = false;
}

// A customer picked before stays picked while the matches change; a name
// that matches nobody is a new customer.
void frmReceipt::searchCustomers(const QString &text) {
    QList<CustomerListRow> rows;
    const bool searched = runCommand(tr("An error occured while searching for customers:  "), [&] {
        db::forEachRow(kMatchStatement, {db::escapeLike(text) + u'%'},
                       [&rows](const db::Cells &cells) { rows.append(matchOf(cells)); });
    });
    m_matches->setRecords(std::move(rows));
    if (!searched)
        return;
    if (m_matches->rowCount() > 0) {
        showCustomerPanel();
        return;
    }
    ui->lblAcctBal->setText(u"0.00"_s);
    ui->lblID->clear();
    customerID = 0;
    customerBalance = Currency();
    hideCustomerPanel();
}

void frmReceipt::pickCustomer() {
    if (m_matches->rowCount() > 0) {
        const QModelIndex current = ui->lstCustomerMatch->currentIndex();
        customerID = m_matches->keyAt(current.isValid() ? current.row() : 0);
        runCommand(tr("An error occured while loading customer information:  "), [this] {
            loadCustomer();
            if (customerID > 0)
                showCustomerBalance();
        });
        customerChanged = false;
        ui->txtAddress->setFocus();
    }
    hideCustomerPanel();
}

// The customer list as a picker, once for a new receipt by itself and again
// on a double click in the name.
void frmReceipt::chooseCustomer() {
    if (company().useAutoComplete || !customerListPending || choosingCustomer)
        return;
    choosingCustomer = true;
    frmCustomerList list(this);
    list.pickMode = true;
    list.exec();
    if (list.selectedID > 0) {
        customerID = list.selectedID;
        runCommand(tr("An error occured while loading customer information:  "), [this] {
            loadCustomer();
            if (customerID > 0)
                showCustomerBalance();
        });
        customerChanged = false;
    }
    choosingCustomer = false;
    ui->txtAddress->setFocus();
    customerListPending = false;
}

// The customer's fields as the customer record holds them.
void frmReceipt::showPayee(const Payee &payee) {
    ui->txtPayeeName->setText(payee.payeeName);
    ui->txtAddress->setText(payee.address1);
    ui->txtAddress2->setText(payee.address2);
    ui->txtCity->setText(payee.city);
    setStateText(payee.State);
    ui->txtZip->setText(payee.zip);
    ui->txtPhone->setText(payee.phone);
    ui->txtEmail->setText(payee.email);
}

// A user without the edit right takes a customer but cannot change the
// customer's data here.
void frmReceipt::loadCustomer() {
    Payee payee;
    if (!payee.LoadPayeeInfo(customerID))
        return;
    showPayee(payee);
    const SystemUser *user = session().currentUser.get();
    if (user && user->canEdit == 0) {
        for (QWidget *field :
             {static_cast<QWidget *>(ui->txtPayeeName), static_cast<QWidget *>(ui->txtAddress),
              static_cast<QWidget *>(ui->txtAddress2), static_cast<QWidget *>(ui->txtCity),
              static_cast<QWidget *>(ui->txtState), static_cast<QWidget *>(ui->txtZip),
              static_cast<QWidget *>(ui->txtPhone), static_cast<QWidget *>(ui->txtEmail)})
            field->setEnabled(false);
    }
}

// The balance as of today; an account payment is for the whole of it.
void frmReceipt::showCustomerBalance() {
    customerBalance = Payee().GetPayeeBalance(customerID);
    const QString balance = Runtime::formatNumber(customerBalance, u"#,##0.00"_s);
    ui->lblID->setText(QString::number(customerID));
    ui->lblAcctBal->setText(balance);
    if (ui->optView2->isChecked())
        ui->txtDue->setText(balance);
}

// The typed name and address stay: a save makes a new customer of them.
void frmReceipt::clearCustomer() {
    ui->lblAcctBal->setText(u"0.00"_s);
    ui->lblID->clear();
    customerID = 0;
    customerBalance = Currency();
    hideCustomerPanel();
}

void frmReceipt::showCustomerPanel() {
    placeCustomerPanel();
    ui->CustomerPanel->show();
    ui->CustomerPanel->raise();
}

void frmReceipt::hideCustomerPanel() {
    const bool hadFocus = ui->CustomerPanel->isAncestorOf(focusWidget());
    ui->CustomerPanel->hide();
    if (hadFocus)
        ui->txtPayeeName->setFocus();
}

// Under the name field, as wide as the screen allows.
void frmReceipt::placeCustomerPanel() {
    const QPoint below = ui->txtPayeeName->mapTo(this, QPoint(0, ui->txtPayeeName->height() + 1));
    const int width = qMin(kPanelMaxWidth, this->width() - below.x() - 8);
    const int height = qMin(kPanelHeight, this->height() - below.y() - 8);
    ui->CustomerPanel->setGeometry(below.x(), below.y(), width, height);
}

void frmReceipt::resizeEvent(QResizeEvent *event) {
    ModalScreen::resizeEvent(event);
    if (ui->CustomerPanel->isVisible())
        placeCustomerPanel();
}

// Down goes into the matches, Escape closes them; a double click, or the
// first focus on a new receipt, opens the picker when matching is off.
bool frmReceipt::payeeNameEvent(QEvent *event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        if (receiptID == 0)
            QTimer::singleShot(0, this, &frmReceipt::chooseCustomer);
        return false;
    case QEvent::MouseButtonDblClick:
        customerListPending = true;
        chooseCustomer();
        return false;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (!ui->CustomerPanel->isVisible())
            return false;
        if (key == Qt::Key_Down) {
            ui->lstCustomerMatch->setFocus();
            if (!ui->lstCustomerMatch->currentIndex().isValid())
                ui->lstCustomerMatch->setCurrentIndex(m_matches->index(0, 0));
            return true;
        }
        if (key == Qt::Key_Escape) {
            hideCustomerPanel();
            return true;
        }
        return false;
    }
    default:
        return false;
    }
}

// Any key that gives a character takes the selected match, Enter as well as
// a letter; Escape closes the matches.
bool frmReceipt::customerMatchKey(QKeyEvent *key) {
    if (key->key() == Qt::Key_Escape) {
        hideCustomerPanel();
        return true;
    }
    if (key->text().isEmpty() || key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
        return false;
    pickCustomer();
    return true;
}

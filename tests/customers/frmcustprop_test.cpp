#include "admin/systemuser.h"
#include "app/company.h"
#include "app/session.h"
#include "customers/frmcustpop.h"
#include "customers/frmcustprop.h"
#include "customers/payee.h"
#include "editor/frmreceipt.h"
#include "receipts/receipt.h"
#include "support/briskotest.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

class CustomerSheetTest : public BriskoTest {
protected:
    void SetUp() override {
        BriskoTest::SetUp();
        grant(1, 1);
        ann = addPayee(u"Ann O'Hara"_s);
        db::execute(u"UPDATE tblPayee SET address1 = '1 Elm St', city = 'Salem', state = 'OR', "
                    "zip = '97301', phone = '555-0101', email = 'ann@example.org', "
                    "lastPurchaseDate = '2026-01-05 00:00:00' WHERE payeeID = ?"_s,
                    {ann});
    }

    static void grant(qint16 canEdit, qint16 canDelete) {
        auto user = std::make_shared<SystemUser>();
        user->canEdit = canEdit;
        user->canDelete = canDelete;
        session().currentUser = user;
    }

    static qint32 addReceipt(qint32 payeeID, const QString &number, const QDate &day, qint16 type,
                             int due, int received, int balance, qint16 status = Receipt::Issued) {
        Receipt receipt;
        receipt.receiptNumber = number;
        receipt.receiptDate = QDateTime(day, QTime(0, 0));
        receipt.payeeID = payeeID;
        receipt.receiptType = type;
        receipt.status = status;
        receipt.amountDue = Currency::fromInt(due);
        receipt.amountReceived = Currency::fromInt(received);
        receipt.accountBalance = Currency::fromInt(balance);
        receipt.writeReceipt();
        return receipt.receiptID;
    }

    // Ann: an opening balance of 50, a sale of 100 with 30 paid, a payment
    // of 20 and a void sale: 50 + 70 - 20 = 100.
    void addAnnsReceipts() {
        Payee payee;
        payee.payeeID = ann;
        payee.SetBalance(ann, Currency::fromInt(50));
        db::execute(u"UPDATE tblReceipt SET receiptDate = '2026-01-01 00:00:00'"_s);
        addReceipt(ann, u"26-002"_s, QDate(2026, 2, 3), Receipt::ProductReceipt, 100, 30, 120);
        addReceipt(ann, u"26-001"_s, QDate(2026, 2, 3), Receipt::AccountPayment, 0, 20, 100);
        addReceipt(ann, u"26-003"_s, QDate(2026, 3, 1), Receipt::ServiceReceipt, 0, 0, 100,
                   Receipt::Void);
    }

    // Opens Ann's sheet, lets `act` work on it and closes it if still open.
    void onSheet(const std::function<void(frmCustProp &)> &act, qint32 payeeID = 0) {
        driveModal<frmCustProp>(
            [&] {
                frmCustProp sheet;
                sheet.payeeID = payeeID ? payeeID : ann;
                sheet.exec();
            },
            [&](frmCustProp &sheet) {
                act(sheet);
                if (sheet.isVisible())
                    tool(sheet, u"ID_Close"_s)->trigger();
            });
    }

    static QAction *tool(const frmCustProp &sheet, const QString &id) {
        return sheet.findChild<QAction *>(id);
    }

    static QStringList row(const frmCustProp &sheet, int row) {
        const QAbstractItemModel *model = control<QTreeView>(sheet, u"lstOrders"_s)->model();
        QStringList texts;
        for (int column = 0; column < model->columnCount(); ++column)
            texts.append(row < 0 ? model->headerData(column, Qt::Horizontal).toString()
                                 : model->index(row, column).data().toString());
        return texts;
    }

    static int rows(const frmCustProp &sheet) {
        return control<QTreeView>(sheet, u"lstOrders"_s)->model()->rowCount();
    }

    static void check(const frmCustProp &sheet, int row) {
        QAbstractItemModel *model = control<QTreeView>(sheet, u"lstOrders"_s)->model();
        model->setData(model->index(row, 0), Qt::Checked, Qt::CheckStateRole);
    }

    static QString text(const frmCustProp &sheet, const QString &name) {
        return control<QLineEdit>(sheet, name)->text();
    }

    qint32 ann = 0;
};

TEST_F(CustomerSheetTest, ShowsTheBalancesAndEveryReceiptAndOpensOne) {
    addAnnsReceipts();
    onSheet([](frmCustProp &sheet) {
        EXPECT_EQ(sheet.windowTitle(), u"Customer Properties"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(sheet), QStringList());
        EXPECT_EQ(text(sheet, u"txtName"_s), u"Ann O'Hara"_s);
        EXPECT_EQ(text(sheet, u"txtCity"_s), u"Salem"_s);
        EXPECT_EQ(control<QComboBox>(sheet, u"lstState"_s)->currentText(), u"OR"_s);
        EXPECT_EQ(text(sheet, u"email"_s), u"ann@example.org"_s);
        EXPECT_EQ(text(sheet, u"startingBalance"_s), u"50.00"_s);
        EXPECT_EQ(control<QLabel>(sheet, u"lblBalance"_s)->text(), u"100.00"_s);
        EXPECT_FALSE(control<QLabel>(sheet, u"lblLocked"_s)->isVisibleTo(&sheet));
        EXPECT_FALSE(tool(sheet, u"ID_SaveChanges"_s)->isEnabled());
        EXPECT_TRUE(tool(sheet, u"ID_DeleteCustomer"_s)->isEnabled());
        EXPECT_TRUE(tool(sheet, u"ID_Reassign"_s)->isEnabled());

        EXPECT_EQ(row(sheet, -1), (QStringList{u""_s, u"Date"_s, u"Receipt #"_s, u"Total"_s,
                                               u"Balance"_s, u"Type"_s, u""_s}));
        ASSERT_EQ(rows(sheet), 4);
        EXPECT_EQ(row(sheet, 0), (QStringList{u""_s, u"01/01/2026"_s, u"Opening Balance"_s,
                                              u".00"_s, u"50.00"_s, u"Payment"_s, u""_s}));
        EXPECT_EQ(row(sheet, 1), (QStringList{u""_s, u"02/03/2026"_s, u"26-001"_s, u"20.00"_s,
                                              u"100.00"_s, u"Payment"_s, u""_s}));
        EXPECT_EQ(row(sheet, 2), (QStringList{u""_s, u"02/03/2026"_s, u"26-002"_s, u"100.00"_s,
                                              u"120.00"_s, u"Sale"_s, u""_s}));
        EXPECT_EQ(row(sheet, 3), (QStringList{u""_s, u"03/01/2026"_s, u"26-003"_s, u".00"_s,
                                              u"100.00"_s, u"Sale"_s, u"Void"_s}));
    });
    // A double click on a transaction shows that receipt in the receipt editor.
    onSheet([](frmCustProp &sheet) {
        control<QTabWidget>(sheet, u"SSTab1"_s)->setCurrentIndex(1);
        auto *orders = control<QTreeView>(sheet, u"lstOrders"_s);
        const QModelIndex sale = orders->model()->index(2, 2);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(orders));
        orders->scrollTo(sale);
        const QString title = driveModal<frmReceipt>(
            [&] {
                const QPoint centre = orders->visualRect(sale).center();
                QTest::mouseClick(orders->viewport(), Qt::LeftButton, {}, centre);
                QTest::mouseDClick(orders->viewport(), Qt::LeftButton, {}, centre);
            },
            [](frmReceipt &screen) {
                const QString shownTitle = screen.windowTitle();
                screen.reject();
                return shownTitle;
            });
        EXPECT_EQ(title, u"Receipt 26-002"_s);
    });
    EXPECT_TRUE(boxes().shown.isEmpty());
}

// The address and the opening balance land together; the opening row is
// rewritten in place, dated today, and the last purchase date is wiped.
TEST_F(CustomerSheetTest, SavingWritesTheAddressAndOneOpeningRowDatedToday) {
    addAnnsReceipts();
    onSheet([](frmCustProp &sheet) {
        control<QLineEdit>(sheet, u"txtCity"_s)->setText(u"  Portland "_s);
        EXPECT_TRUE(tool(sheet, u"ID_SaveChanges"_s)->isEnabled());
        control<QComboBox>(sheet, u"lstState"_s)->setEditText(u"British Columbia and more"_s);
        control<QLineEdit>(sheet, u"startingBalance"_s)->setText(u"75.5"_s);
        tool(sheet, u"ID_SaveChanges"_s)->trigger();
        EXPECT_FALSE(tool(sheet, u"ID_SaveChanges"_s)->isEnabled());
        EXPECT_EQ(control<QLabel>(sheet, u"lblBalance"_s)->text(), u"100.00"_s)
            << "the balance shown waits for the next opening";

        control<QLineEdit>(sheet, u"startingBalance"_s)->clear();
        tool(sheet, u"ID_SaveChanges"_s)->trigger();
        EXPECT_EQ(text(sheet, u"startingBalance"_s), u"0"_s);
    });
    EXPECT_EQ(boxes().lines(), (QStringList{u"Success | Customer record updated | Information"_s,
                                            u"Success | Customer record updated | Information"_s}));
    Payee saved;
    ASSERT_TRUE(saved.LoadPayeeInfo(ann));
    EXPECT_EQ(saved.city, u"Portland"_s);
    EXPECT_EQ(saved.State, u"British Columbia and"_s);
    EXPECT_EQ(saved.lastPurchaseDate, Payee::zeroDate);
    const db::Snapshot opening =
        db::select(u"SELECT receiptDate, accountBalance FROM tblReceipt WHERE payeeID = ? AND "
                   "receiptType = 4"_s,
                   {ann});
    ASSERT_EQ(opening.size(), 1);
    EXPECT_EQ(opening.at(0).dateTime(u"receiptDate"_s).date(), QDate::currentDate());
    EXPECT_EQ(opening.at(0).currency(u"accountBalance"_s), Currency());

    // A required address needs every address field; else only the name.
    company().requireAddress = true;
    onSheet([](frmCustProp &sheet) {
        auto *city = control<QLineEdit>(sheet, u"txtCity"_s);
        city->clear();
        EXPECT_FALSE(tool(sheet, u"ID_SaveChanges"_s)->isEnabled());
        city->setText(u"Salem"_s);
        EXPECT_TRUE(tool(sheet, u"ID_SaveChanges"_s)->isEnabled());
    });
    company().requireAddress = false;
    onSheet([](frmCustProp &sheet) {
        control<QLineEdit>(sheet, u"txtCity"_s)->clear();
        EXPECT_TRUE(tool(sheet, u"ID_SaveChanges"_s)->isEnabled());
        control<QLineEdit>(sheet, u"txtName"_s)->clear();
        EXPECT_FALSE(tool(sheet, u"ID_SaveChanges"_s)->isEnabled());
    });
}

TEST_F(CustomerSheetTest, DeleteTakesTheCustomerWithAllItsReceiptsOrNothing) {
    addAnnsReceipts();
    const qint32 bob = addPayee(u"Bob"_s);
    addReceipt(bob, u"26-004"_s, QDate(2026, 3, 2), Receipt::ProductReceipt, 10, 10, 0);
    const auto count = [](const QString &sql) { return db::readFirst(sql)->int32(u"n"_s); };

    // A failure in the customer's delete keeps the receipts too.
    db::execute(u"CREATE TRIGGER keepPayee BEFORE DELETE ON tblPayee "
                "BEGIN SELECT RAISE(ABORT, 'customer is kept'); END"_s);
    onSheet([](frmCustProp &sheet) { tool(sheet, u"ID_DeleteCustomer"_s)->trigger(); });
    EXPECT_EQ(count(u"SELECT COUNT(*) AS n FROM tblReceipt"_s), 5);
    db::execute(u"DROP TRIGGER keepPayee"_s);

    boxes().answers.enqueue(Dialogs::Answer::No);
    onSheet([](frmCustProp &sheet) { tool(sheet, u"ID_DeleteCustomer"_s)->trigger(); });
    onSheet([](frmCustProp &sheet) {
        tool(sheet, u"ID_DeleteCustomer"_s)->trigger();
        EXPECT_FALSE(sheet.isVisible());
    });
    EXPECT_EQ(count(u"SELECT COUNT(*) AS n FROM tblReceipt"_s), 1);
    EXPECT_EQ(count(u"SELECT COUNT(*) AS n FROM tblPayee"_s), 1);
    const QString question =
        u"Delete Customer and Receipts | ARE YOU SURE YOU WANT TO REMOVE THIS CUSTOMER?  This "
        "action will permanently remove the customer and all receipts for this customer.  This "
        "action can not be reversed! | Question"_s;
    EXPECT_EQ(
        boxes().lines(),
        (QStringList{question,
                     u"Error | An error has occured Payee.DeletePayee:  customer is kept | "
                     "Critical"_s,
                     question, question, u"Success | Customer record deleted | Information"_s}));

    grant(1, 0);
    onSheet(
        [](frmCustProp &sheet) { EXPECT_FALSE(tool(sheet, u"ID_DeleteCustomer"_s)->isEnabled()); },
        bob);
}

TEST_F(CustomerSheetTest, ReassignMovesTheCheckedReceiptsOnlyWithTheEditRight) {
    addAnnsReceipts();
    const qint32 bob = addPayee(u"Bob"_s);
    const auto pick = [](const QString &name) {
        return [name](frmCustPop &picker) {
            auto *list = control<QListView>(picker, u"lstCustomers"_s);
            const QModelIndexList hits =
                list->model()->match(list->model()->index(0, 1), Qt::DisplayRole, name);
            list->setCurrentIndex(hits.first());
            click(picker, u"cmdOK"_s);
        };
    };
    onSheet([&](frmCustProp &sheet) {
        driveModal<frmCustPop>([&] { tool(sheet, u"ID_Reassign"_s)->trigger(); },
                               pick(u"Ann O'Hara"_s));
        check(sheet, 1);
        check(sheet, 2);
        driveModal<frmCustPop>([&] { tool(sheet, u"ID_Reassign"_s)->trigger(); }, pick(u"Bob"_s));
        EXPECT_EQ(rows(sheet), 2);
        EXPECT_EQ(control<QLabel>(sheet, u"lblBalance"_s)->text(), u"100.00"_s);
    });
    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Error | You cannot reassign receipts to the same customer.  Please "
                           "try again. | Critical"_s,
                           u"Reassign Receipts | Complete.  2 record(s) were reassigned."_s}));
    EXPECT_EQ(db::select(u"SELECT receiptNumber FROM tblReceipt WHERE payeeID = ? "
                         "ORDER BY receiptNumber"_s,
                         {bob})
                  .size(),
              2);
    EXPECT_EQ(Payee().GetPayeeBalance(bob), Currency::fromInt(50));

    // Without the edit right nothing can change.
    grant(0, 1);
    onSheet([](frmCustProp &sheet) {
        EXPECT_TRUE(control<QLabel>(sheet, u"lblLocked"_s)->isVisibleTo(&sheet));
        for (const QString &name :
             {u"txtName"_s, u"txtAddress"_s, u"txtCity"_s, u"email"_s, u"startingBalance"_s})
            EXPECT_FALSE(control<QLineEdit>(sheet, name)->isEnabled()) << name.toStdString();
        EXPECT_FALSE(control<QComboBox>(sheet, u"lstState"_s)->isEnabled());
        EXPECT_FALSE(tool(sheet, u"ID_Reassign"_s)->isEnabled());
        check(sheet, 1);
        EXPECT_FALSE(tool(sheet, u"ID_Reassign"_s)->isEnabled());
    });
}

} // namespace

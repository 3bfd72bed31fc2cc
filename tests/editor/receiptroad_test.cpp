// A receipt through the editor as a cashier takes it: lines, the save with
// its questions, Save & New, the void, the close question, a failed save.

#include "app/company.h"
#include "app/screenlinks.h"
#include "app/session.h"
#include "customers/payee.h"
#include "editor/frmitem.h"
#include "editortest.h"
#include "output/frmprintoption.h"
#include "savetest.h"

#include <QComboBox>
#include <QDateEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList kMarkers = {
    u"lblReqField0"_s, u"lblReqField1"_s, u"lblReqField3"_s,  u"lblReqField4"_s, u"lblReqField5"_s,
    u"lblReqField6"_s, u"lblReqField2"_s, u"lblReqField11"_s, u"lblReqField9"_s, u"lblReqField8"_s};
const QStringList kTools = {u"ID_Print"_s, u"ID_PrintPreview"_s, u"ID_EditReceipt"_s,
                            u"ID_Void"_s,  u"ID_SaveNew"_s,      u"ID_SaveClose"_s};
const QString kQuestion =
    u"You have changed the address for this customer.  \r\n\r\nClick YES to update the "
    "customer's account with the new information.\r\nClick NO to create a new customer "
    "account.\r\n\r\nIf you create a new account, the customer's account balance WILL NOT be "
    "transferred to the new account."_s;

class ReceiptRoadTest : public EditorTest, protected StoredRows {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        company().useAutoComplete = true;
        company().taxRate = 8;
        session().year2 = u"13"_s;
        Receipt().createReceiptYear(u"13"_s, u"1"_s);
        bolt = addProduct(u"B-2"_s, "1.25");
        lamp = addProduct(u"L-1"_s, "12.5");
        db::execute(u"UPDATE tblProduct SET productDesc = productSKU || ' each'"_s);
    }

    // Opens the receipt as other screens do; gives whether it was saved or voided.
    template <typename Act> bool onEditor(qint32 receiptID, Act &&act) {
        bool changed = false;
        driveModal<frmReceipt>([&] { changed = ScreenLinks::openReceipt(nullptr, receiptID); },
                               [&](frmReceipt &screen) {
                                   EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
                                   act(screen);
                                   if (screen.isVisible())
                                       screen.done(QDialog::Rejected);
                               });
        return changed;
    }

    static void type(const QWidget &screen, const QString &name, const QString &text) {
        control<QLineEdit>(screen, name)->setText(text);
    }
    static void trigger(const frmReceipt &screen, const QString &tool) {
        screen.findChild<QAction *>(tool)->trigger();
    }
    static QTreeWidget *lines(const frmReceipt &screen) {
        return control<QTreeWidget>(screen, u"lstProducts"_s);
    }

    // The SKU left so that it is looked up, then this sale's price if any.
    static void fillItem(frmItem &item, const QString &sku, const QString &qty,
                         const QString &price = {}, const QString &extDesc = {}) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&item));
        auto *skus = control<QComboBox>(item, u"txtSKU"_s);
        skus->setFocus();
        EXPECT_TRUE(QTest::qWaitFor([&] { return skus->hasFocus(); }));
        skus->setEditText(sku);
        QTest::keyClick(skus, Qt::Key_Tab);
        if (!price.isEmpty())
            type(item, u"txtPrice"_s, price);
        type(item, u"txtExtDesc"_s, extDesc);
        type(item, u"txtQty"_s, qty);
        click(item, u"cmdOK"_s);
    }
    static void addLine(frmReceipt &screen, const QString &sku, const QString &qty,
                        const QString &price = {}, const QString &extDesc = {}) {
        driveModal<frmItem>([&] { click(screen, u"cmdAddProduct"_s); },
                            [&](frmItem &item) { fillItem(item, sku, qty, price, extDesc); });
    }

    // Saves through `how`; gives the text of the print options then closed.
    static QString save(const std::function<void()> &how) {
        return driveModal<frmPrintOption>(how, [](frmPrintOption &options) {
            const QString text = textOf(options, u"Label1"_s);
            click(options, u"cmdClose"_s);
            return text;
        });
    }

    static void fillService(const frmReceipt &screen, const QString &due, const QString &received) {
        control<QRadioButton>(screen, u"optView1"_s)->click();
        control<QPlainTextEdit>(screen, u"txtDesc"_s)->setPlainText(u"Repair"_s);
        type(screen, u"txtDue"_s, due);
        type(screen, u"txtRecvd"_s, received);
        type(screen, u"txtRecvdBy"_s, u"Ann"_s);
    }

    static void pickCustomer(const frmReceipt &screen, const QString &start) {
        auto *name = control<QLineEdit>(screen, u"txtPayeeName"_s);
        name->setFocus();
        QTest::keyClicks(name, start);
        QTest::keyClick(name, Qt::Key_Down);
        QTest::keyClick(control<QWidget>(screen, u"lstCustomerMatch"_s), Qt::Key_Return);
    }

    static Receipt stored(qint32 receiptID) {
        Receipt receipt;
        EXPECT_TRUE(receipt.GetReceipt(receiptID, {}));
        return receipt;
    }

    qint32 bolt = 0, lamp = 0;
};

TEST_F(ReceiptRoadTest, AProductSaleIsWrittenWholeAndConfirmedByItsNumber) {
    QString confirmation;
    const bool changed = onEditor(0, [&](frmReceipt &screen) {
        type(screen, u"txtPayeeName"_s, u"Dana O'Neill"_s);
        type(screen, u"txtAddress"_s, u"1 Quay Street"_s);
        type(screen, u"txtCity"_s, u"Oban"_s);
        type(screen, u"txtZip"_s, u"PA34"_s);
        type(screen, u"txtEmail"_s, u"dana@example.com"_s);
        addLine(screen, u"B-2"_s, u"3"_s);
        addLine(screen, u"L-1"_s, u"1"_s, {}, u"with bulb"_s);
        addLine(screen, u"B-2"_s, u"2"_s, u"1.00"_s);
        addLine(screen, u"L-1"_s, u"1"_s);
        EXPECT_EQ(textOf(screen, u"lblSubTotal"_s), u"30.75"_s);

        // Enter opens the selected line; its extended description stays.
        lines(screen)->setCurrentItem(lines(screen)->topLevelItem(2));
        driveModal<frmItem>([&] { QTest::keyClick(lines(screen), Qt::Key_Return); },
                            [&](frmItem &item) {
                                EXPECT_EQ(item.windowTitle(), u"Edit Line Item"_s);
                                fillItem(item, u"B-2"_s, u"-1"_s, u"1.50"_s, u"dropped"_s);
                            });
        EXPECT_EQ(textOf(screen, u"lblSubTotal"_s), u"27.25"_s);

        // Delete asks; No keeps the line.
        lines(screen)->setCurrentItem(lines(screen)->topLevelItem(3));
        boxes().answers.enqueue(Dialogs::Answer::No);
        QTest::keyClick(lines(screen), Qt::Key_Delete);
        EXPECT_EQ(lines(screen)->topLevelItemCount(), 4);
        QTest::keyClick(lines(screen), Qt::Key_Delete);
        EXPECT_EQ(rowsOf(screen, u"lstProducts"_s),
                  (QStringList{u"3 | B-2 | B-2 each | 1.25 | 3.75 | "_s,
                               u"1 | L-1 | L-1 each | 12.50 | 12.50 | with bulb"_s,
                               u"-1 | B-2 | B-2 each | 1.50 | -1.50 | "_s}));

        type(screen, u"txtRecvd"_s, u"10"_s);
        type(screen, u"txtRecvdBy"_s, u"Ann"_s);
        auto *payment = control<QComboBox>(screen, u"lstPaymentType"_s);
        payment->setCurrentIndex(payment->findText(u"Check"_s));
        type(screen, u"txtCheckNum"_s, u" 1041 "_s);
        EXPECT_EQ(textsOf(screen, {u"lblSubTotal"_s, u"lblTax"_s, u"lblTotal"_s, u"lblBalance"_s}),
                  u"14.75 | 1.18 | 15.93 | 5.93"_s);
        confirmation = save([&] { trigger(screen, u"ID_SaveClose"_s); });
        EXPECT_FALSE(screen.isVisible());
    });

    EXPECT_TRUE(changed);
    EXPECT_EQ(confirmation, u"Receipt Number 00001 has beeen saved."_s);
    EXPECT_EQ(boxes().titles(), (QStringList{u"Remove Line item"_s, u"Remove Line item"_s}));
    const qint32 key = session().lastReceiptID;
    const Receipt receipt = stored(key);
    EXPECT_EQ(receipt.receiptDate.date(), QDate::currentDate());
    EXPECT_EQ(receipt.receiptType, Receipt::ProductReceipt);
    EXPECT_EQ(QStringList({receipt.amountDue.toString(), receipt.amountTax.toString(),
                           receipt.amountReceived.toString(), receipt.balanceRemaining.toString(),
                           receipt.accountBalance.toString()}),
              (QStringList{u"14.75"_s, u"1.18"_s, u"10"_s, u"5.93"_s, u"5.93"_s}));
    EXPECT_EQ(
        u"%1|%2|%3|%4"_s.arg(receipt.checkNumber, receipt.otherPaymentDesc, receipt.receivedBy)
            .arg(receipt.status),
        u"1041||Ann|%1"_s.arg(Receipt::Issued));
    EXPECT_EQ(linesOf(key), (QStringList{u"3 | %1 | 1.25 | B-2 each | 3.75 | "_s.arg(bolt),
                                         u"1 | %1 | 12.5 | L-1 each | 12.5 | with bulb"_s.arg(lamp),
                                         u"-1 | %1 | 1.5 | B-2 each | -1.5 | "_s.arg(bolt)}));
    Payee customer;
    ASSERT_TRUE(customer.LoadPayeeInfo(receipt.payeeID));
    EXPECT_EQ(QStringList({customer.payeeName, customer.address1, customer.city, customer.zip,
                           customer.email}),
              (QStringList{u"Dana O'Neill"_s, u"1 Quay Street"_s, u"Oban"_s, u"PA34"_s,
                           u"dana@example.com"_s}));
    EXPECT_EQ(tally(), u"1 1 3 1"_s);
}

TEST_F(ReceiptRoadTest, AnEditedReceiptKeepsNumberAndKeyAndGetsItsLinesAnew) {
    const qint32 ann = addCustomer(u"Ann Apple"_s);
    const qint32 key =
        addReceipt(ann,
                   [](Receipt &receipt) {
                       receipt.receiptNumber = u"00007"_s;
                       receipt.receivedBy = u"Ann"_s;
                   },
                   {{bolt, 2, "1.25", u"Bolt"_s}, {lamp, 1, "12.5", u"Lamp"_s, u"with bulb"_s}});

    QString confirmation;
    onEditor(key, [&](frmReceipt &screen) {
        EXPECT_EQ(enabled(screen, kTools), u"111100"_s);
        trigger(screen, u"ID_EditReceipt"_s);
        EXPECT_EQ(enabled(screen, kTools), u"111101"_s);
        lines(screen)->setCurrentItem(lines(screen)->topLevelItem(0));
        driveModal<frmItem>([&] { QTest::keyClick(lines(screen), Qt::Key_Return); },
                            [&](frmItem &item) { fillItem(item, u"B-2"_s, u"5"_s); });
        EXPECT_EQ(textOf(screen, u"lblSubTotal"_s), u"18.75"_s);
        confirmation = save([&] { trigger(screen, u"ID_SaveClose"_s); });
    });
    EXPECT_EQ(confirmation, u"Receipt Number 00007 has beeen saved."_s);
    EXPECT_EQ(stored(key).receiptNumber, u"00007"_s);
    EXPECT_EQ(stored(key).payeeID, ann);
    EXPECT_EQ(linesOf(key), (QStringList{u"5 | %1 | 1.25 | B-2 each | 6.25 | "_s.arg(bolt),
                                         u"1 | %1 | 12.5 | Lamp | 12.5 | with bulb"_s.arg(lamp)}));
    EXPECT_EQ(tally(), u"1 1 2 0"_s);
    EXPECT_EQ(session().lastReceiptID, 0) << "only a new receipt is the last one";
}

// All missing fields are marked at once; a blank is something.
TEST_F(ReceiptRoadTest, EveryRequiredFieldIsMarkedBeforeAnythingIsWritten) {
    company().requireAddress = true;
    onEditor(0, [&](frmReceipt &screen) {
        trigger(screen, u"ID_SaveClose"_s);
        EXPECT_EQ(shown(screen, kMarkers), u"1111100111"_s);
        EXPECT_EQ(boxes().lines(),
                  QStringList(u"Incomplete Form | Please enter information in the required "
                              "fields. | Exclamation"_s));

        control<QRadioButton>(screen, u"optView1"_s)->click();
        type(screen, u"txtDue"_s, QString());
        trigger(screen, u"ID_SaveClose"_s);
        EXPECT_EQ(shown(screen, kMarkers), u"1111111011"_s) << "description and amount";

        type(screen, u"txtPayeeName"_s, u" "_s);
        type(screen, u"txtAddress"_s, u"1 Quay Street"_s);
        type(screen, u"txtCity"_s, u"Oban"_s);
        type(screen, u"txtZip"_s, u"PA34"_s);
        fillService(screen, u"20"_s, u"20"_s);
        trigger(screen, u"ID_SaveClose"_s);
        EXPECT_EQ(shown(screen, kMarkers), u"0001000000"_s) << "only the state";
        EXPECT_EQ(count(u"tblReceipt"_s), 0);
        control<QComboBox>(screen, u"txtState"_s)->setEditText(u"Argyll"_s);
        save([&] { trigger(screen, u"ID_SaveNew"_s); });
        EXPECT_EQ(shown(screen, kMarkers), u"0000000000"_s);
    });
    EXPECT_EQ(count(u"tblReceipt"_s), 1);
}

// A picked customer whose address changed: Yes updates it, No writes a new
// customer that starts from the old balance, Cancel writes nothing.
TEST_F(ReceiptRoadTest, TheCustomerQuestionUpdatesAddsOrCancels) {
    company().taxRate = 0;
    const qint32 ann = addCustomer(u"Ann Apple"_s);
    addReceipt(ann, [](Receipt &receipt) {
        receipt.receiptNumber = u"1"_s;
        receipt.amountDue = Currency::fromInt(100);
    });
    onEditor(0, [&](frmReceipt &screen) {
        pickCustomer(screen, u"Ann A"_s);
        type(screen, u"txtCity"_s, u"Shelbyville"_s);
        fillService(screen, u"20"_s, u"20"_s);
        boxes().answers.enqueue(Dialogs::Answer::Cancel);
        trigger(screen, u"ID_SaveNew"_s);
        EXPECT_EQ(boxes().lines(),
                  QStringList(u"Existing Customer Found | "_s + kQuestion + u" | Question"_s));
        EXPECT_EQ(count(u"tblReceipt"_s), 1) << "Cancel writes nothing";

        boxes().answers.enqueue(Dialogs::Answer::Yes);
        save([&] { trigger(screen, u"ID_SaveNew"_s); });
        EXPECT_EQ(count(u"tblPayee"_s), 1);
        Payee updated;
        updated.LoadPayeeInfo(ann);
        EXPECT_EQ(updated.city, u"Shelbyville"_s);
        EXPECT_EQ(stored(session().lastReceiptID).payeeID, ann);
        EXPECT_EQ(stored(session().lastReceiptID).accountBalance.toString(), u"100"_s);

        pickCustomer(screen, u"Ann A"_s);
        type(screen, u"txtCity"_s, u"Ogdenville"_s);
        fillService(screen, u"50"_s, u"20"_s);
        boxes().answers.enqueue(Dialogs::Answer::No);
        save([&] { trigger(screen, u"ID_SaveNew"_s); });
    });
    EXPECT_EQ(count(u"tblPayee"_s), 2);
    const Receipt last = stored(session().lastReceiptID);
    EXPECT_NE(last.payeeID, ann);
    Payee added;
    added.LoadPayeeInfo(last.payeeID);
    EXPECT_EQ(added.payeeName + u' ' + added.city, u"Ann Apple Ogdenville"_s);
    EXPECT_EQ(last.accountBalance.toString(), u"130"_s) << "the old balance and 30 unpaid";
    EXPECT_EQ(boxes().titles().count(u"Existing Customer Found"_s), 3);
}

// Save & New leaves a new receipt with only the date of the last one; the
// screen then closes without asking, and tells no change.
TEST_F(ReceiptRoadTest, SaveAndNewClearsTheScreenForTheNextReceipt) {
    const bool changed = onEditor(0, [&](frmReceipt &screen) {
        control<QDateEdit>(screen, u"txtReceiptDate"_s)->setDate(QDate(2026, 3, 14));
        type(screen, u"txtPayeeName"_s, u"Dana"_s);
        addLine(screen, u"B-2"_s, u"3"_s);
        type(screen, u"txtRecvd"_s, u"1"_s);
        type(screen, u"txtRecvdBy"_s, u"Ann"_s);
        type(screen, u"txtOther"_s, u"x"_s);
        control<QTabWidget>(screen, u"SSTab1"_s)->setCurrentIndex(1);
        save([&] { click(screen, u"cmdSaveNew"_s); });

        EXPECT_EQ(screen.windowTitle(), u"New Receipt"_s);
        EXPECT_EQ(control<QTabWidget>(screen, u"SSTab1"_s)->currentIndex(), 0);
        EXPECT_EQ(screen.focusWidget(), control<QWidget>(screen, u"txtPayeeName"_s));
        EXPECT_EQ(enabled(screen, kTools), u"000011"_s);
        EXPECT_EQ(lines(screen)->topLevelItemCount(), 0);
        EXPECT_EQ(textsOf(screen, {u"txtPayeeName"_s, u"txtRecvd"_s, u"txtRecvdBy"_s, u"txtOther"_s,
                                   u"lblSubTotal"_s, u"lblTax"_s, u"lblTotal"_s, u"lblBalance"_s,
                                   u"lstPaymentType"_s, u"lblID"_s}),
                  u" |  |  | 0.00 | 0.00 | 0.00 | 0.00 | 0.00 | Cash | "_s);
        EXPECT_EQ(control<QDateEdit>(screen, u"txtReceiptDate"_s)->date(), QDate(2026, 3, 14));
        EXPECT_TRUE(control<QRadioButton>(screen, u"optView0"_s)->isChecked());
        screen.reject();
        EXPECT_FALSE(screen.isVisible()) << "no question after Save & New";
    });
    EXPECT_FALSE(changed);
    const Receipt receipt = stored(session().lastReceiptID);
    EXPECT_EQ(receipt.receiptDate.date(), QDate(2026, 3, 14));
    EXPECT_EQ(receipt.amountOther.toString(), u"0"_s) << "letters in Other are saved as 0";
    EXPECT_EQ(linesOf(receipt.receiptID).size(), 1);
    EXPECT_EQ(boxes().shown.size(), 0);
}

TEST_F(ReceiptRoadTest, AVoidAsksAndTakesAReasonOrNone) {
    const qint32 ann = addCustomer(u"Ann Apple"_s);
    const auto addNumbered = [&](const QString &number) {
        return addReceipt(ann, [&](Receipt &receipt) { receipt.receiptNumber = number; });
    };
    const qint32 kept = addNumbered(u"3"_s), damaged = addNumbered(u"4"_s),
                 unexplained = addNumbered(u"5"_s);

    boxes().answers.enqueue(Dialogs::Answer::No);
    EXPECT_FALSE(onEditor(kept, [&](frmReceipt &screen) {
        trigger(screen, u"ID_Void"_s);
        EXPECT_TRUE(screen.isVisible());
    }));
    EXPECT_EQ(stored(kept).status, Receipt::Issued);

    boxes().texts.enqueue(u"Damaged"_s);
    EXPECT_TRUE(onEditor(damaged, [&](frmReceipt &screen) { trigger(screen, u"ID_Void"_s); }));
    EXPECT_TRUE(onEditor(unexplained, [&](frmReceipt &screen) { trigger(screen, u"ID_Void"_s); }));
    EXPECT_EQ(stored(damaged).status, Receipt::Void);
    EXPECT_EQ(stored(damaged).voidReason, u"Damaged"_s);
    EXPECT_EQ(stored(unexplained).status, Receipt::Void);
    EXPECT_EQ(stored(unexplained).voidReason, u""_s);
    EXPECT_EQ(boxes().lines().mid(1, 3),
              (QStringList{u"Confirm | Are you sure you want to void this receipt? | Question"_s,
                           u"Void Receipt | Void Reason"_s,
                           u"Completed | Receipt has been voided! | Information"_s}));
}

TEST_F(ReceiptRoadTest, ANewReceiptAsksBeforeItCloses) {
    onEditor(0, [&](frmReceipt &screen) {
        boxes().answers.enqueue(Dialogs::Answer::No);
        QTest::keyClick(screen.focusWidget(), Qt::Key_Escape);
        EXPECT_TRUE(screen.isVisible());
        screen.close();
        EXPECT_FALSE(screen.isVisible());
    });
    const QString question = u"Cancel Receipt | Are you sure you want to cancel this receipt?  "
                             "Your information will not be saved. | Question"_s;
    EXPECT_EQ(boxes().lines(), (QStringList{question, question}));

    const qint32 key = addReceipt(addCustomer(u"Ann Apple"_s), [](Receipt &) {});
    onEditor(key, [&](frmReceipt &screen) {
        QTest::keyClick(screen.focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(screen.isVisible());
    });
    EXPECT_EQ(boxes().shown.size(), 2);
}

TEST_F(ReceiptRoadTest, AFailedSaveWritesNothingAndTheNextSaveWritesItOnce) {
    db::execute(u"CREATE TRIGGER refuse BEFORE INSERT ON tblReceipt "
                "BEGIN SELECT RAISE(ABORT, 'the file refuses'); END"_s);
    QString confirmation;
    onEditor(0, [&](frmReceipt &screen) {
        type(screen, u"txtPayeeName"_s, u"Dana"_s);
        fillService(screen, u"20"_s, u"5"_s);
        trigger(screen, u"ID_SaveClose"_s);
        ASSERT_EQ(boxes().shown.size(), 1);
        const QString box = boxes().lines()[0];
        EXPECT_TRUE(box.startsWith(
            u"Error | An error has occured while saving the receipt to the database:  "_s));
        EXPECT_TRUE(box.contains(u"the file refuses"_s) && box.endsWith(u" | Critical"_s))
            << box.toStdString();
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(textsOf(screen, {u"txtPayeeName"_s, u"txtDesc"_s, u"txtDue"_s}),
                  u"Dana | Repair | 20"_s);
        EXPECT_EQ(tally(), u"0 0 0 0"_s);

        db::execute(u"DROP TRIGGER refuse"_s);
        confirmation = save([&] { trigger(screen, u"ID_SaveClose"_s); });
    });
    EXPECT_EQ(confirmation, u"Receipt Number 00001 has beeen saved."_s);
    EXPECT_EQ(tally(), u"1 1 0 1"_s);
    EXPECT_EQ(stored(session().lastReceiptID).balanceRemaining.toString(), u"16.6"_s);
}

} // namespace

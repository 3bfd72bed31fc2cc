#include "app/company.h"
#include "editor/receiptsave.h"
#include "savetest.h"

#include <QDateTime>

using ReceiptSaveTest = SaveTest;

// What the screen does not show: the old balance carried on, the state cut to
// its column, the purchase date, no description on a product receipt.
TEST_F(ReceiptSaveTest, ANewSaleWritesCustomerNumberReceiptAndLines) {
    ReceiptSave save = sampleSale(u"Dana O'Neill"_s);
    save.customerBalance = Currency::fromText(u"5"_s);
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    ASSERT_TRUE(save.save());
    EXPECT_EQ(save.receipt.receiptNumber, u"00001"_s);
    EXPECT_EQ(save.customerBalance.toString(), u"13.09"_s) << "5 + 8.09 unpaid";

    Payee customer;
    ASSERT_TRUE(customer.LoadPayeeInfo(save.payee.payeeID));
    EXPECT_EQ(customer.State, u"Argyll and Bute, Sco"_s) << "cut to 20 characters";
    EXPECT_EQ(customer.email, u"o'neill@example.com"_s);
    EXPECT_GE(customer.lastPurchaseDate, before);
    Receipt stored;
    ASSERT_TRUE(stored.GetReceipt(save.receipt.receiptID, {}));
    EXPECT_EQ(stored.receiptDate, QDateTime(QDate(2013, 10, 25), QTime(14, 30)));
    EXPECT_EQ(stored.accountBalance.toString(), u"13.09"_s);
    EXPECT_EQ(stored.receiptDesc, u""_s);
    EXPECT_EQ(stored.customField1, u"Dana O'Neill"_s);
    EXPECT_EQ(linesOf(save.receipt.receiptID),
              (QStringList{u"3 | 1 | 1.25 | Bolt | 3.75 | "_s,
                           u"1 | 2 | 12.5 | Lamp, the shop's own | 12.5 | with bulb"_s,
                           u"-1 | 1 | 1.25 | Bolt returned | -1.25 | "_s}));
    EXPECT_EQ(tally(), u"1 1 3 1"_s);
    EXPECT_TRUE(boxes().shown.isEmpty());
}

// Edit, void and save again as a service: one receipt throughout, the
// counter untouched.
TEST_F(ReceiptSaveTest, AnOpenedReceiptKeepsNumberAndKeyVoidsAndIsIssuedAgain) {
    ReceiptSave first = sampleSale(u"Dana"_s);
    ASSERT_TRUE(first.save());
    const qint32 key = first.receipt.receiptID;
    ReceiptSave edit = sampleSale(u"Dana Smith"_s);
    edit.payee.payeeID = first.payee.payeeID;
    edit.receipt.receiptID = key;
    edit.loadedNumber = first.receipt.receiptNumber;
    edit.lines.removeLast();
    ASSERT_TRUE(edit.save());
    EXPECT_EQ(edit.receipt.receiptNumber, u"00001"_s);
    EXPECT_EQ(edit.receipt.accountBalance.toString(), u"8.09"_s) << "an edit starts from 0";
    Payee customer;
    customer.LoadPayeeInfo(first.payee.payeeID);
    EXPECT_EQ(customer.payeeName, u"Dana Smith"_s);

    ASSERT_TRUE(ReceiptSave::voidReceipt(key, u"typo"_s));
    EXPECT_FALSE(ReceiptSave::voidReceipt(key + 1, u"none"_s));
    Receipt stored;
    stored.GetReceipt(key, {});
    EXPECT_EQ(stored.status, Receipt::Void);
    EXPECT_EQ(stored.voidReason, u"typo"_s);
    EXPECT_EQ(linesOf(key).size(), 2) << "a void keeps its lines";

    edit.receipt.receiptType = Receipt::ServiceReceipt;
    edit.receipt.receiptDesc = u"Repairs"_s;
    ASSERT_TRUE(edit.save());
    stored.GetReceipt(key, {});
    EXPECT_EQ(stored.receiptDesc, u"Repairs"_s);
    EXPECT_EQ(stored.status, Receipt::Issued) << "a save issues a void receipt again";
    EXPECT_EQ(stored.voidReason, u""_s);
    EXPECT_EQ(linesOf(key), QStringList()) << "no longer a product receipt";
    EXPECT_EQ(tally(), u"1 1 0 1"_s);
}

TEST_F(ReceiptSaveTest, AccountBalanceAfterEachKindOfReceipt) {
    const Currency before = Currency::fromText(u"20"_s);
    Receipt receipt;
    receipt.amountReceived = Currency::fromText(u"50"_s);
    receipt.balanceRemaining = Currency::fromText(u"-30"_s);
    EXPECT_EQ(ReceiptSave::balanceAfter(receipt, before).toString(), u"20"_s)
        << "an overpaid sale changes nothing";
    receipt.receiptType = Receipt::ServiceReceipt;
    receipt.balanceRemaining = Currency::fromText(u"7.5"_s);
    EXPECT_EQ(ReceiptSave::balanceAfter(receipt, before).toString(), u"27.5"_s);
    receipt.receiptType = Receipt::AccountPayment;
    EXPECT_EQ(ReceiptSave::balanceAfter(receipt, before).toString(), u"-30"_s)
        << "a payment takes what it received, whatever its own rest";
}

// A failure at any write leaves the file and the save as they were; once the
// cause is gone the same save writes once, with the number it would have had.
TEST_F(ReceiptSaveTest, AFailedWriteLeavesNothingAndTheNextSaveTakesTheSameNumber) {
    const struct {
        const char *trigger;
        const char *prefix;
    } failures[] = {
        {"BEFORE INSERT ON tblPayee", "Payee.writePayee:  "},
        {"BEFORE UPDATE ON tblReceiptNumbering",
         "Receipt.getNextReceiptNumber:  Receipt.updateReceiptNumberUsed:  "},
        {"BEFORE INSERT ON tblReceipt", "Receipt.writeReceipt:  "},
        {"AFTER INSERT ON tblReceipt_Product WHEN NEW.quantity = -1",
         "Receipt.writeReceiptProducts:  "},
    };
    const auto expectStored = [](int saved) {
        EXPECT_EQ(tally(), u"%1 %1 %2 %1"_s.arg(saved).arg(3 * saved));
    };
    int saved = 0;
    for (const auto &failure : failures) {
        SCOPED_TRACE(failure.trigger);
        db::execute(u"CREATE TRIGGER failing %1 BEGIN SELECT RAISE(ABORT, 'disk full'); END"_s.arg(
            QString::fromUtf8(failure.trigger)));
        ReceiptSave save = sampleSale(u"Customer %1"_s.arg(saved));
        try {
            save.save();
            ADD_FAILURE() << "the save went through";
        } catch (const BriskoError &error) {
            EXPECT_EQ(error.description(), QString::fromUtf8(failure.prefix) + u"disk full"_s);
        }
        EXPECT_EQ(save.payee.payeeID + save.receipt.receiptID, 0);
        EXPECT_EQ(save.receipt.receiptNumber, u""_s);
        expectStored(saved);

        db::execute(u"DROP TRIGGER failing"_s);
        ASSERT_TRUE(save.save());
        ++saved;
        EXPECT_EQ(save.receipt.receiptNumber, u"0000%1"_s.arg(saved));
        expectStored(saved);
    }

    // An opened receipt whose new lines fail keeps its old ones and its customer.
    ReceiptSave edit = sampleSale(u"Renamed"_s);
    edit.payee.payeeID = 1;
    edit.receipt.receiptID = 1;
    edit.loadedNumber = u"00001"_s;
    edit.lines.removeFirst();
    db::execute(u"CREATE TRIGGER failing BEFORE INSERT ON tblReceipt_Product "
                "BEGIN SELECT RAISE(ABORT, 'disk full'); END"_s);
    EXPECT_THROW(edit.save(), BriskoError);
    EXPECT_EQ(linesOf(1).size(), 3);
    EXPECT_EQ(
        db::readFirst(u"SELECT payeeName FROM tblPayee WHERE payeeID = 1"_s)->text(u"payeeName"_s),
        u"Customer 0"_s);
    expectStored(saved);
    EXPECT_TRUE(boxes().shown.isEmpty()) << "no box while the file is held";
    EXPECT_TRUE(integrityOk());
}

TEST_F(ReceiptSaveTest, AnUnusableNumberFormatEndsTheProgramBeforeAnyWrite) {
    company().numberFormat = u"00000"_s;
    ReceiptSave save = sampleSale(u"Dana"_s);
    EXPECT_FALSE(save.save());
    EXPECT_EQ(boxes().lines(),
              QStringList{u"Error | Invalid receipt number format:  00000.  This program can "
                          "not continue | Critical"_s});
    EXPECT_EQ(process().endProgramCalls, 1);
    EXPECT_EQ(tally(), u"0 0 0 0"_s);
}

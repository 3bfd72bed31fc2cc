#include "receipttestbase.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kGiveUpText = u"Could not lock database to get next receipt number.  "
                            "Giving up after three tries."_s;

} // namespace

using ReceiptNumberingTest = ReceiptTest;

TEST_F(ReceiptNumberingTest, YearRowsStoreTheNumberBeforeTheStart) {
    Receipt receipt;
    EXPECT_EQ(receipt.GetLastReceiptNumber(), -1);
    EXPECT_TRUE(receipt.checkForYearChange(u"13"_s));
    ASSERT_TRUE(receipt.createReceiptYear(u"13"_s, u"1"_s));
    ASSERT_TRUE(receipt.createReceiptYear(u"14"_s, u"500"_s));
    ASSERT_TRUE(receipt.createReceiptYear(u"09"_s, u"900"_s));
    EXPECT_FALSE(receipt.checkForYearChange(u"13"_s));
    EXPECT_EQ(lastNumberUsed(u"13"_s), 0);
    EXPECT_EQ(lastNumberUsed(u"14"_s), 499);
    // The last number is that of the highest year text.
    EXPECT_EQ(receipt.GetLastReceiptNumber(), 499);

    EXPECT_EQ(receipt.getNextReceiptNumber(u"13"_s), 1);
    EXPECT_EQ(receipt.getNextReceiptNumber(u"14"_s), 500);
    EXPECT_EQ(receipt.getNextReceiptNumber(u"99"_s), -1); // no such year: nothing changes
    EXPECT_EQ(lastNumberUsed(u"13"_s), 1);

    EXPECT_EQ(errorOf([&] { receipt.createReceiptYear(u"16"_s, u"many"_s); }).description(),
              u"Receipt.createReceiptYear:  Type mismatch"_s);
}

// The save of a receipt takes its number and writes the receipt in one go.
TEST_F(ReceiptNumberingTest, NumberingJoinsTheCallersTransaction) {
    Receipt receipt;
    receipt.createReceiptYear(u"13"_s, u"1"_s);
    {
        db::Transaction transaction;
        EXPECT_EQ(receipt.getNextReceiptNumber(u"13"_s), 1);
        EXPECT_EQ(receipt.GetLastReceiptNumber(), 1);
        // Left without commit: the number goes back with everything else.
    }
    EXPECT_EQ(lastNumberUsed(u"13"_s), 0);

    shareDatabase();
    {
        db::Transaction transaction;
        Receipt saving =
            issuedReceipt(QString::number(receipt.getNextReceiptNumber(u"13"_s)), at(2013, 10, 25));
        saving.writeReceipt();
        transaction.commit();
    }
    EXPECT_EQ(receipt.GetLastReceiptNumber(), 1);
    EXPECT_TRUE(Receipt().GetReceipt(0, u"1"_s));
    EXPECT_FALSE(QFile::exists(lockFile()));
}

TEST_F(ReceiptNumberingTest, LocalDatabaseNeverTouchesTheLockFile) {
    session().shareFileLocation = databasePath();
    Receipt receipt;
    receipt.createReceiptYear(u"13"_s, u"1"_s);
    EXPECT_EQ(receipt.getNextReceiptNumber(u"13"_s), 1);
    EXPECT_EQ(receipt.GetLastReceiptNumber(), 1);
    EXPECT_FALSE(QFile::exists(lockFile()));

    // A lock left on the share is no business of a local database: no wait, no removal.
    QFile(lockFile()).open(QIODevice::WriteOnly);
    EXPECT_EQ(receipt.getNextReceiptNumber(u"13"_s), 2);
    EXPECT_TRUE(QFile::exists(lockFile()));
}

// A failure while the lock is held leaves it for the user to remove by hand.
TEST_F(ReceiptNumberingTest, FailureAfterTakingTheLockLeavesIt) {
    shareDatabase();
    db::execute(u"DROP TABLE tblReceiptNumbering"_s);
    const BriskoError error = errorOf([] { Receipt().getNextReceiptNumber(u"13"_s); });
    EXPECT_EQ(error.description(),
              u"Receipt.getNextReceiptNumber:  no such table: tblReceiptNumbering"_s);
    EXPECT_TRUE(QFile::exists(lockFile()));
}

// The one test that waits out the lock: four looks in three seconds.
TEST_F(ReceiptNumberingTest, LockLeftBehindMakesTheNextTakeGiveUp) {
    shareDatabase();
    Receipt receipt;
    receipt.createReceiptYear(u"13"_s, u"5"_s);
    ASSERT_TRUE(QFile(lockFile()).open(QIODevice::WriteOnly));

    const BriskoError error = errorOf([&] { receipt.getNextReceiptNumber(u"13"_s); });
    EXPECT_EQ(error.number(), -10001);
    EXPECT_EQ(error.description(), u"Receipt.getNextReceiptNumber:  "_s + kGiveUpText);
    EXPECT_EQ(lastNumberUsed(u"13"_s), 4);
    EXPECT_TRUE(QFile::exists(lockFile()));
}

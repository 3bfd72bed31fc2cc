#include "receipttestbase.h"

#include <QProcess>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

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

// A local database never touches the share's lock; the save of a receipt
// takes its number and writes the receipt in one go.
TEST_F(ReceiptNumberingTest, LocalNumberingIgnoresTheLockAndJoinsTheCallersTransaction) {
    Receipt receipt;
    receipt.createReceiptYear(u"13"_s, u"1"_s);
    session().shareFileLocation = databasePath();
    {
        db::Transaction transaction;
        EXPECT_EQ(receipt.getNextReceiptNumber(u"13"_s), 1);
        EXPECT_EQ(receipt.GetLastReceiptNumber(), 1);
        // Left without commit: the number goes back with everything else.
    }
    EXPECT_EQ(lastNumberUsed(u"13"_s), 0);
    EXPECT_FALSE(QFile::exists(lockFile()));
    QFile(lockFile()).open(QIODevice::WriteOnly);
    EXPECT_EQ(receipt.getNextReceiptNumber(u"13"_s), 1);
    EXPECT_TRUE(QFile::exists(lockFile())) << "a local database neither waits nor removes it";
    ASSERT_TRUE(QFile::remove(lockFile()));
    db::execute(u"UPDATE tblReceiptNumbering SET lastNumberUsed = 0"_s);

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

// The one test that waits out the lock: four looks in three seconds. A
// failure while the lock is held leaves it for the user to remove by hand.
TEST_F(ReceiptNumberingTest, LockLeftBehindMakesTheNextTakeGiveUpAndAFailureLeavesIt) {
    shareDatabase();
    Receipt receipt;
    receipt.createReceiptYear(u"13"_s, u"5"_s);
    ASSERT_TRUE(QFile(lockFile()).open(QIODevice::WriteOnly));

    const BriskoError error = errorOf([&] { receipt.getNextReceiptNumber(u"13"_s); });
    EXPECT_EQ(error.number(), -10001);
    EXPECT_EQ(error.description(),
              u"Receipt.getNextReceiptNumber:  Could not lock database to get next receipt "
              u"number.  Giving up after three tries."_s);
    EXPECT_EQ(lastNumberUsed(u"13"_s), 4);
    ASSERT_TRUE(QFile::remove(lockFile()));

    db::execute(u"DROP TABLE tblReceiptNumbering"_s);
    EXPECT_EQ(errorOf([] { Receipt().getNextReceiptNumber(u"13"_s); }).description(),
              u"Receipt.getNextReceiptNumber:  no such table: tblReceiptNumbering"_s);
    EXPECT_TRUE(QFile::exists(lockFile()));
}

// Four machines on one share take numbers at the same time: each number is
// taken once, none is lost, and the counter ends at the total.
TEST_F(ReceiptNumberingTest, ConcurrentTakersNeverShareANumber) {
    constexpr int kTakers = 4;
    constexpr int kEach = 15;
    Receipt().createReceiptYear(u"13"_s, u"1"_s);

    QProcess takers[kTakers];
    for (QProcess &taker : takers)
        taker.start(QString::fromUtf8(BRISKO_NUMBERTAKER),
                    {databasePath(), u"13"_s, QString::number(kEach)});
    QList<int> numbers, expected(kTakers * kEach);
    for (QProcess &taker : takers) {
        ASSERT_TRUE(taker.waitForFinished(120000));
        EXPECT_EQ(taker.exitCode(), 0) << taker.readAllStandardError().toStdString();
        const QStringList lines =
            QString::fromUtf8(taker.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        EXPECT_EQ(lines.size(), kEach);
        for (const QString &line : lines)
            numbers.append(line.toInt());
    }
    std::sort(numbers.begin(), numbers.end());
    std::iota(expected.begin(), expected.end(), 1);
    EXPECT_EQ(numbers, expected);
    EXPECT_EQ(lastNumberUsed(u"13"_s), kTakers * kEach);
    EXPECT_FALSE(QFile::exists(lockFile()));
}

#include "app/database.h"
#include "app/schema.h"
#include "app/session.h"
#include "support/briskotest.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

using namespace Qt::Literals::StringLiterals;

namespace {

class DatabaseTest : public BriskoTest {
protected:
    static qint64 payeeCount() {
        return db::readFirst(u"SELECT COUNT(*) AS n FROM tblPayee"_s)->value(u"n"_s).toLongLong();
    }
};

TEST_F(DatabaseTest, InsertLearnsKeysWritesCountRowsAndMoneyAndDatesAreExact) {
    EXPECT_EQ(addPayee(u"Ann"_s), 1);
    EXPECT_EQ(addPayee(u"O'Brien"_s), 2);
    EXPECT_EQ(db::execute(u"UPDATE tblPayee SET city = ? WHERE payeeID > ?"_s, {u"Leeds"_s, 0}), 2);
    const auto row =
        db::readFirst(u"SELECT payeeName FROM tblPayee WHERE payeeName = ?"_s, {u"O'Brien"_s});
    ASSERT_TRUE(row);
    EXPECT_EQ(row->text(u"payeeName"_s), u"O'Brien"_s);
    // Machines share the file, so it keeps the classic rollback journal.
    EXPECT_EQ(db::readFirst(u"PRAGMA journal_mode"_s)->text(u"journal_mode"_s), u"delete"_s);

    const QDateTime afternoon(QDate(2013, 10, 25), QTime(14, 5, 9));
    db::execute(u"INSERT INTO tblReceipt (amountDue, receiptDate) VALUES (?, ?)"_s,
                {Currency::fromText(u"3.75"_s), afternoon});
    const auto receipt = db::readFirst(
        u"SELECT amountDue, typeof(amountDue) AS kind, receiptDate FROM tblReceipt"_s);
    EXPECT_EQ(receipt->value(u"amountDue"_s).toLongLong(), 37500);
    EXPECT_EQ(receipt->text(u"kind"_s), u"integer"_s);
    EXPECT_EQ(receipt->text(u"receiptDate"_s), u"2013-10-25 14:05:09"_s);
    EXPECT_EQ(receipt->currency(u"amountDue"_s), Currency::fromText(u"3.75"_s));
    EXPECT_EQ(receipt->dateTime(u"receiptDate"_s), afternoon);
}

TEST_F(DatabaseTest, FailuresSayWhatWentWrongAndAMissingFileIsNotCreated) {
    addPayee(u"Ann"_s);
    const auto row = db::readFirst(u"SELECT city FROM tblPayee"_s);
    const BriskoError error = errorOf([&] { row->text(u"city"_s); });
    EXPECT_EQ(error.number(), RuntimeError::InvalidUseOfNull);
    EXPECT_EQ(error.description(), u"Invalid use of Null"_s);
    EXPECT_EQ(row->textOr(u"city"_s, u"none"_s), u"none"_s);

    const BriskoError typo = errorOf([&] { row->textOr(u"cty"_s, u"none"_s); });
    EXPECT_EQ(typo.number(), RuntimeError::NoSuchColumn);
    EXPECT_EQ(typo.description(), u"Programming error: the row has no column named 'cty'."_s);

    // Failures carry the engine's text and a missing file is not created.
    EXPECT_EQ(errorOf([] { db::execute(u"SELECT * FROM tblNothing"_s); }).description(),
              u"no such table: tblNothing"_s);
    const QString missing = tempPath(u"gone.db"_s);
    setConnectionString(missing);
    EXPECT_FALSE(errorOf([] { db::select(u"SELECT * FROM tblSystem"_s); }).description().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(missing));
}

TEST_F(DatabaseTest, TheOpenConnectionHoldsNoLockAndFollowsTheFile) {
    addPayee(u"Ann"_s);
    ASSERT_TRUE(db::readFirst(u"SELECT payeeName FROM tblPayee"_s));
    {
        // Another machine may take the whole file at once between two statements.
        QSqlDatabase other = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"other machine"_s);
        other.setDatabaseName(databasePath());
        other.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=0"_s);
        ASSERT_TRUE(other.open());
        QSqlQuery query(other);
        EXPECT_TRUE(query.exec(u"BEGIN EXCLUSIVE"_s)) << query.lastError().text().toStdString();
        EXPECT_TRUE(query.exec(u"COMMIT"_s));
    }
    QSqlDatabase::removeDatabase(u"other machine"_s);

    const QString second = tempPath(u"second.db"_s);
    Schema::createDatabase(second);
    setConnectionString(second);
    EXPECT_EQ(payeeCount(), 0);
    addPayee(u"Zed"_s);

    // A file copied over the session's own is read once the connection is closed.
    setConnectionString(databasePath());
    EXPECT_EQ(payeeCount(), 1);
    db::closeConnection();
    ASSERT_TRUE(QFile::remove(databasePath()));
    ASSERT_TRUE(QFile::copy(second, databasePath()));
    EXPECT_EQ(db::readFirst(u"SELECT payeeName FROM tblPayee"_s)->text(u"payeeName"_s), u"Zed"_s);
}

TEST_F(DatabaseTest, TransactionCommitsTogetherOrNotAtAll) {
    {
        db::Transaction transaction;
        addPayee(u"Ann"_s);
        EXPECT_EQ(payeeCount(), 1); // seen inside before the commit
    }
    EXPECT_EQ(payeeCount(), 0);
    {
        db::Transaction transaction;
        addPayee(u"Ann"_s);
        db::Transaction inner; // joins the outer one
        addPayee(u"Bob"_s);
        inner.commit();
        transaction.commit();
    }
    EXPECT_EQ(payeeCount(), 2);
}

TEST_F(DatabaseTest, ANewDatabaseHoldsTheSeedRows) {
    QStringList seeds;
    for (const db::Row &row : db::select(u"SELECT methodName FROM tblPayMethod WHERE "
                                         u"payMethodStatus = 1 ORDER BY payMethodID"_s))
        seeds << row.text(u"methodName"_s);
    EXPECT_EQ(seeds, QStringList(
                         {u"Cash"_s, u"Check"_s, u"Credit Card"_s, u"PayPal"_s, u"Money Order"_s}));
    const auto system = db::readFirst(u"SELECT dbVersion, numberFormat FROM tblSystem"_s);
    EXPECT_EQ(system->text(u"dbVersion"_s), u"4.2.5"_s);
    EXPECT_EQ(system->text(u"numberFormat"_s), u"[00000]"_s);
    EXPECT_TRUE(db::select(u"SELECT * FROM tblReceiptNumbering"_s).isEmpty());
}

} // namespace

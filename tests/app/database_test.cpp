#include "app/briskoerror.h"
#include "app/database.h"
#include "app/schema.h"
#include "app/session.h"
#include "support/briskotest.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

class DatabaseTest : public BriskoTest {
protected:
    qint64 addPayee(const QString &name)
    {
        return db::insertReturningKey(
            u"INSERT INTO tblPayee (payeeName) VALUES (?) RETURNING payeeID"_s, {name});
    }

    qint64 payeeCount()
    {
        return db::readFirst(u"SELECT COUNT(*) AS n FROM tblPayee"_s)->value(u"n"_s).toLongLong();
    }
};

TEST_F(DatabaseTest, InsertLearnsEachNewKeyAndWritesCountTheirRows)
{
    EXPECT_EQ(addPayee(u"Ann"_s), 1);
    EXPECT_EQ(addPayee(u"O'Brien"_s), 2);
    EXPECT_EQ(db::execute(u"UPDATE tblPayee SET city = ? WHERE payeeID > ?"_s, {u"Leeds"_s, 0}),
              2);
    const auto row =
        db::readFirst(u"SELECT payeeName FROM tblPayee WHERE payeeName = ?"_s, {u"O'Brien"_s});
    ASSERT_TRUE(row);
    EXPECT_EQ(row->text(u"payeeName"_s), u"O'Brien"_s);
}

TEST_F(DatabaseTest, MoneyAndDatesAreStoredExactly)
{
    db::execute(u"INSERT INTO tblReceipt (amountDue, receiptDate) VALUES (?, ?)"_s,
                {Currency::fromText(u"3.75"_s), QDateTime(QDate(2013, 10, 25), QTime(14, 5, 9))});
    const auto row = db::readFirst(
        u"SELECT amountDue, typeof(amountDue) AS kind, receiptDate FROM tblReceipt"_s);
    EXPECT_EQ(row->value(u"amountDue"_s).toLongLong(), 37500);
    EXPECT_EQ(row->text(u"kind"_s), u"integer"_s);
    EXPECT_EQ(row->text(u"receiptDate"_s), u"2013-10-25 14:05:09"_s);
    EXPECT_EQ(row->currency(u"amountDue"_s), Currency::fromText(u"3.75"_s));
    EXPECT_EQ(row->dateTime(u"receiptDate"_s), QDateTime(QDate(2013, 10, 25), QTime(14, 5, 9)));
}

TEST_F(DatabaseTest, ReadingANullAsAValueFailsTheRuntimeWay)
{
    addPayee(u"Ann"_s);
    const auto row = db::readFirst(u"SELECT city FROM tblPayee"_s);
    try {
        row->text(u"city"_s);
        FAIL() << "a Null was read as text";
    } catch (const BriskoError &error) {
        EXPECT_EQ(error.number(), 94);
        EXPECT_EQ(error.description(), u"Invalid use of Null"_s);
    }
    EXPECT_EQ(row->textOr(u"city"_s, u"none"_s), u"none"_s);
}

TEST_F(DatabaseTest, SnapshotWalksEveryRowAfterTheConnectionClosed)
{
    addPayee(u"Ann"_s);
    addPayee(u"Bob"_s);
    db::Snapshot rows = db::select(u"SELECT payeeName FROM tblPayee ORDER BY payeeName"_s);
    QStringList names;
    for (; !rows.eof(); rows.moveNext())
        names << rows.current().text(u"payeeName"_s);
    EXPECT_EQ(names, QStringList({u"Ann"_s, u"Bob"_s}));
}

TEST_F(DatabaseTest, AFailingStatementCarriesTheEnginesText)
{
    try {
        db::execute(u"SELECT * FROM tblNothing"_s);
        FAIL() << "a bad statement ran";
    } catch (const BriskoError &error) {
        EXPECT_EQ(error.description(), u"no such table: tblNothing"_s);
        EXPECT_EQ(error.withPrefix(u"Receipt.writeReceipt:  "_s).description(),
                  u"Receipt.writeReceipt:  no such table: tblNothing"_s);
    }
}

TEST_F(DatabaseTest, AMissingFileIsAnErrorAndIsNotCreated)
{
    const QString missing = tempPath(u"gone.db"_s);
    setConnectionString(missing);
    EXPECT_THROW(db::select(u"SELECT * FROM tblSystem"_s), BriskoError);
    EXPECT_FALSE(QFileInfo::exists(missing));
}

TEST_F(DatabaseTest, TransactionCommitsTogetherOrNotAtAll)
{
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

TEST_F(DatabaseTest, TheFileKeepsTheClassicJournalForSharing)
{
    EXPECT_EQ(db::readFirst(u"PRAGMA journal_mode"_s)->text(u"journal_mode"_s), u"delete"_s);
}

} // namespace

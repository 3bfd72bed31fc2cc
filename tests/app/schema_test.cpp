#include "app/database.h"
#include "app/schema.h"
#include "app/session.h"
#include "support/briskotest.h"

#include <QDate>

using namespace Qt::Literals::StringLiterals;

namespace {

using SchemaTest = BriskoTest;

QStringList column(const QString &sql, const QString &name)
{
    QStringList values;
    for (const db::Row &row : db::select(sql))
        values << row.value(name).toString();
    return values;
}

TEST_F(SchemaTest, ANewDatabaseHoldsTheSeedRowsAtTheCurrentVersion)
{
    EXPECT_EQ(column(u"SELECT dbVersion FROM tblSystem"_s, u"dbVersion"_s),
              QStringList{u"4.2.5"_s});
    EXPECT_EQ(column(u"SELECT statusName FROM tblStatus ORDER BY statusID"_s, u"statusName"_s),
              QStringList({u"Issued"_s, u"Void"_s}));
    EXPECT_EQ(column(u"SELECT payMethodID || ' ' || methodName AS m FROM tblPayMethod "
                     u"WHERE payMethodStatus = 1 ORDER BY payMethodID"_s,
                     u"m"_s),
              QStringList({u"1 Cash"_s, u"2 Check"_s, u"3 Credit Card"_s, u"4 PayPal"_s,
                           u"5 Money Order"_s}));
    EXPECT_TRUE(db::select(u"SELECT * FROM tblReceiptNumbering"_s).isEmpty());
}

TEST_F(SchemaTest, TheDeliveredDatabaseAlreadyNumbersThisYear)
{
    const QString path = tempPath(u"data/bdesk.db"_s);
    Schema::createDeliveredDatabase(path);
    setConnectionString(path);
    const QString year = QString::number(QDate::currentDate().year()).right(2);
    EXPECT_EQ(column(u"SELECT receiptYear || ':' || lastNumberUsed AS y FROM tblReceiptNumbering"_s,
                     u"y"_s),
              QStringList{year + u":0"_s});
}

TEST_F(SchemaTest, CustomerNamePrefixSearchUsesItsIndex)
{
    const db::Snapshot plan = db::select(
        u"EXPLAIN QUERY PLAN SELECT * FROM tblPayee WHERE payeeName LIKE 'smi%'"_s);
    ASSERT_FALSE(plan.isEmpty());
    EXPECT_TRUE(plan.at(0).text(u"detail"_s).contains(u"idxPayeeName"_s))
        << plan.at(0).text(u"detail"_s).toStdString();
}

} // namespace

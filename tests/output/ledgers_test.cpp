// The ledgers over a date range: exactly the rows in it, totals that match SQL.
#include "reportoutputtest.h"

#include "output/modreports.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

class LedgersTest : public ReportOutputTest {
protected:
    void SetUp() override {
        ReportOutputTest::SetUp();
        delivery().answers = {{u"startDate"_s, QDate(2026, 3, 1)},
                              {u"endDate"_s, QDate(2026, 3, 31)}};
    }

    // Receipts on each day from Feb 26 to Apr 3, one void among them.
    void addMonthOfSales() {
        const qint32 payee = addCustomer(u"Sam Ito"_s);
        db::Transaction transaction;
        for (QDate day(2026, 2, 26); day <= QDate(2026, 4, 3); day = day.addDays(1)) {
            for (int hour : {9, 23}) {
                db::execute(
                    u"INSERT INTO tblReceipt (receiptNumber, receiptDate, payeeID, amountDue, "
                    "amountReceived, balanceRemaining, amountTax, amountOther, "
                    "amountDiscount, status, receiptType) "
                    "VALUES (?, ?, ?, ?, ?, 0, 1000, 0, 0, ?, 0)"_s,
                    {day.toString(u"MMdd"_s) + QString::number(hour),
                     QDateTime(day, QTime(hour, 59, 59)), payee,
                     Currency::fromInt(day.day() + hour),
                     Currency::fromInt(day.day() + hour) + Currency::fromUnits(1000),
                     day == QDate(2026, 3, 10) && hour == 9 ? 2 : 1});
            }
        }
        transaction.commit();
    }

    static QString money(qint64 units) {
        return u"$"_s + QLocale(QLocale::English).toString(units / 10000.0, 'f', 2);
    }
};

// Exactly the range without the void one, totals as SQL sums them, and on
// every page the column heads and "Page n of m".
TEST_F(LedgersTest, ReceiptLedgerListsTheRangeTotalsAsSqlDoesAndNumbersItsPages) {
    addMonthOfSales();
    modReports::printLedger(0, modReports::ScreenMode, {}, {}, {});

    ASSERT_EQ(delivery().asked, QStringList{u"Receipt Ledger"_s});
    const QString text = deliveredText();
    static const QRegularExpression listed(u"^\\s*(\\d\\d/\\d\\d/\\d{4})\\s+(\\d+)"_s,
                                           QRegularExpression::MultilineOption);
    QStringList numbers;
    for (const QRegularExpressionMatch &match : listed.globalMatch(text)) {
        EXPECT_TRUE(match.captured(1).startsWith(u"03/"_s)) << match.captured(0).toStdString();
        numbers.append(match.captured(2));
    }
    EXPECT_EQ(numbers.size(), 31 * 2 - 1);
    EXPECT_TRUE(numbers.contains(u"033123"_s));
    EXPECT_FALSE(numbers.contains(u"03109"_s));
    const qint64 total =
        db::readFirst(
            u"SELECT SUM(amountDue + amountTax + amountOther - amountDiscount) AS total FROM "
            u"tblReceipt "
            "WHERE receiptDate >= '2026-03-01' AND receiptDate < '2026-04-01' AND status = 1"_s)
            ->value(u"total"_s)
            .toLongLong();
    EXPECT_TRUE(text.simplified().contains(u"Total (61 listed) "_s + money(total)))
        << money(total).toStdString();
    EXPECT_TRUE(text.contains(u"03/01/2026 to 03/31/2026"_s));

    const qsizetype pageCount = delivery().delivered.last().report.pages.size();
    ASSERT_GE(pageCount, 2);
    const QStringList pages = text.split(u'\f', Qt::SkipEmptyParts);
    for (qsizetype index = 0; index < pageCount; ++index) {
        EXPECT_TRUE(pages[index].contains(u"Receipt No."_s)) << "page " << index + 1;
        EXPECT_TRUE(pages[index].contains(u"Page %1 of %2"_s.arg(index + 1).arg(pageCount)));
    }
}

TEST_F(LedgersTest, EveryLedgerRendersWithItsTitle) {
    const qint32 payee = addCustomer(u"Ida"_s);
    addProductReceipt(u"L1"_s, QDateTime(QDate(2026, 3, 5), QTime(10, 0)), payee,
                      {{u"CH-1"_s, u"Chisel"_s, 2, 12.5}, {u"MA-2"_s, u"Mallet"_s, 1, 20}});
    addProductReceipt(u"L2"_s, QDateTime(QDate(2026, 3, 6), QTime(10, 0)), payee,
                      {{u"CH-1b"_s, u"Chisel"_s, 1, 12.5}});
    const struct {
        qint16 type;
        const char16_t *title;
        const char16_t *holds;
    } cases[] = {{1, u"Inventory Sold Ledger", u"Chisel 2 $25.00"},
                 {2, u"Service Ledger", u"Total (0 listed) $0.00"},
                 {6, u"Service Breakdown Report", u"Grand Total"},
                 {7, u"Inventory Sold Detail Ledger", u"Total for MA-2 1 $20.00"}};
    for (const auto &c : cases) {
        modReports::printLedger(c.type, modReports::ScreenMode, {}, {}, {});
        EXPECT_EQ(delivery().delivered.last().report.title, QString::fromUtf16(c.title));
        const QString text = deliveredText().simplified();
        EXPECT_TRUE(text.contains(QString::fromUtf16(c.holds))) << text.toStdString();
    }
    EXPECT_TRUE(boxes().shown.isEmpty()) << boxes().lines().join(u'\n').toStdString();
}

TEST_F(LedgersTest, UnknownTypeAndCancelledQuestions) {
    modReports::printLedger(4, modReports::ScreenMode, {}, {}, {});
    ASSERT_EQ(boxes().shown.size(), 1);
    EXPECT_TRUE(
        boxes().shown[0].text.startsWith(u"An error occured while printing the receipt:  "_s));

    delivery().cancel = true;
    modReports::printLedger(0, modReports::ScreenMode, {}, {}, {});
    EXPECT_TRUE(delivery().delivered.isEmpty());
    EXPECT_EQ(boxes().shown.size(), 1);
}

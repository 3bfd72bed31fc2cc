// Today's and this month's sales on the main window, and the commands of
// their rows.

#include "mainwintestbase.h"

#include "app/company.h"
#include "app/runtimeformat.h"

#include <QAction>
#include <QMenu>
#include <QTest>

using namespace mainwintest;

namespace {

class ReceiptListsTest : public MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        smith = addPayee(u"Ann O'Smith"_s);
        window->show();
    }

    QTreeWidget *today() const { return list(*window, u"lstReceipts"_s); }
    QTreeWidget *month() const { return list(*window, u"lstMonth"_s); }
    QAction *entry(const char *name) const {
        return window->findChild<QAction *>(QString::fromLatin1(name));
    }

    qint32 smith = 0;
};

TEST_F(ReceiptListsTest, ListsShowTheSalesColumnsFormatsAndTags) {
    const QDateTime midnight(QDate::currentDate(), QTime(0, 0));
    const qint32 partlyPaid =
        addReceipt(u"0002"_s, midnight, smith, money("60"), money("40"), Receipt::ServiceReceipt);
    const qint32 onAccount =
        addReceipt(u"0001"_s, midnight, smith, money("50"), money("-50"), Receipt::AccountPayment);
    const qint32 large = addReceipt(u"0003"_s, midnight, smith, money("1234.5"), money("0"));
    const qint32 nothing = addReceipt(u"0004"_s, midnight, smith, money("0"), money("0"));
    const qint32 voided = addReceipt(u"0005"_s, midnight, smith, money("10"), money("0"),
                                     Receipt::ProductReceipt, Receipt::Void);
    addReceipt(u"0006"_s, midnight, smith, money("0"), money("75"), Receipt::OpeningBalance);

    window->refreshLists();

    QStringList headers;
    for (int column = 0; column < today()->columnCount(); ++column)
        headers.append(today()->headerItem()->text(column));
    EXPECT_EQ(headers, (QStringList{u"Date"_s, u"Receipt No."_s, u"Customer Name"_s, u"Total"_s,
                                    u"Rcvd"_s, u"Status"_s}));

    const QString date = Runtime::generalDate(midnight);
    ASSERT_EQ(today()->topLevelItemCount(), 5) << "the opening balance is not a sale";
    EXPECT_EQ(rowTexts(today(), 0), (QStringList{date, u"0001"_s, u"Ann O'Smith"_s, u"50.00"_s,
                                                 u"50.00"_s, u"Issued"_s}));
    EXPECT_EQ(rowTexts(today(), 1), (QStringList{date, u"0002"_s, u"Ann O'Smith"_s, u"100.00"_s,
                                                 u"60.00"_s, u"Issued"_s}));
    EXPECT_EQ(rowTexts(today(), 2)[3], u"1,234.50"_s);
    EXPECT_EQ(rowTexts(today(), 3)[3], u".00"_s);
    EXPECT_EQ(rowTexts(today(), 3)[4], u".00"_s);
    EXPECT_EQ(rowTexts(today(), 4)[5], u"Void"_s);
    const QList<qint32> tags = {rowTag(today(), 0), rowTag(today(), 1), rowTag(today(), 2),
                                rowTag(today(), 3), rowTag(today(), 4)};
    EXPECT_EQ(tags, (QList<qint32>{onAccount, partlyPaid, large, nothing, voided}));
    EXPECT_EQ(today()->topLevelItem(0)->textAlignment(3) & Qt::AlignRight, Qt::AlignRight);
    EXPECT_EQ(today()->topLevelItem(0)->textAlignment(4) & Qt::AlignRight, Qt::AlignRight);

    ASSERT_EQ(month()->topLevelItemCount(), 5);
    EXPECT_EQ(rowTexts(month(), 1), rowTexts(today(), 1));
    EXPECT_TRUE(boxes().shown.isEmpty());
}

TEST_F(ReceiptListsTest, MonthRunsFromItsFirstDayToTodayAtMidnight) {
    const QDate todayDate = QDate::currentDate();
    const QDate firstDay(todayDate.year(), todayDate.month(), 1);
    addReceipt(u"LAST"_s, QDateTime(firstDay.addDays(-1), QTime(0, 0)), smith, money("1"));
    addReceipt(u"FIRST"_s, QDateTime(firstDay, QTime(0, 0)), smith, money("2"));
    addReceipt(u"TODAY"_s, todayAtMidnight(), smith, money("3"));
    // The end of the range is today at midnight: a later time of day is out.
    addReceipt(u"LATER"_s, QDateTime(todayDate, QTime(9, 30)), smith, money("4"));
    window->refreshLists();

    QStringList monthNumbers;
    for (int row = 0; row < month()->topLevelItemCount(); ++row)
        monthNumbers.append(month()->topLevelItem(row)->text(1));
    EXPECT_EQ(monthNumbers, (QStringList{u"FIRST"_s, u"TODAY"_s}));

    // A time of day, where a row has one, shows in the date column.
    window->fillReceiptList(firstDay.addDays(-1), todayDate.addDays(1), today());
    EXPECT_EQ(today()->topLevelItem(3)->text(0), Runtime::shortDate(todayDate) + u" 9:30:00 AM"_s);
}

TEST_F(ReceiptListsTest, ReceiptWithoutItsCustomerEndsTheListWithTheNullError) {
    addReceipt(u"0001"_s, todayAtMidnight(), smith, money("5"));
    addReceipt(u"0002"_s, todayAtMidnight(), QVariant(), money("6"));
    addReceipt(u"0003"_s, todayAtMidnight(), smith, money("7"));

    window->refreshLists();

    ASSERT_EQ(today()->topLevelItemCount(), 1) << "the rows after the failing one stay out";
    EXPECT_EQ(today()->topLevelItem(0)->text(1), u"0001"_s);
    EXPECT_EQ(month()->topLevelItemCount(), 1);
    ASSERT_EQ(boxes().shown.size(), 2) << "one box for each list";
    EXPECT_EQ(boxes().lines()[0],
              u"Error | An error has occured:  Invalid use of Null | Critical"_s);
}

TEST_F(ReceiptListsTest, PopupCommandsAreEnabledOnlyOverAListWithRows) {
    window->refreshLists();
    EXPECT_EQ(month()->topLevelItemCount(), 0);
    rightClick(month(), -1);
    for (const char *name : {"mnuPrint", "mnuPrintPreview", "mnuEmail", "mnuView"})
        EXPECT_FALSE(entry(name)->isEnabled()) << name;
    auto *mnuItem = window->findChild<QMenu *>(u"mnuItem"_s);
    mnuItem->close();

    addReceipt(u"0001"_s, todayAtMidnight(), smith, money("5"));
    window->refreshLists();
    rightClick(today(), 0);
    for (const char *name : {"mnuPrint", "mnuPrintPreview", "mnuEmail", "mnuView"})
        EXPECT_TRUE(entry(name)->isEnabled()) << name;
    mnuItem->close();
}

// Work done while the receipt is open shows once it closes, on both lists.
TEST_F(ReceiptListsTest, DoubleClickOrViewShowsTheRowsReceiptAndReloadsBothLists) {
    window->refreshLists();
    doubleClick(today(), QPoint(20, 20)); // no rows: nothing to show
    EXPECT_TRUE(window->shownReceipts.isEmpty());

    const qint32 first = addReceipt(u"0001"_s, todayAtMidnight(), smith, money("5"));
    const qint32 second = addReceipt(u"0002"_s, todayAtMidnight(), smith, money("6"));
    window->refreshLists();
    window->whileShown = [&] { addReceipt(u"0003"_s, todayAtMidnight(), smith, money("7")); };
    doubleClick(month(), month()->visualItemRect(month()->topLevelItem(1)).center());
    EXPECT_EQ(window->shownReceipts, QList<qint32>{second});
    EXPECT_EQ(today()->topLevelItemCount(), 3);
    EXPECT_EQ(month()->topLevelItemCount(), 3);

    // View opens the selected row of the list the popup came from.
    window->whileShown = [&] {
        db::execute(u"DELETE FROM tblReceipt WHERE receiptID = ?"_s, {second});
    };
    rightClick(month(), 2);
    rightClick(today(), 0);
    entry("mnuView")->trigger();
    EXPECT_EQ(window->shownReceipts, (QList<qint32>{second, first}));
    EXPECT_EQ(today()->topLevelItemCount(), 2);
    EXPECT_EQ(month()->topLevelItemCount(), 2);
    EXPECT_TRUE(boxes().shown.isEmpty());
}

TEST_F(ReceiptListsTest, EmailWithoutAMailServerAsksForTheSettings) {
    addReceipt(u"0001"_s, todayAtMidnight(), smith, money("5"));
    window->refreshLists();
    company().mailServer.clear();
    rightClick(today(), 0);

    entry("mnuEmail")->trigger();

    EXPECT_EQ(boxes().lines(),
              QStringList(u"Email Settings Required | Your email settings have not been "
                          u"configured.  Please go to Options and click the Email tab to set up "
                          u"your outbound email | Exclamation"_s));
    EXPECT_TRUE(process().opened.isEmpty());
}

} // namespace

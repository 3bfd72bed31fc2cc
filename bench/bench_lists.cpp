// Times the queries a user waits for on a shop's database of some years:
// the main window's two sales lists and the customer name look-up that runs
// on every keystroke. Prints the median of several runs of each.
#include "app/database.h"
#include "app/runtimeformat.h"
#include "app/schema.h"
#include "app/session.h"
#include "receipts/receipt.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kCustomers = 5000;
constexpr int kReceipts = 100000; // about ten years of a busy counter
constexpr int kRuns = 15;

void fill() {
    db::Transaction transaction;
    for (int i = 0; i < kCustomers; ++i) {
        db::execute(u"INSERT INTO tblPayee (payeeName) VALUES (?)"_s,
                    {u"Customer %1"_s.arg(i, 5, 10, QChar(u'0'))});
    }
    const QDateTime now = QDateTime::currentDateTime();
    for (int i = 0; i < kReceipts; ++i) {
        db::execute(u"INSERT INTO tblReceipt (receiptNumber, receiptDate, payeeID, amountReceived, "
                    u"balanceRemaining, status, receiptType) VALUES (?, ?, ?, ?, 0, 1, 0)"_s,
                    {u"%1"_s.arg(i, 6, 10, QChar(u'0')), now.addSecs(-i * 3000LL),
                     1 + i % kCustomers, Currency::fromInt(10 + i % 90)});
    }
    transaction.commit();
}

double medianMilliseconds(const std::function<void()> &work) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void report(const char *what, double milliseconds) {
    std::printf("%-44s %8.2f ms\n", what, milliseconds);
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"bench.db"_s);
    Schema::createDatabase(path);
    setConnectionString(path);
    fill();

    const QDate today = QDate::currentDate();
    const QString todayText = Runtime::shortDate(today);
    const QString monthStart = Runtime::shortDate(QDate(today.year(), today.month(), 1));

    report("today's sales", medianMilliseconds([&] {
               Receipt().GetReceipts(todayText, todayText, 0, 0, {}, {}, false, false);
           }));
    report("this month's sales", medianMilliseconds([&] {
               Receipt().GetReceipts(monthStart, todayText, 0, 0, {}, {}, false, false);
           }));
    report("customer name look-up (one keystroke)", medianMilliseconds([] {
               db::select(u"SELECT * FROM tblPayee WHERE payeeName LIKE ?"_s, {u"customer 012%"_s});
           }));
    report("a customer's receipts", medianMilliseconds([] { Receipt().GetCustomerReceipts(42); }));
    return 0;
}

// Times the queries a user waits for on a shop of ten years: the main
// window's two sales lists, the customer name look-up that runs on every
// keystroke and the receipts of a customer with many. Each beside the same
// statement run on QtSql alone.
#include "app/database.h"
#include "app/runtimeformat.h"
#include "measure.h"
#include "receipts/receipt.h"
#include "shop.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kRuns = 15;

const QString kReceiptList = u"SELECT  R.*, P.payeeName, S.statusName FROM (tblReceipt AS R "
                             u"LEFT JOIN tblPayee AS P ON P.payeeID = R.payeeID) "
                             u"LEFT JOIN tblStatus AS S ON S.statusID = R.status "_s;

// A sales list of the main window, from `first` to `last`.
void salesList(const char *what, const benchshop::Shop &shop, const QDate &first,
               const QDate &last) {
    const double brisko = bench::medianMicroseconds(
        [&] {
            Receipt().GetReceipts(
                {.startDate = Runtime::shortDate(first), .endDate = Runtime::shortDate(last)});
        },
        kRuns);
    bench::RawStatement raw(shop.path, kReceiptList +
                                           u"WHERE R.receiptDate >= ?  AND R.receiptDate <= ?  "
                                           u"AND R.receiptType <> ? "
                                           u"ORDER BY R.receiptDate, R.receiptNumber"_s);
    const double baseline = bench::medianMicroseconds(
        [&] {
            raw.rows({db::dateText(first), db::dateText(last), Receipt::OpeningBalance});
        },
        kRuns);
    bench::printCase(what, brisko, baseline);
}

void nameLookUp(const benchshop::Shop &shop) {
    const QString sql = u"SELECT * FROM tblPayee WHERE payeeName LIKE ?"_s;
    const QString typed = u"ann o'brien 1%"_s;
    constexpr int kBatch = 200; // one call is too short to time alone
    const double brisko =
        bench::medianMicroseconds([&] { db::select(sql, {typed}); }, kRuns, kBatch);
    bench::RawStatement raw(shop.path, sql);
    const double baseline = bench::medianMicroseconds([&] { raw.rows({typed}); }, kRuns, kBatch);
    bench::printCase("customer name look-up (one keystroke)", brisko, baseline);
}

void customerReceipts(const benchshop::Shop &shop) {
    const double brisko = bench::medianMicroseconds(
        [&] { Receipt().GetCustomerReceipts(shop.busyCustomerID); }, kRuns);
    bench::RawStatement raw(
        shop.path, kReceiptList + u"WHERE R.payeeID = ? ORDER BY R.receiptDate, R.receiptNumber"_s);
    const double baseline =
        bench::medianMicroseconds([&] { raw.rows({shop.busyCustomerID}); }, kRuns);
    bench::printCase("receipts of a customer with 10,000", brisko, baseline);
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const benchshop::Shop shop = benchshop::openShop();
    const QDate &today = shop.today;

    bench::printHeader();
    salesList("today's sales", shop, today, today);
    salesList("this month's sales", shop, QDate(today.year(), today.month(), 1), today);
    nameLookUp(shop);
    customerReceipts(shop);
    return 0;
}

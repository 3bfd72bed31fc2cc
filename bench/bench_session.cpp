// Times the database session's own cost: a one-row read through db::readFirst
// beside the same statement prepared on an open connection with QtSql alone.
#include "app/database.h"
#include "measure.h"
#include "shop.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const benchshop::Shop shop = benchshop::openShop();
    const QString sql = u"SELECT * FROM tblPayee WHERE payeeID = ?"_s;
    constexpr int kRuns = 25;
    constexpr int kBatch = 2000;

    int key = 0;
    const auto nextKey = [&key] { return 1 + (key = (key + 7919) % benchshop::kCustomers); };
    const double brisko =
        bench::medianMicroseconds([&] { db::readFirst(sql, {nextKey()}); }, kRuns, kBatch);
    bench::RawStatement raw(shop.path, sql);
    const double baseline =
        bench::medianMicroseconds([&] { raw.rows({nextKey()}); }, kRuns, kBatch);

    bench::printHeader();
    bench::printCase("one-row read (a customer by key)", brisko, baseline);
    return 0;
}

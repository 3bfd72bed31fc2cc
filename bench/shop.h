#pragma once

#include <QDate>
#include <QString>

// The shop every benchmark measures against, at the scale of the speed
// targets: a hundred thousand customers and a million receipts over ten years.
// It is built once into the build tree's cache folder and kept between runs;
// it is built again when it is missing, when the schema has changed or when
// its own layout (kLayoutVersion) has.
namespace benchshop {

inline constexpr int kCustomers = 100000;
inline constexpr int kReceipts = 1000000;
inline constexpr int kYears = 10;
inline constexpr int kReceiptsToday = 300;
inline constexpr int kBusyCustomerReceipts = 10000;
inline constexpr int kProducts = 500;

struct Shop {
    QString path;
    QDate today;               // the day the shop was built; its newest receipts are dated so
    qint32 busyCustomerID = 0; // the customer with kBusyCustomerReceipts receipts
};

// Opens the shop, building it first when needed, and makes it the session's
// database. Says on stderr when it builds and how long that took.
Shop openShop();

} // namespace benchshop

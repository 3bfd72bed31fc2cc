#include "shop.h"

#include "app/currency.h"
#include "app/database.h"
#include "app/schema.h"
#include "app/session.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <array>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace benchshop {
namespace {

// Raise this whenever the shop's content changes, so that kept shops are rebuilt.
constexpr int kLayoutVersion = 1;
constexpr qint32 kBusyCustomerID = 1;

QString cacheFolder() {
    return QString::fromUtf8(BRISKO_BENCH_CACHE);
}

// What the shop was built from: its layout and the text of every table and
// index a new database gets today.
QByteArray fingerprint() {
    QTemporaryDir scratch;
    const QString path = scratch.filePath(u"schema.db"_s);
    Schema::createDatabase(path);
    db::Transaction reading(path);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QByteArray::number(kLayoutVersion));
    for (const db::Row &row : db::select(u"SELECT sql FROM sqlite_master ORDER BY name"_s))
        hash.addData(row.textOr(u"sql"_s, {}).toUtf8());
    return hash.result().toHex();
}

// The stamp beside the shop: its fingerprint and the day it was built.
struct Stamp {
    QByteArray fingerprint;
    QDate builtOn;
};

QString stampPath(const QString &shopPath) {
    return shopPath + u".stamp"_s;
}

Stamp readStamp(const QString &shopPath) {
    QFile file(stampPath(shopPath));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QList<QByteArray> parts = file.readAll().trimmed().split(' ');
    if (parts.size() != 2)
        return {};
    return {parts.at(0), QDate::fromString(QString::fromLatin1(parts.at(1)), Qt::ISODate)};
}

void writeStamp(const QString &shopPath, const Stamp &stamp) {
    QFile file(stampPath(shopPath));
    if (file.open(QIODevice::WriteOnly))
        file.write(stamp.fingerprint + ' ' + stamp.builtOn.toString(Qt::ISODate).toLatin1());
}

const std::array<const char *, 40> kFirstNames = {
    "Ann",   "Bob",    "Carla", "David",  "Eve",   "Frank", "Grace",  "Hugo",  "Ines",  "Jack",
    "Kira",  "Liam",   "Maya",  "Noah",   "Olga",  "Paul",  "Quinn",  "Rosa",  "Sam",   "Tara",
    "Uma",   "Victor", "Wendy", "Xavier", "Yara",  "Zane",  "Amelie", "Bruno", "Chloe", "Dmitri",
    "Elena", "Felix",  "Gita",  "Hans",   "Irene", "Jonas", "Karin",  "Lucas", "Mona",  "Nils"};
const std::array<const char *, 50> kLastNames = {
    "Smith",    "O'Brien", "Garcia", "Müller", "Rossi",   "Nowak",  "Jensen", "Dubois",  "Silva",
    "Kowalski", "Novak",   "Horvat", "Larsen", "Fischer", "Weber",  "Martin", "Bernard", "Moreau",
    "Romano",   "Costa",   "Santos", "Kim",    "Lee",     "Park",   "Chen",   "Wang",    "Singh",
    "Patel",    "Khan",    "Ali",    "Cohen",  "Levi",    "Murphy", "Kelly",  "Walsh",   "Byrne",
    "Taylor",   "Brown",   "Wilson", "Evans",  "Thomas",  "Jones",  "Davies", "Roberts", "Hughes",
    "Green",    "Hall",    "Wood",   "Clarke", "Young"};

QString customerName(int index) {
    const int first = index % int(kFirstNames.size());
    const int last = (index / int(kFirstNames.size())) % int(kLastNames.size());
    return QString::fromUtf8(kFirstNames[first]) + u' ' + QString::fromUtf8(kLastNames[last]) +
           u' ' + QString::number(index / 2000 + 1);
}

void insertCustomers() {
    for (int index = 0; index < kCustomers; ++index) {
        db::execute(u"INSERT INTO tblPayee (payeeName, address1, address2, city, state, zip, "
                    u"phone, email) VALUES (?, ?, '', ?, ?, ?, ?, ?)"_s,
                    {customerName(index), u"%1 High Street"_s.arg(index % 300 + 1),
                     u"Town %1"_s.arg(index % 90), u"ST"_s, u"%1"_s.arg(10000 + index % 89999),
                     u"555-%1"_s.arg(index % 10000, 4, 10, QChar(u'0')),
                     u"customer%1@example.com"_s.arg(index)});
    }
}

void insertCatalogue() {
    for (int index = 1; index <= kProducts; ++index) {
        db::execute(u"INSERT INTO tblProduct (productName, productSKU, cost, productStatus, "
                    u"productDesc) VALUES (?, ?, ?, 1, ?)"_s,
                    {u"Product %1"_s.arg(index), u"SKU-%1"_s.arg(index, 5, 10, QChar(u'0')),
                     Currency::fromInt(1 + index % 200),
                     u"Description of product %1"_s.arg(index)});
    }
    for (int index = 1; index <= 20; ++index) {
        db::execute(u"INSERT INTO tblService (shortName, longDesc, defaultCost) VALUES (?, ?, ?)"_s,
                    {u"Service %1"_s.arg(index), u"A longer description of service %1"_s.arg(index),
                     Currency::fromInt(25 * index)});
    }
}

// Receipt `index` of kReceipts, oldest first: the last kReceiptsToday are
// today's, the rest spread evenly over the ten years before.
QDate receiptDay(int index, const QDate &today) {
    constexpr int kEarlier = kReceipts - kReceiptsToday;
    if (index >= kEarlier)
        return today;
    const int daysBack = kYears * 365 - int(qint64(index) * kYears * 365 / kEarlier);
    return today.addDays(-daysBack);
}

// Every hundredth receipt belongs to the busy customer, until it has its share.
qint32 receiptCustomer(int index) {
    constexpr int kEvery = kReceipts / kBusyCustomerReceipts;
    if (index % kEvery == 0)
        return kBusyCustomerID;
    return 2 + index % (kCustomers - 1);
}

void insertReceipts(const QDate &today) {
    QMap<int, int> lastNumberByYear;
    QDate day;
    QString dayText;
    for (int index = 0; index < kReceipts; ++index) {
        const QDate next = receiptDay(index, today);
        if (next != day) {
            day = next;
            dayText = db::dateText(day); // at midnight, as the editor stores a receipt's date
        }
        const int number = ++lastNumberByYear[day.year()];
        const qint16 type = qint16(index % 10 == 9 ? 2 : index % 3 == 0 ? 1 : 0);
        const Currency amount = Currency::fromUnits(10000LL * (5 + index % 400) + index % 97 * 100);
        db::execute(
            u"INSERT INTO tblReceipt (receiptNumber, receiptDate, payeeID, amountDue, "
            u"amountReceived, balanceRemaining, checkNumber, paymentType, receivedBy, "
            u"status, receiptDesc, otherPaymentDesc, amountTax, amountOther, "
            u"amountDiscount, receiptType, accountBalance, serviceID, voidReason) "
            u"VALUES (?, ?, ?, ?, ?, 0, '', ?, 'Counter', ?, ?, '', 0, 0, 0, ?, 0, ?, '')"_s,
            {u"%1-%2"_s.arg(day.year() % 100, 2, 10, QChar(u'0')).arg(number, 5, 10, QChar(u'0')),
             dayText, receiptCustomer(index), amount, amount, 1 + index % 5,
             index % 250 == 0 ? 2 : 1, type == 1 ? u"Service rendered"_s : QString(), int(type),
             type == 1 ? 1 + index % 20 : 0});
    }
    for (auto year = lastNumberByYear.cbegin(); year != lastNumberByYear.cend(); ++year) {
        db::execute(
            u"INSERT INTO tblReceiptNumbering (receiptYear, lastNumberUsed) VALUES (?, ?)"_s,
            {u"%1"_s.arg(year.key() % 100, 2, 10, QChar(u'0')), year.value()});
    }
}

void build(const QString &path, const QDate &today) {
    QElapsedTimer timer;
    timer.start();
    std::fprintf(stderr, "Building the benchmark shop in %s ...\n", qPrintable(path));
    const QString partial = path + u".partial"_s;
    QFile::remove(partial);
    Schema::createDatabase(partial);
    {
        db::Transaction transaction(partial);
        insertCustomers();
        insertCatalogue();
        insertReceipts(today);
        transaction.commit();
    }
    QFile::remove(path);
    QFile::rename(partial, path);
    std::fprintf(stderr, "Built in %.1f s.\n", double(timer.elapsed()) / 1000);
}

} // namespace

Shop openShop() {
    QDir().mkpath(cacheFolder());
    const QString path = cacheFolder() + u"/shop.db"_s;
    const QByteArray wanted = fingerprint();
    Stamp stamp = readStamp(path);
    if (!QFile::exists(path) || stamp.fingerprint != wanted || !stamp.builtOn.isValid()) {
        stamp = {wanted, QDate::currentDate()};
        build(path, stamp.builtOn);
        writeStamp(path, stamp);
    }
    db::closeConnection();
    Session &state = session();
    state.dbPath = path;
    setConnectionString(path);
    return {path, stamp.builtOn, kBusyCustomerID};
}

} // namespace benchshop

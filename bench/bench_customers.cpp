// Times what a person waits for in the customer part of a large shop: the
// balance of a customer with 10,000 receipts, and the customer search over
// 100,000 customers, "Begins With" and "Retrieve All", each with its list
// filled and shown. Beside each figure stands the raw statement of the same
// work walked on a connection that is already open: the floor.
//
// The shop is built once into a file in the build tree and reused.
#include "app/database.h"
#include "app/schema.h"
#include "app/session.h"
#include "benchtiming.h"
#include "customers/frmcustomerlist.h"
#include "customers/payee.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kCustomers = 100000;
constexpr int kBusyCustomerReceipts = 10000;
constexpr int kOtherReceipts = 90000;
constexpr qint32 kBusyCustomer = 4242;
constexpr int kRuns = 11;
const QString kPrefix = u"Gar"_s;

const char *const kSurnames[] = {"Abbott",  "Baker",    "Carter",  "Dalton",  "Evans",    "Fischer",
                                 "Garcia",  "Hughes",   "Ito",     "Jensen",  "Kowalski", "Lopez",
                                 "Miller",  "Nakamura", "O'Brien", "Patel",   "Quinn",    "Rossi",
                                 "Schmidt", "Tanaka",   "Ueda",    "Varga",   "Weber",    "Xu",
                                 "Young",   "Zimmer",   "Garner",  "Morales", "Novak",    "Silva"};
const char *const kFirstNames[] = {"Ann",  "Ben",  "Chloe", "Dev",  "Eva",  "Finn", "Gita",
                                   "Hugo", "Ines", "Jon",   "Kira", "Liam", "Mona", "Nils"};

QString customerName(int i) {
    const int surnames = int(std::size(kSurnames));
    const int firstNames = int(std::size(kFirstNames));
    return u"%1, %2 %3"_s
        .arg(QLatin1String(kSurnames[(i * 7919) % surnames]),
             QLatin1String(kFirstNames[(i / surnames) % firstNames]))
        .arg(i);
}

void addCustomers() {
    for (int i = 1; i <= kCustomers; ++i) {
        db::execute(
            u"INSERT INTO tblPayee (payeeName, address1, address2, city, state, zip, "
            "phone, lastPurchaseDate, email) VALUES (?, ?, '', ?, 'IL', '62701', ?, ?, '')"_s,
            {customerName(i), u"%1 High Street"_s.arg(i % 997), u"Springfield"_s,
             u"555-%1"_s.arg(i % 10000, 4, 10, QChar(u'0')), Payee::zeroDate});
    }
}

// The busy customer's receipts lie among everyone else's, as years of
// trading leave them.
void addReceipts() {
    const QDateTime start(QDate(2015, 1, 1), QTime(9, 0));
    const int total = kBusyCustomerReceipts + kOtherReceipts;
    const int every = total / kBusyCustomerReceipts;
    for (int i = 0; i < total; ++i) {
        const bool busy = i % every == 0;
        const qint16 type = i % 5 == 0 ? 2 : qint16(i % 2);
        db::execute(u"INSERT INTO tblReceipt (receiptNumber, receiptDate, payeeID, amountDue, "
                    "amountReceived, balanceRemaining, amountTax, amountOther, amountDiscount, "
                    "receiptType, status, accountBalance, serviceID, receivedBy, checkNumber, "
                    "receiptDesc, otherPaymentDesc, voidReason) "
                    "VALUES (?, ?, ?, ?, ?, 0, ?, 0, 0, ?, ?, 0, 0, 'Ann', '', '', '', '')"_s,
                    {u"%1"_s.arg(i, 6, 10, QChar(u'0')), start.addSecs(i * 1800LL),
                     busy ? kBusyCustomer : 1 + (i * 37) % kCustomers,
                     Currency::fromInt(20 + i % 80), Currency::fromInt(10 + i % 50),
                     Currency::fromInt(i % 7), int(type), i % 40 == 0 ? 2 : 1});
    }
    Payee busy;
    busy.payeeID = kBusyCustomer;
    busy.SetBalance(kBusyCustomer, Currency::fromInt(125));
}

bool isBuilt(const QString &path) {
    if (!QFileInfo::exists(path))
        return false;
    setConnectionString(path);
    const std::optional<db::Row> count =
        db::readFirst(u"SELECT COUNT(*) AS customers FROM tblPayee"_s);
    return count && count->int32(u"customers"_s) == kCustomers;
}

void buildShop(const QString &path) {
    if (isBuilt(path))
        return;
    std::printf("building the shop in %s ...\n", qPrintable(path));
    QFile::remove(path);
    Schema::createDatabase(path);
    setConnectionString(path);
    db::Transaction transaction;
    addCustomers();
    addReceipts();
    transaction.commit();
}

double medianMilliseconds(const std::function<void()> &work) {
    return ::medianMilliseconds(kRuns, work);
}

void report(const char *what, double brisko, double raw, double target) {
    std::printf("%-40s %8.2f ms   raw %8.2f ms   target < %4.0f ms  %s\n", what, brisko, raw,
                target, brisko < target ? "ok" : "SLOW");
}

// The raw floor: a statement walked on a connection that is already open.
class RawConnection {
public:
    explicit RawConnection(const QString &path) {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"raw"_s);
        database.setDatabaseName(path);
        database.open();
    }

    // Reads every column of every row, as a list or a walk must.
    qint64 walk(const QString &sql, const QVariantList &values = {}) const {
        QSqlQuery query(QSqlDatabase::database(u"raw"_s));
        query.setForwardOnly(true);
        query.prepare(sql);
        for (const QVariant &value : values)
            query.addBindValue(value);
        query.exec();
        qint64 cells = 0;
        const int columns = query.record().count();
        while (query.next()) {
            for (int column = 0; column < columns; ++column)
                cells += query.value(column).isValid() ? 1 : 0;
        }
        return cells;
    }
};

// Runs a search on the screen as a person does and waits until it shows.
double searchOnScreen(frmCustomerList &screen, const QString &button, const QString &text) {
    auto *name = screen.findChild<QLineEdit *>(u"txtName"_s);
    auto *command = screen.findChild<QPushButton *>(button);
    return medianMilliseconds([&] {
        name->setText(text);
        command->click();
        QApplication::processEvents();
    });
}

} // namespace

int main(int argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QString path = QString::fromUtf8(BRISKO_BENCH_SHOP);
    buildShop(path);
    setConnectionString(path);
    const RawConnection raw(path);

    report("balance of a customer, 10,000 receipts",
           medianMilliseconds([] { Payee().GetPayeeBalance(kBusyCustomer); }),
           medianMilliseconds([&] {
               raw.walk(u"SELECT * FROM tblReceipt WHERE payeeID = ? AND receiptType= 4"_s,
                        {kBusyCustomer});
               raw.walk(u"SELECT * FROM tblReceipt WHERE payeeID = ? AND receiptType <> 4"_s,
                        {kBusyCustomer});
           }),
           10);

    frmCustomerList screen;
    screen.resize(900, 600);
    screen.show();
    QApplication::processEvents();
    report("\"Begins With\" search and its list", searchOnScreen(screen, u"cmdSearch"_s, kPrefix),
           medianMilliseconds([&] {
               raw.walk(u"SELECT * FROM tblPayee WHERE payeeName LIKE ? ORDER BY payeeName"_s,
                        {kPrefix + u'%'});
           }),
           50);
    report("\"Retrieve All\" and its list", searchOnScreen(screen, u"Command2"_s, QString()),
           medianMilliseconds([&] { raw.walk(u"SELECT * FROM tblPayee ORDER BY payeeName"_s); }),
           300);
    std::printf(
        "(%lld customers listed)\n",
        qint64(screen.findChild<QAbstractItemView *>(u"lstCustomers"_s)->model()->rowCount()));
    return 0;
}

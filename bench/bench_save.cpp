// Times the save of a ten-line sale for a new customer: the customer, the
// receipt's number from the counter, the receipt and its lines in one
// transaction, committed to the file. Beside it stands the floor: the same
// statements prepared once on a plain open QtSql connection with the same
// journal and sync settings, run in one transaction of their own.
//
// Both write to a small database of their own, made afresh beside the
// benchmark each run: a save's cost is its commit, which does not grow with
// the shop.
#include "app/company.h"
#include "app/database.h"
#include "app/schema.h"
#include "app/session.h"
#include "editor/receiptsave.h"
#include "measure.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlError>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kLines = 10;
constexpr int kRuns = 41;
const QString kYear = u"13"_s;

ReceiptSave tenLineSale() {
    ReceiptSave save;
    save.year = kYear;
    save.payee.payeeName = u"Dana O'Neill"_s;
    save.payee.address1 = u"1 Quay Street"_s;
    save.payee.city = u"Oban"_s;
    save.receipt.receiptDate = QDateTime(QDate(2013, 10, 25), QTime(14, 30));
    save.receipt.amountDue = Currency::fromInt(125);
    save.receipt.amountReceived = Currency::fromInt(100);
    save.receipt.balanceRemaining = Currency::fromInt(25);
    save.receipt.receivedBy = u"Ann"_s;
    for (int line = 1; line <= kLines; ++line) {
        Product item;
        item.productID = line;
        item.qty = 1;
        item.cost = Currency::fromText(u"12.5"_s);
        item.description = u"Product %1"_s.arg(line);
        save.lines.append(item);
    }
    return save;
}

// The save's statements on one open connection, prepared once.
class RawSave {
public:
    explicit RawSave(const QString &path) {
        m_database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"raw save"_s);
        m_database.setDatabaseName(path);
        m_database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=10000"_s);
        if (!m_database.open())
            qFatal("%s", qPrintable(m_database.lastError().text()));
        run(u"PRAGMA journal_mode=DELETE"_s);
        run(u"PRAGMA synchronous=FULL"_s);
        prepare(m_payee, u"INSERT INTO tblPayee (payeeName,address1,address2,city,state,zip,phone, "
                         "lastPurchaseDate, email) VALUES(?,?,?,?,?,?,?,?,?) RETURNING payeeID"_s);
        prepare(m_counter,
                u"SELECT lastNumberUsed FROM tblReceiptNumbering WHERE receiptYear = ?"_s);
        prepare(m_take, u"UPDATE tblReceiptNumbering SET lastNumberUsed=? WHERE receiptYear=?"_s);
        prepare(m_receipt,
                u"INSERT INTO tblReceipt (receiptNumber,receiptDate,payeeID,amountDue,"
                "amountReceived,balanceRemaining,checkNumber,paymentType,receivedBy,status,"
                "receiptDesc,otherPaymentDesc, amountTax, amountOther, amountDiscount, "
                "receiptType, customField1, customField2, customField3, customField4, "
                "customField5, customField6, accountBalance,serviceID,voidReason) "
                "VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?) RETURNING receiptID"_s);
        prepare(m_removeLines, u"DELETE FROM tblReceipt_Product WHERE receiptID = ?"_s);
        prepare(m_line, u"INSERT INTO tblReceipt_Product (receiptID, productID, quantity, "
                        "overrideCost, overrideDesc, unitTotal, extDesc) VALUES(?,?,?,?,?,?,?)"_s);
    }

    void save(const ReceiptSave &sale) {
        run(u"BEGIN IMMEDIATE"_s);
        const Payee &payee = sale.payee;
        exec(m_payee,
             {payee.payeeName, payee.address1, payee.address2, payee.city, payee.State, payee.zip,
              payee.phone, db::dateText(QDateTime::currentDateTime()), payee.email});
        const qint64 payeeID = first(m_payee);
        exec(m_counter, {kYear});
        const qint64 number = first(m_counter) + 1;
        exec(m_take, {number, kYear});
        const Receipt &r = sale.receipt;
        exec(m_receipt, {QString::number(number),
                         db::dateText(r.receiptDate),
                         payeeID,
                         r.amountDue.units(),
                         r.amountReceived.units(),
                         r.balanceRemaining.units(),
                         r.checkNumber,
                         0,
                         r.receivedBy,
                         1,
                         QString(),
                         QString(),
                         0,
                         0,
                         0,
                         0,
                         QString(),
                         QString(),
                         QString(),
                         QString(),
                         QString(),
                         QString(),
                         r.balanceRemaining.units(),
                         0,
                         QString()});
        const qint64 receiptID = first(m_receipt);
        exec(m_removeLines, {receiptID});
        for (const Product &line : sale.lines) {
            exec(m_line, {receiptID, line.productID, line.qty, line.cost.units(), line.description,
                          (line.cost * line.qty).units(), line.extDesc});
        }
        run(u"COMMIT"_s);
    }

    void run(const QString &sql) {
        QSqlQuery query(m_database);
        if (!query.exec(sql))
            qFatal("%s", qPrintable(query.lastError().text()));
    }

private:
    void prepare(QSqlQuery &query, const QString &sql) {
        query = QSqlQuery(m_database);
        query.setForwardOnly(true);
        if (!query.prepare(sql))
            qFatal("%s", qPrintable(query.lastError().text()));
    }
    static void exec(QSqlQuery &query, const QVariantList &values) {
        for (qsizetype index = 0; index < values.size(); ++index)
            query.bindValue(int(index), values.at(index));
        if (!query.exec())
            qFatal("%s", qPrintable(query.lastError().text()));
    }
    static qint64 first(QSqlQuery &query) {
        const qint64 value = query.next() ? query.value(0).toLongLong() : 0;
        query.finish();
        return value;
    }

    QSqlDatabase m_database;
    QSqlQuery m_payee, m_counter, m_take, m_receipt, m_removeLines, m_line;
};

QString freshDatabase(const QString &name) {
    const QString path = QCoreApplication::applicationDirPath() + u'/' + name;
    QFile::remove(path);
    Schema::createDatabase(path);
    setConnectionString(path);
    session().dbPath = path;
    modMain::loadCompanyInfo();
    Receipt().createReceiptYear(kYear, u"1"_s);
    return path;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const ReceiptSave sale = tenLineSale();
    const auto briskoSave = [&] {
        ReceiptSave save = sale;
        save.save();
    };

    double raw = 0;
    double rawNoSync = 0;
    {
        RawSave rawSave(freshDatabase(u"bench_save_raw.db"_s));
        raw = bench::medianMicroseconds([&] { rawSave.save(sale); }, kRuns);
        rawSave.run(u"PRAGMA synchronous=OFF"_s);
        rawNoSync = bench::medianMicroseconds([&] { rawSave.save(sale); }, kRuns);
    }
    QSqlDatabase::removeDatabase(u"raw save"_s);

    freshDatabase(u"bench_save.db"_s);
    const double local = bench::medianMicroseconds(briskoSave, kRuns);
    // Without the wait for the disk, what is left is the work of the layers.
    db::execute(u"PRAGMA synchronous=OFF"_s);
    const double localNoSync = bench::medianMicroseconds(briskoSave, kRuns);
    db::closeConnection();

    // On the share every number also takes and frees the lock file.
    session().useSharedFile = true;
    session().shareFileLocation = session().dbPath;
    const double shared = bench::medianMicroseconds(briskoSave, kRuns);

    bench::printHeader();
    bench::printCase("save a 10-line sale (target 1.5x)", local, raw);
    bench::printCase("the same, not waiting for the disk", localNoSync, rawNoSync);
    bench::printCase("the same on the shared file, with its lock", shared, raw);
    db::closeConnection();
    return 0;
}

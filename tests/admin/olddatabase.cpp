#include "olddatabase.h"

#include "app/database.h"

#include <QList>

using namespace Qt::Literals::StringLiterals;

namespace olddatabase {
namespace {

// The oldest file the program knows.
const QStringList kBaseSchema = {
    uR"(CREATE TABLE tblSystem (companyName TEXT, address1 TEXT, address2 TEXT, city TEXT,
        state TEXT, zip TEXT, phone TEXT, numberFormat TEXT, defaultPaymentType INTEGER,
        defaultReceiptType INTEGER, taxRate REAL))"_s,
    uR"(CREATE TABLE tblReceipt (receiptID INTEGER PRIMARY KEY AUTOINCREMENT,
        receiptNumber TEXT, receiptDate TEXT, payeeID INTEGER, amountDue INTEGER,
        amountReceived INTEGER, balanceRemaining INTEGER, checkNumber TEXT, paymentType INTEGER,
        receivedBy TEXT, status INTEGER, receiptDesc TEXT, otherPaymentDesc TEXT,
        amountTax INTEGER, amountOther INTEGER, amountDiscount INTEGER, receiptType INTEGER))"_s,
    uR"(CREATE TABLE tblReceipt_Product (receiptID INTEGER, productID INTEGER,
        quantity INTEGER, overrideCost INTEGER, overrideDesc TEXT, unitTotal INTEGER))"_s,
    uR"(CREATE TABLE tblPayee (payeeID INTEGER PRIMARY KEY AUTOINCREMENT,
        payeeName TEXT COLLATE NOCASE, address1 TEXT, address2 TEXT, city TEXT, state TEXT,
        zip TEXT, phone TEXT))"_s,
    uR"(CREATE TABLE tblProduct (productID INTEGER PRIMARY KEY AUTOINCREMENT,
        productName TEXT, productSKU TEXT COLLATE NOCASE, cost INTEGER, productStatus INTEGER,
        productDesc TEXT))"_s,
    u"CREATE TABLE tblStatus (statusID INTEGER PRIMARY KEY, statusName TEXT)"_s,
    u"CREATE TABLE tblReceiptNumbering (receiptYear TEXT, lastNumberUsed INTEGER)"_s,
    uR"(INSERT INTO tblSystem VALUES ('Old Shop', '1 Mill Lane', '', 'Leeds', '', 'LS1', '',
        '00000', 2, 0, 7.25))"_s,
    u"INSERT INTO tblStatus VALUES (1, 'Issued'), (2, 'Void')"_s,
    u"INSERT INTO tblReceiptNumbering VALUES ('12', 6)"_s,
    u"INSERT INTO tblPayee (payeeName, address1) VALUES ('O''Brien', '2 Quay St'), ('Ann', '')"_s,
    u"INSERT INTO tblProduct (productName, productSKU, cost) VALUES ('Widget', 'W1', 25000)"_s,
    uR"(INSERT INTO tblReceipt (receiptNumber, receiptDate, payeeID, amountDue, amountReceived,
        balanceRemaining, paymentType, status, receiptType) VALUES
        ('00001', '2012-03-01 00:00:00', 1, 25000, 25000, 0, 0, 1, 0),
        ('00002', '2012-03-02 00:00:00', 1, 10000, 5000, 5000, 1, 1, 1),
        ('00003', '2012-03-03 00:00:00', 2, 10000, 10000, 0, 2, 1, 1),
        ('00004', '2012-03-04 00:00:00', 2, 10000, 10000, 0, 3, 2, 1),
        ('00005', '2012-03-05 00:00:00', 2, 10000, 10000, 0, 4, 1, 1),
        ('00006', '2012-03-06 00:00:00', 2, 10000, 10000, 0, 7, 1, 1))"_s,
    uR"(INSERT INTO tblReceipt_Product VALUES (1, 1, 1, 25000, 'Widget', 25000))"_s,
};

struct Release {
    QString version;
    QStringList changes; // what this release did to the file of the one before
};

QString addColumns(const QString &table, const QStringList &columns) {
    QStringList statements;
    for (const QString &column : columns)
        statements.append(u"ALTER TABLE %1 ADD COLUMN %2"_s.arg(table, column));
    return statements.join(u";\n"_s);
}

QStringList customFields() {
    QStringList fields;
    for (int field = 1; field <= 6; ++field)
        fields.append(u"customField%1 TEXT"_s.arg(field));
    return fields;
}

const QList<Release> &releases() {
    static const QList<Release> list = {
        {u""_s, {}},
        {u"1.2.5"_s,
         {u"ALTER TABLE tblSystem ADD COLUMN currencySymbol INTEGER DEFAULT 36"_s,
          u"ALTER TABLE tblSystem ADD COLUMN tagline TEXT"_s,
          u"UPDATE tblSystem SET currencySymbol = 163"_s}},
        {u"1.3.0"_s,
         {u"ALTER TABLE tblSystem ADD COLUMN dbVersion TEXT"_s,
          u"ALTER TABLE tblReceipt_Product ADD COLUMN extDesc TEXT"_s}},
        {u"1.4.0"_s,
         {addColumns(u"tblSystem"_s, customFields()), addColumns(u"tblReceipt"_s, customFields()),
          uR"(CREATE TABLE tblPayMethod (payMethodID INTEGER PRIMARY KEY AUTOINCREMENT,
              methodName TEXT, payMethodStatus INTEGER))"_s,
          uR"(INSERT INTO tblPayMethod (methodName, payMethodStatus) VALUES ('Cash', 1),
              ('Check', 1), ('Credit Card', 1), ('PayPal', 1), ('Money Order', 1))"_s,
          u"UPDATE tblSystem SET customField1 = 'Job No.'"_s,
          u"UPDATE tblReceipt SET customField1 = 'J-7'"_s}},
        {u"1.5.0"_s, {uR"(CREATE TABLE tblService (serviceID INTEGER PRIMARY KEY AUTOINCREMENT,
              shortName TEXT, longDesc TEXT, defaultCost INTEGER))"_s}},
        {u"2.0.3"_s, {u"ALTER TABLE tblSystem ADD COLUMN customCurrency TEXT"_s}},
        {u"2.1.0"_s,
         {u"ALTER TABLE tblPayee ADD COLUMN lastPurchaseDate TEXT"_s,
          u"ALTER TABLE tblReceipt ADD COLUMN accountBalance INTEGER"_s,
          u"UPDATE tblReceipt SET accountBalance = 50000"_s}},
        {u"3.0"_s,
         {addColumns(u"tblSystem"_s, {u"resetNumberEOY INTEGER"_s, u"requireAddress INTEGER"_s}),
          u"UPDATE tblSystem SET resetNumberEOY = 0, requireAddress = 0"_s}},
        {u"4.0"_s,
         {u"ALTER TABLE tblSystem ADD COLUMN restrictAccess INTEGER"_s,
          uR"(CREATE TABLE tblUser (userID INTEGER PRIMARY KEY AUTOINCREMENT, username TEXT,
              password TEXT, canEdit INTEGER, canDelete INTEGER, canVoid INTEGER,
              status INTEGER, isAdmin INTEGER))"_s,
          u"INSERT INTO tblUser (username, isAdmin) VALUES ('boss', 1)"_s,
          u"UPDATE tblSystem SET restrictAccess = 1"_s}},
        {u"4.0.3"_s,
         {addColumns(u"tblReceipt"_s, {u"serviceID INTEGER"_s, u"voidReason TEXT"_s}),
          u"UPDATE tblReceipt SET serviceID = 3"_s}},
        {u"4.1.2"_s,
         {u"ALTER TABLE tblPayee ADD COLUMN email TEXT"_s,
          addColumns(u"tblSystem"_s, {u"hideSalesTax INTEGER"_s, u"hideAcctBalance INTEGER"_s}),
          u"UPDATE tblPayee SET email = 'ann@example.org'"_s,
          u"UPDATE tblSystem SET hideSalesTax = 1, hideAcctBalance = 0"_s}},
        {u"4.2.0"_s,
         {u"ALTER TABLE tblUser ADD COLUMN canRunReports INTEGER"_s,
          u"UPDATE tblUser SET canRunReports = 0"_s}},
        {u"4.2.2"_s,
         {u"ALTER TABLE tblSystem ADD COLUMN useAutoComplete INTEGER"_s,
          u"UPDATE tblSystem SET useAutoComplete = 0"_s}},
        {u"4.2.4"_s,
         {addColumns(u"tblSystem"_s, {u"hideDiscountField INTEGER"_s, u"isTaxExempt INTEGER"_s,
                                      u"otherFieldName TEXT"_s}),
          u"UPDATE tblSystem SET hideDiscountField = 1, isTaxExempt = 1, otherFieldName = 'Misc'"_s}},
    };
    return list;
}

void run(const QString &statements) {
    for (const QString &statement : statements.split(u";\n"_s))
        db::execute(statement);
}

} // namespace

const QStringList &versions() {
    static const QStringList list = [] {
        QStringList names;
        for (const Release &release : releases())
            names.append(release.version);
        return names;
    }();
    return list;
}

void create(const QString &path, const QString &version) {
    db::Transaction transaction(path, db::Transaction::Open::CreateIfMissing);
    for (const QString &statement : kBaseSchema)
        db::execute(statement);
    for (const Release &release : releases()) {
        for (const QString &change : release.changes)
            run(change);
        if (release.version == version)
            break;
    }
    // The column came with 1.3.0; a 1.2.5 file is known by currencySymbol alone.
    if (versions().indexOf(version) >= versions().indexOf(u"1.3.0"_s))
        db::execute(u"UPDATE tblSystem SET dbVersion = ?"_s, {version});
    transaction.commit();
}

} // namespace olddatabase

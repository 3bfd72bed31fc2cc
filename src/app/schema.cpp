#include "app/schema.h"

#include "app/database.h"
#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace Schema {
namespace {

// Money columns hold ten-thousandths, dates ISO text, flags 1 or 0. Names,
// SKUs and receipt numbers compare and sort without regard to case, as the
// old engine compared all text; a password digest compares exactly.
constexpr const char *kTables[] = {
    R"(CREATE TABLE tblSystem (
        companyName TEXT, address1 TEXT, address2 TEXT, city TEXT, state TEXT, zip TEXT,
        phone TEXT, numberFormat TEXT, defaultPaymentType INTEGER, defaultReceiptType INTEGER,
        taxRate REAL, tagline TEXT, currencySymbol INTEGER DEFAULT 36, dbVersion TEXT,
        customField1 TEXT, customField2 TEXT, customField3 TEXT, customField4 TEXT,
        customField5 TEXT, customField6 TEXT, customCurrency TEXT, resetNumberEOY INTEGER,
        requireAddress INTEGER, restrictAccess INTEGER, hideSalesTax INTEGER,
        hideAcctBalance INTEGER, useAutoComplete INTEGER, hideDiscountField INTEGER,
        isTaxExempt INTEGER, otherFieldName TEXT, usePOSPrinter INTEGER))",
    R"(CREATE TABLE tblReceipt (
        receiptID INTEGER PRIMARY KEY AUTOINCREMENT, receiptNumber TEXT COLLATE NOCASE,
        receiptDate TEXT,
        payeeID INTEGER, amountDue INTEGER, amountReceived INTEGER, balanceRemaining INTEGER,
        checkNumber TEXT, paymentType INTEGER, receivedBy TEXT, status INTEGER,
        receiptDesc TEXT, otherPaymentDesc TEXT, amountTax INTEGER, amountOther INTEGER,
        amountDiscount INTEGER, receiptType INTEGER, customField1 TEXT, customField2 TEXT,
        customField3 TEXT, customField4 TEXT, customField5 TEXT, customField6 TEXT,
        accountBalance INTEGER, serviceID INTEGER, voidReason TEXT))",
    R"(CREATE TABLE tblReceipt_Product (
        receiptID INTEGER, productID INTEGER, quantity INTEGER, overrideCost INTEGER,
        overrideDesc TEXT, unitTotal INTEGER, extDesc TEXT))",
    R"(CREATE TABLE tblPayee (
        payeeID INTEGER PRIMARY KEY AUTOINCREMENT, payeeName TEXT COLLATE NOCASE,
        address1 TEXT, address2 TEXT, city TEXT, state TEXT, zip TEXT, phone TEXT,
        lastPurchaseDate TEXT, email TEXT))",
    R"(CREATE TABLE tblProduct (
        productID INTEGER PRIMARY KEY AUTOINCREMENT, productName TEXT COLLATE NOCASE,
        productSKU TEXT COLLATE NOCASE, cost INTEGER, productStatus INTEGER, productDesc TEXT))",
    R"(CREATE TABLE tblService (
        serviceID INTEGER PRIMARY KEY AUTOINCREMENT, shortName TEXT COLLATE NOCASE, longDesc TEXT,
        defaultCost INTEGER))",
    R"(CREATE TABLE tblPayMethod (
        payMethodID INTEGER PRIMARY KEY AUTOINCREMENT, methodName TEXT COLLATE NOCASE,
        payMethodStatus INTEGER))",
    R"(CREATE TABLE tblUser (
        userID INTEGER PRIMARY KEY AUTOINCREMENT, username TEXT COLLATE NOCASE, password TEXT,
        canEdit INTEGER, canDelete INTEGER, canVoid INTEGER, status INTEGER, isAdmin INTEGER,
        canRunReports INTEGER))",
    R"(CREATE TABLE tblStatus (statusID INTEGER PRIMARY KEY, statusName TEXT COLLATE NOCASE))",
    R"(CREATE TABLE tblReceiptNumbering (receiptYear TEXT, lastNumberUsed INTEGER))",
};

// For the look-ups that run on every keystroke or list fill.
constexpr const char *kIndexes[] = {
    // The customer lists read a range of names in order; the index holds
    // their columns too, so that a list of every customer never visits the table.
    "CREATE INDEX IF NOT EXISTS idxPayeeName ON tblPayee (payeeName, address1, city, state, phone)",
    // A customer's receipts; it holds what the balance reads, so that the
    // balance never visits the table.
    "CREATE INDEX IF NOT EXISTS idxReceiptPayee ON tblReceipt (payeeID, receiptType, status, "
    "amountDue, "
    "amountTax, amountOther, amountDiscount, amountReceived)",
    // The receipt lists read a range of dates in date and number order; the
    // journal pages through it by that order and the key.
    "CREATE INDEX IF NOT EXISTS idxReceiptDateNumber ON tblReceipt (receiptDate, receiptNumber)",
    "CREATE INDEX IF NOT EXISTS idxReceiptNumber ON tblReceipt (receiptNumber)",
    "CREATE INDEX IF NOT EXISTS idxReceiptProductReceipt ON tblReceipt_Product (receiptID)",
    "CREATE INDEX IF NOT EXISTS idxProductSKU ON tblProduct (productSKU)",
    "CREATE INDEX IF NOT EXISTS idxProductStatusSKU ON tblProduct (productStatus, productSKU)",
    "CREATE INDEX IF NOT EXISTS idxReceiptProductProduct ON tblReceipt_Product (productID)",
    "CREATE INDEX IF NOT EXISTS idxReceiptPaymentType ON tblReceipt (paymentType)",
    "CREATE INDEX IF NOT EXISTS idxReceiptNumberingYear ON tblReceiptNumbering (receiptYear)",
};

void insertSeedRows() {
    db::execute(
        u"INSERT INTO tblStatus (statusID, statusName) VALUES (1, 'Issued'), (2, 'Void')"_s);
    for (const char *method : {"Cash", "Check", "Credit Card", "PayPal", "Money Order"}) {
        db::execute(u"INSERT INTO tblPayMethod (methodName, payMethodStatus) VALUES (?, 1)"_s,
                    {method});
    }
    db::execute(uR"(INSERT INTO tblSystem (companyName, address1, address2, city, state, zip, phone,
            numberFormat, defaultPaymentType, defaultReceiptType, taxRate, tagline, currencySymbol,
            dbVersion, customField1, customField2, customField3, customField4, customField5,
            customField6, customCurrency, resetNumberEOY, requireAddress, restrictAccess,
            hideSalesTax, hideAcctBalance, useAutoComplete, hideDiscountField, isTaxExempt,
            otherFieldName, usePOSPrinter)
            VALUES ('', '', '', '', '', '', '', '[00000]', 1, 0, 0, '', 36, ?, '', '', '', '', '',
            '', '', 1, 0, 0, 0, 0, 1, 0, 0, 'Other', 0))"_s,
                {QString::fromUtf16(kCurrentVersion)});
}

enum class Numbering { Empty, ThisYear };

// Writes the whole schema into the file at `path`, new or empty, at once.
void writeNewDatabase(const QString &path, Numbering numbering) {
    db::Transaction transaction(path, db::Transaction::Open::CreateIfMissing);
    for (const char *statement : kTables)
        db::execute(QString::fromUtf8(statement));
    createIndexes();
    insertSeedRows();
    if (numbering == Numbering::ThisYear) {
        const QString year = QString::number(QDate::currentDate().year()).right(2);
        db::execute(
            u"INSERT INTO tblReceiptNumbering (receiptYear, lastNumberUsed) VALUES (?, 0)"_s,
            {year});
    }
    transaction.commit();
}

void refuseExistingFile(const QString &path) {
    if (QFileInfo::exists(path)) {
        throw BriskoError(RuntimeError::FileAlreadyExists,
                          QCoreApplication::translate("Schema", "File already exists"));
    }
    QDir().mkpath(QFileInfo(path).absolutePath());
}

} // namespace

void createDatabase(const QString &path) {
    refuseExistingFile(path);
    writeNewDatabase(path, Numbering::Empty);
}

void createIndexes() {
    for (const char *statement : kIndexes)
        db::execute(QString::fromUtf8(statement));
}

void createDeliveredDatabase(const QString &path) {
    refuseExistingFile(path);
    writeNewDatabase(path, Numbering::ThisYear);
}

void setUpEmptyFile(const QString &path) {
    writeNewDatabase(path, Numbering::ThisYear);
}

} // namespace Schema

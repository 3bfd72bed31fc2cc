#pragma once

#include "app/currency.h"
#include "app/database.h"

#include <QDate>
#include <QDateTime>
#include <QString>

// One receipt of tblReceipt, with the statements that read and write it, its
// lines, the receipt numbering and the receipt lists. Instances are
// short-lived records: a screen makes one, fills it, runs an operation.
class Receipt {
public:
    // Receipt types.
    static constexpr qint16 ProductReceipt = 0;
    static constexpr qint16 ServiceReceipt = 1;
    static constexpr qint16 AccountPayment = 2;
    static constexpr qint16 OpeningBalance = 4;
    // Receipt states.
    static constexpr qint16 Issued = 1;
    static constexpr qint16 Void = 2;

    qint32 receiptID = 0;
    QString receiptNumber;
    QDateTime receiptDate;
    qint32 payeeID = 0;
    Currency amountDue;
    Currency amountReceived;
    Currency balanceRemaining;
    QString checkNumber;
    QString receivedBy;
    qint16 status = 0;
    QString receiptDesc;
    qint16 paymentType = 0;
    QString otherPaymentDesc;
    Currency amountTax;
    Currency amountOther;
    Currency amountDiscount;
    qint16 receiptType = 0;
    QString customField1;
    QString customField2;
    QString customField3;
    QString customField4;
    QString customField5;
    QString customField6;
    Currency accountBalance;
    qint16 serviceID = 0;
    QString voidReason;

    // Record and lines.
    bool writeReceipt();
    bool deleteReceipt(qint32 receiptID);
    bool DeletePayeeReceipts(qint32 payeeID);
    bool writeReceiptProducts(qint32 receiptID, qint32 productID, qint16 quantity,
                              Currency overrideCost, const QString &overrideDesc,
                              const QString &extDesc);
    bool removeReceiptProducts(qint32 receiptID);
    qint16 ReassignReceipts(qint32 fromPayeeID, qint32 toPayeeID);
    bool GetReceipt(qint32 receiptID, const QString &receiptNumber);
    qint32 getLastReceiptID();

    // Numbering.
    bool checkForYearChange(const QString &year);
    bool createReceiptYear(const QString &year, const QString &startNumber);
    qint32 getNextReceiptNumber(const QString &year);
    qint32 GetLastReceiptNumber();
    bool updateReceiptNumberUsed(const QString &year, qint32 number);

    // Lists. Dates are in the user's short date text; an empty filter is no filter.
    db::Snapshot GetReceipts(const QString &startDate, const QString &endDate, qint16 sortOrder,
                             qint16 maxRows, const QString &payeeName, const QString &receiptNumber,
                             bool useCustomFields, bool includeOpening);
    db::Snapshot GetCustomerReceipts(qint32 payeeID);
    db::Snapshot getReceiptProducts(qint32 receiptID);
    qint32 GetReceiptCount();

private:
    void insertReceipt();
    void updateReceipt();
};

namespace modMain {

// The receipt number text for `number` under the company's numberFormat:
// prefix and suffix rendered as date patterns of today, the bracketed zeros
// as the number's pattern.
QString formatReceiptNumber(const QString &number);
// The same on the given day, for callers that fix the date.
QString formatReceiptNumber(const QString &number, const QDate &today);

} // namespace modMain

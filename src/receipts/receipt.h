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

    // Payment methods of tblPayMethod. "Other" has no row: each list of
    // payment types adds it by itself, as the value 0.
    static constexpr qint16 OtherPaymentType = 0;
    static constexpr qint16 AllPayMethods = -1; // status filter: every method
    static constexpr qint16 PayMethodInactive = 0;
    static constexpr qint16 PayMethodActive = 1;

    // Methods of the filter's status (AllPayMethods for all), by name.
    db::Snapshot GetPaymentMethods(qint16 filter);
    // Inserts when payMethodID is 0, else updates; gives the row's key.
    qint32 WritePaymentMethod(qint32 payMethodID, const QString &methodName, qint16 status);
    bool DeletePaymentMethod(qint32 payMethodID);
    // Whether any receipt is paid by the method; receipts alone count.
    bool PaymentTypeIsUsed(qint32 payMethodID);

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

    // The arguments of GetReceipts by name, so that a call reads as what it
    // asks for: GetReceipts({.startDate = today, .endDate = today}). Every
    // member has an initializer, so that any of them may be left out.
    struct GetReceiptsArgs {
        QString startDate{}; // the user's short date text; empty for no bound
        QString endDate{};
        qint16 sortOrder = 0; // 0 by date and number, 1 by number, newest first
        qint16 maxRows = 0;   // 0 for all
        QString payeeName{};
        QString receiptNumber{};
        bool useCustomFields = false; // search this object's custom fields too
        bool includeOpening = false;  // include opening-balance records
    };

    // Lists. Dates are in the user's short date text; an empty filter is no filter.
    db::Snapshot GetReceipts(const QString &startDate, const QString &endDate, qint16 sortOrder,
                             qint16 maxRows, const QString &payeeName, const QString &receiptNumber,
                             bool useCustomFields, bool includeOpening);
    db::Snapshot GetReceipts(const GetReceiptsArgs &args);

    // One receipt as a long receipt list shows it.
    struct ListEntry {
        qint32 receiptID = 0;
        QDateTime receiptDate;
        QString receiptNumber;
        QString payeeName;
        Currency amountReceived;
        Currency balanceRemaining;
        QString statusName;
    };
    // The list of GetReceipts(args) a page at a time, in date and number
    // order with the key settling ties: appends to `page` up to `count` rows
    // that follow `after` (from the top when it is null). Each page is a
    // statement of its own, so that no read lock outlives it. A row that
    // cannot be read ends the page there, the rows before it staying, and
    // its error goes on. Only the date and number order pages.
    void GetReceiptsPage(const GetReceiptsArgs &args, const ListEntry *after, int count,
                         QList<ListEntry> &page);
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

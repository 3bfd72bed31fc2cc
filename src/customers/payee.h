#pragma once

#include "app/currency.h"

#include <QDateTime>
#include <QString>

// One customer of tblPayee, with the statements that load, write and delete
// it, and the customer's account balance, which is worked out from the
// receipts every time it is asked for: a customer has no balance column.
//
// The opening balance is kept as a receipt of its own (receiptType 4,
// receiptNumber "Opening Balance"), whose accountBalance is the amount.
class Payee {
public:
    // The runtime's zero date: a record that never had a purchase holds it.
    static const QDateTime zeroDate;

    qint32 payeeID = 0; // 0 until first written; WritePayee inserts then
    QString payeeName;
    QString address1;
    QString address2;
    QString city;
    QString State; // written to the column "state"
    QString zip;
    QString phone;
    QDateTime lastPurchaseDate = zeroDate;
    QString email;

    // The opening balance plus what each issued sale left unpaid, less each
    // issued payment on account. May be negative.
    Currency GetPayeeBalance(qint32 id);
    // The amount of the customer's opening-balance row; 0 without one.
    Currency GetOpeningBalance(qint32 id);
    // Writes the opening-balance row of `id`, dated today: the one found for
    // this record's own payeeID is updated in place, else a new one is added.
    bool SetBalance(qint32 id, Currency amount);
    // Inserts when payeeID is 0 and learns the new key, else updates.
    bool WritePayee();
    // The customer's receipts stay; the caller removes them first.
    bool DeletePayee(qint32 id);
    // Fills the fields and gives true when the row exists; a missing row
    // leaves them as they were.
    bool LoadPayeeInfo(qint32 id);
};

#pragma once

#include "app/currency.h"
#include "catalogue/product.h"
#include "customers/payee.h"
#include "receipts/receipt.h"

#include <QDate>
#include <QList>
#include <QString>

// What the receipt editor writes once every question of a save has been
// answered: the customer, a new receipt's number, the receipt and its lines,
// all in one transaction. A write that fails leaves the file as it was: no
// customer, no receipt, no lines, and the counter where it stood, so no
// number is lost. This object changes only when everything has been written,
// so after a failure the editor still holds what the file holds and simply
// saves again.
//
// The editor fills the fields, calls save() and reads the results back:
//
//   ReceiptSave save;
//   save.payee = ...;            // payeeID: the customer to update, 0 for a new one
//   save.receipt = ...;          // receiptID: 0 for a new receipt
//   save.lines = ...;            // the product lines, in list order
//   save.loadedNumber = loadedNumber;
//   save.customerBalance = customerBalance;
//   if (save.save()) { customerID = save.payee.payeeID; receiptID = save.receipt.receiptID; ... }
class ReceiptSave {
public:
    // The customer as the screen shows it. save() sets lastPurchaseDate to
    // now and cuts State to its column's 20 characters.
    Payee payee;
    // The receipt as the screen shows it: date, amounts, payment, service,
    // receivedBy, description, type and custom fields. save() sets
    // receiptNumber (new receipts), payeeID, status (always issued),
    // voidReason (empty), accountBalance, and empties receiptDesc of a
    // product receipt.
    Receipt receipt;
    // The lines of a product receipt: productID, qty, cost (the price of this
    // sale), description and extDesc of each. Written only for a product
    // receipt; the receipt's old lines are always removed first.
    QList<Product> lines;
    // The number of an opened receipt; a new one takes the counter's next.
    QString loadedNumber;
    // The counter row numbers are taken from; the session's year2 by default.
    QString year;
    // The picked customer's balance before this receipt; after the save the
    // balance after it, which the receipt keeps as its accountBalance.
    Currency customerBalance;

    // Writes everything in one transaction and, once it is committed, updates
    // payee.payeeID, receipt.receiptID, receipt.receiptNumber,
    // receipt.accountBalance and customerBalance. A failure raises the
    // failing operation's BriskoError and changes nothing here. False when
    // the company's number format cannot number a receipt: the program has
    // been told to end, and nothing was written.
    bool save();

    // The void of a stored receipt: status void, with `reason`. False when
    // there is no such receipt.
    static bool voidReceipt(qint32 receiptID, const QString &reason);

    // The account balance after a receipt: an unpaid rest of a sale adds to
    // it, an account payment takes off what it received.
    static Currency balanceAfter(const Receipt &receipt, Currency balanceBefore);

private:
    void writeAll(Payee &customer, Receipt &record, const QDate &today) const;
};

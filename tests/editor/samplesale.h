#pragma once

#include "editor/receiptsave.h"

#include <QDateTime>

// A sale as the receipt editor hands it over: a new customer buying three
// lines of the products with keys 1 to 3, partly paid.
inline ReceiptSave sampleSale(const QString &customer) {
    using namespace Qt::Literals::StringLiterals;
    ReceiptSave save;
    save.year = u"13"_s;
    save.payee.payeeName = customer;
    save.payee.address1 = u"1 Quay Street"_s;
    save.payee.city = u"Oban"_s;
    save.payee.State = u"Argyll and Bute, Scotland"_s;
    save.payee.zip = u"PA34"_s;
    save.payee.email = u"o'neill@example.com"_s;

    Receipt &receipt = save.receipt;
    receipt.receiptDate = QDateTime(QDate(2013, 10, 25), QTime(14, 30));
    receipt.amountDue = Currency::fromText(u"16.75"_s);
    receipt.amountTax = Currency::fromText(u"1.34"_s);
    receipt.amountReceived = Currency::fromText(u"10"_s);
    receipt.balanceRemaining = Currency::fromText(u"8.09"_s);
    receipt.paymentType = 2;
    receipt.checkNumber = u"1041"_s;
    receipt.receivedBy = u"Ann"_s;
    receipt.receiptType = Receipt::ProductReceipt;
    receipt.receiptDesc = u"not kept on a product receipt"_s;
    receipt.customField1 = customer;

    const struct {
        qint32 productID;
        qint16 qty;
        const char *cost;
        const char *description;
        const char *extDesc;
    } rows[] = {{1, 3, "1.25", "Bolt", ""},
                {2, 1, "12.5", "Lamp, the shop's own", "with bulb"},
                {1, -1, "1.25", "Bolt returned", ""}};
    for (const auto &row : rows) {
        Product line;
        line.productID = row.productID;
        line.qty = row.qty;
        line.cost = Currency::fromText(QString::fromUtf8(row.cost));
        line.description = QString::fromUtf8(row.description);
        line.extDesc = QString::fromUtf8(row.extDesc);
        save.lines.append(line);
    }
    return save;
}

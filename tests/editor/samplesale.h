#pragma once

#include "editor/receiptsave.h"

#include <QDateTime>

// A new customer buying three lines of products 1 and 2, partly paid.
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

    const auto addLine = [&](qint32 productID, qint16 qty, const QString &cost,
                             const QString &description, const QString &extDesc = {}) {
        Product line;
        line.productID = productID;
        line.qty = qty;
        line.cost = Currency::fromText(cost);
        line.description = description;
        line.extDesc = extDesc;
        save.lines.append(line);
    };
    addLine(1, 3, u"1.25"_s, u"Bolt"_s);
    addLine(2, 1, u"12.5"_s, u"Lamp, the shop's own"_s, u"with bulb"_s);
    addLine(1, -1, u"1.25"_s, u"Bolt returned"_s);
    return save;
}

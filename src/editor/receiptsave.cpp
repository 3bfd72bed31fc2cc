#include "editor/receiptsave.h"

#include "app/database.h"
#include "app/session.h"

#include <QDateTime>

using namespace Qt::Literals::StringLiterals;

namespace {

// The width of tblPayee.state.
constexpr qsizetype kStateLength = 20;

// Now, to the second, as the file stores it.
QDateTime now() {
    QDateTime moment = QDateTime::currentDateTime();
    moment.setTime(QTime(moment.time().hour(), moment.time().minute(), moment.time().second()));
    return moment;
}

} // namespace

// The number format is tried before anything is written: a format that
// cannot number a receipt ends the program, and its box must not stand while
// the transaction holds the file.
bool ReceiptSave::save() {
    const QDate today = QDate::currentDate();
    if (receipt.receiptID == 0 && modMain::formatReceiptNumber(u"0"_s, today).isEmpty())
        return false;

    Payee customer = payee;
    Receipt record = receipt;
    writeAll(customer, record, today);

    payee = customer;
    receipt = record;
    customerBalance = record.accountBalance;
    return true;
}

void ReceiptSave::writeAll(Payee &customer, Receipt &record, const QDate &today) const {
    customer.State = customer.State.left(kStateLength);
    customer.lastPurchaseDate = now();

    db::Transaction transaction;
    customer.WritePayee();

    if (record.receiptID == 0) {
        const QString counterYear = year.isEmpty() ? session().year2 : year;
        const qint32 next = record.getNextReceiptNumber(counterYear);
        record.receiptNumber = modMain::formatReceiptNumber(QString::number(next), today);
    } else {
        record.receiptNumber = loadedNumber;
    }
    record.payeeID = customer.payeeID;
    record.status = Receipt::Issued;
    record.voidReason.clear();
    if (record.receiptType == Receipt::ProductReceipt)
        record.receiptDesc.clear();
    record.accountBalance = balanceAfter(record, customerBalance);
    record.writeReceipt();

    // A receipt that is no longer a product receipt keeps no lines.
    record.removeReceiptProducts(record.receiptID);
    if (record.receiptType == Receipt::ProductReceipt) {
        for (const Product &line : lines) {
            record.writeReceiptProducts(record.receiptID, line.productID, line.qty, line.cost,
                                        line.description, line.extDesc);
        }
    }
    transaction.commit();
}

// An overpaid sale leaves the balance alone; opening balances never come here.
Currency ReceiptSave::balanceAfter(const Receipt &receipt, Currency balanceBefore) {
    switch (receipt.receiptType) {
    case Receipt::ProductReceipt:
    case Receipt::ServiceReceipt:
        if (receipt.balanceRemaining > Currency())
            return balanceBefore + receipt.balanceRemaining;
        return balanceBefore;
    case Receipt::AccountPayment:
        return balanceBefore - receipt.amountReceived;
    default:
        return balanceBefore;
    }
}

// Only the status and the reason change: amounts, number and lines stay.
bool ReceiptSave::voidReceipt(qint32 receiptID, const QString &reason) {
    db::Transaction transaction;
    Receipt record;
    if (!record.GetReceipt(receiptID, u"0"_s))
        return false;
    record.status = Receipt::Void;
    record.voidReason = reason;
    record.writeReceipt();
    transaction.commit();
    return true;
}

#include "receipts/receipt.h"

#include "platform/briskoerror.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

// Copies a row of tblReceipt into `receipt`. The three columns added by later
// versions may be Null on old rows and then leave their field as it was; any
// other Null is the runtime's Null error.
void readReceipt(Receipt &receipt, const db::Row &row) {
    receipt.receiptID = row.int32(u"receiptID"_s);
    receipt.receiptNumber = row.text(u"receiptNumber"_s);
    receipt.receiptDate = row.dateTime(u"receiptDate"_s);
    receipt.payeeID = row.int32(u"payeeID"_s);
    receipt.amountDue = row.currency(u"amountDue"_s);
    receipt.amountReceived = row.currency(u"amountReceived"_s);
    receipt.balanceRemaining = row.currency(u"balanceRemaining"_s);
    receipt.amountOther = row.currency(u"amountOther"_s);
    receipt.amountDiscount = row.currency(u"amountDiscount"_s);
    receipt.amountTax = row.currency(u"amountTax"_s);
    receipt.receiptType = row.int16(u"receiptType"_s);
    receipt.checkNumber = row.textOr(u"checkNumber"_s, u""_s);
    receipt.receivedBy = row.text(u"receivedBy"_s);
    receipt.paymentType = row.int16(u"paymentType"_s);
    receipt.status = row.int16(u"status"_s);
    receipt.receiptDesc = row.text(u"receiptDesc"_s);
    receipt.otherPaymentDesc = row.text(u"otherPaymentDesc"_s);
    receipt.customField1 = row.text(u"customField1"_s);
    receipt.customField2 = row.text(u"customField2"_s);
    receipt.customField3 = row.text(u"customField3"_s);
    receipt.customField4 = row.text(u"customField4"_s);
    receipt.customField5 = row.text(u"customField5"_s);
    receipt.customField6 = row.text(u"customField6"_s);
    if (!row.isNull(u"accountBalance"_s))
        receipt.accountBalance = row.currency(u"accountBalance"_s);
    if (!row.isNull(u"serviceID"_s))
        receipt.serviceID = row.int16(u"serviceID"_s);
    if (!row.isNull(u"voidReason"_s))
        receipt.voidReason = row.text(u"voidReason"_s);
}

} // namespace

bool Receipt::writeReceipt() {
    return reraiseWithPrefix(u"Receipt.writeReceipt:  "_s, [this] {
        if (receiptID == 0)
            insertReceipt();
        else
            updateReceipt();
        return true;
    });
}

void Receipt::insertReceipt() {
    const qint64 key = db::insertReturningKey(
        u"INSERT INTO tblReceipt "
        "(receiptNumber,receiptDate,payeeID,amountDue,amountReceived,balanceRemaining,"
        "checkNumber,paymentType,receivedBy,status,receiptDesc,otherPaymentDesc, amountTax, "
        "amountOther, amountDiscount, receiptType, "
        "customField1, customField2, customField3, customField4, customField5, customField6, "
        "accountBalance,serviceID,voidReason) "
        "VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?) RETURNING receiptID"_s,
        {receiptNumber,    receiptDate,      payeeID,          amountDue,      amountReceived,
         balanceRemaining, checkNumber,      int(paymentType), receivedBy,     int(status),
         receiptDesc,      otherPaymentDesc, amountTax,        amountOther,    amountDiscount,
         int(receiptType), customField1,     customField2,     customField3,   customField4,
         customField5,     customField6,     accountBalance,   int(serviceID), voidReason});
    receiptID = static_cast<qint32>(key);
}

// A receipt's number never changes once written, so it is not in the SET list.
void Receipt::updateReceipt() {
    db::execute(
        u"UPDATE tblReceipt "
        "SET status= ?,payeeID = ?,amountDue = ?,receiptDate = ?,amountReceived = ?,"
        "balanceRemaining=?,checkNumber=?,paymentType=?,receivedBy=?,receiptDesc=?,"
        "otherPaymentDesc=?,amountTax=?,amountOther=?,amountDiscount=?,receiptType=?,"
        "customField1=?,customField2=?,customField3=?,customField4=?,customField5=?,"
        "customField6=?, accountBalance=?, serviceID =?, voidReason = ? "
        " WHERE receiptID = ?"_s,
        {int(status),      payeeID,        amountDue,        receiptDate,    amountReceived,
         balanceRemaining, checkNumber,    int(paymentType), receivedBy,     receiptDesc,
         otherPaymentDesc, amountTax,      amountOther,      amountDiscount, int(receiptType),
         customField1,     customField2,   customField3,     customField4,   customField5,
         customField6,     accountBalance, int(serviceID),   voidReason,     receiptID});
}

bool Receipt::deleteReceipt(qint32 receiptID) {
    return reraiseWithPrefix(u"Receipt.deleteReceipt:  "_s, [receiptID] {
        db::execute(u"DELETE FROM tblReceipt WHERE receiptID = ?"_s, {receiptID});
        return true;
    });
}

bool Receipt::DeletePayeeReceipts(qint32 payeeID) {
    return reraiseWithPrefix(u"Receipt.DeletePayeeReceipts:  "_s, [payeeID] {
        db::execute(u"DELETE FROM tblReceipt WHERE payeeID = ?"_s, {payeeID});
        return true;
    });
}

// The line total is worked out here and nowhere else.
bool Receipt::writeReceiptProducts(qint32 receiptID, qint32 productID, qint16 quantity,
                                   Currency overrideCost, const QString &overrideDesc,
                                   const QString &extDesc) {
    return reraiseWithPrefix(u"Receipt.writeReceiptProducts:  "_s, [&] {
        const Currency unitTotal = overrideCost * quantity;
        db::execute(
            u"INSERT INTO tblReceipt_Product "
            "(receiptID, productID, quantity, overrideCost, overrideDesc, unitTotal, "
            "extDesc) VALUES(?,?,?,?,?,?,?)"_s,
            {receiptID, productID, int(quantity), overrideCost, overrideDesc, unitTotal, extDesc});
        return true;
    });
}

bool Receipt::removeReceiptProducts(qint32 receiptID) {
    return reraiseWithPrefix(u"Receipt.removeReceiptProducts:  "_s, [receiptID] {
        db::execute(u"DELETE FROM tblReceipt_Product WHERE receiptID = ?"_s, {receiptID});
        return true;
    });
}

qint16 Receipt::ReassignReceipts(qint32 fromPayeeID, qint32 toPayeeID) {
    return reraiseWithPrefix(u"Receipt.ReassignReceipts:  "_s, [&] {
        const int changed = db::execute(u"UPDATE tblReceipt SET payeeID = ? WHERE payeeID = ?"_s,
                                        {toPayeeID, fromPayeeID});
        // The count is a 16-bit result, as callers have always read it.
        if (changed > std::numeric_limits<qint16>::max())
            raiseOverflow();
        return static_cast<qint16>(changed);
    });
}

bool Receipt::GetReceipt(qint32 receiptID, const QString &receiptNumber) {
    return reraiseWithPrefix(u"Receipt.getReceipt:  "_s, [&] {
        const std::optional<db::Row> row =
            receiptID < 1
                ? db::readFirst(u"SELECT * FROM tblReceipt WHERE receiptNumber = ?"_s,
                                {receiptNumber})
                : db::readFirst(u"SELECT * FROM tblReceipt WHERE receiptID = ?"_s, {receiptID});
        if (!row)
            return false;
        // Read into a copy, so that a failed read leaves this record as it was.
        Receipt loaded = *this;
        readReceipt(loaded, *row);
        *this = loaded;
        return true;
    });
}

qint32 Receipt::getLastReceiptID() {
    return reraiseWithPrefix(u"Receipt.getLastReceiptID:  "_s, [] {
        const std::optional<db::Row> row =
            db::readFirst(u"SELECT receiptID FROM tblReceipt ORDER BY receiptID DESC LIMIT 1"_s);
        return row ? row->int32(u"receiptID"_s) : 0;
    });
}

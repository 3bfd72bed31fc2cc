#include "receipts/receipt.h"

#include "platform/briskoerror.h"

using namespace Qt::Literals::StringLiterals;

db::Snapshot Receipt::GetPaymentMethods(qint16 filter) {
    return reraiseWithPrefix(u"Receipt.GetPaymentMethods:  "_s, [filter] {
        if (filter >= 0) {
            return db::select(
                u"SELECT * FROM tblPayMethod WHERE payMethodStatus = ? ORDER BY methodName"_s,
                {int(filter)});
        }
        return db::select(u"SELECT * FROM tblPayMethod ORDER BY methodName"_s);
    });
}

qint32 Receipt::WritePaymentMethod(qint32 payMethodID, const QString &methodName, qint16 status) {
    return reraiseWithPrefix(u"Receipt.WritePaymentMethod:  "_s, [&] {
        if (payMethodID != 0) {
            db::execute(u"UPDATE tblPayMethod SET methodName = ?, payMethodStatus = ? "
                        "WHERE payMethodID = ?"_s,
                        {methodName, int(status), payMethodID});
            return payMethodID;
        }
        return static_cast<qint32>(db::insertReturningKey(
            u"INSERT INTO tblPayMethod (methodName, payMethodStatus) VALUES(?, ?) "
            "RETURNING payMethodID"_s,
            {methodName, int(status)}));
    });
}

bool Receipt::DeletePaymentMethod(qint32 payMethodID) {
    return reraiseWithPrefix(u"Receipt.DeletePaymentMethod:  "_s, [payMethodID] {
        db::execute(u"DELETE FROM tblPayMethod WHERE payMethodID = ?"_s, {payMethodID});
        return true;
    });
}

// It fails under the prefix of the delete it guards.
bool Receipt::PaymentTypeIsUsed(qint32 payMethodID) {
    return reraiseWithPrefix(u"Receipt.DeletePaymentMethod:  "_s, [payMethodID] {
        const std::optional<db::Row> row = db::readFirst(
            u"SELECT COUNT(receiptID) as used FROM tblReceipt WHERE paymentType = ?"_s,
            {payMethodID});
        return row && row->int32(u"used"_s) >= 1;
    });
}

#include "customers/payee.h"

#include "platform/briskoerror.h"
#include "app/database.h"
#include "receipts/receipt.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kOpeningRows = u"SELECT * FROM tblReceipt WHERE payeeID = ? AND receiptType= 4"_s;

// The last opening-balance row of the customer, if any. Should there be more
// than one, the last returned is the one that counts.
std::optional<db::Row> lastOpeningRow(qint32 id) {
    const db::Snapshot rows = db::select(kOpeningRows, {id});
    if (rows.isEmpty())
        return std::nullopt;
    return rows.at(rows.size() - 1);
}

// Every row's amount is read in turn and the last one stays.
Currency openingAmount(qint32 id) {
    Currency amount;
    for (const db::Row &row : db::select(kOpeningRows, {id}))
        amount = row.currency(u"accountBalance"_s);
    return amount;
}

// What the customer's receipts other than the opening row do to the balance,
// summed by the engine: a sale adds what was left unpaid and never takes off
// what it took in beyond its total; only a payment on account lowers the
// balance; void rows and other types do nothing. A Null in any of the seven
// columns fails, on a void row too, so such rows are counted.
const QString kReceiptMovement = uR"(
    SELECT SUM(CASE
               WHEN status <> 1 THEN 0
               WHEN receiptType IN (0, 1)
                   THEN MAX(amountDue + amountTax + amountOther - amountDiscount - amountReceived, 0)
               WHEN receiptType = 2 THEN -amountReceived
               ELSE 0 END) AS movement,
           SUM(amountReceived IS NULL OR amountTax IS NULL OR amountOther IS NULL
               OR amountDiscount IS NULL OR amountDue IS NULL OR status IS NULL) AS nullRows
    FROM tblReceipt WHERE payeeID = ? AND receiptType <> 4)"_s;

Currency receiptMovement(qint32 id) {
    const std::optional<db::Row> sums = db::readFirst(kReceiptMovement, {id});
    if (sums->value(u"nullRows"_s).toLongLong() > 0)
        raiseInvalidUseOfNull();
    if (sums->isNull(u"movement"_s)) // no receipts
        return {};
    // The engine turns an integer sum that overflows into a real number.
    if (sums->value(u"movement"_s).typeId() != QMetaType::LongLong)
        raiseOverflow();
    return sums->currency(u"movement"_s);
}

} // namespace

const QDateTime Payee::zeroDate(QDate(1899, 12, 30), QTime(0, 0));

Currency Payee::GetPayeeBalance(qint32 id) {
    return reraiseWithPrefix(u"Payee.loadPayeeInfo:  "_s,
                             [id] { return openingAmount(id) + receiptMovement(id); });
}

Currency Payee::GetOpeningBalance(qint32 id) {
    return reraiseWithPrefix(u"Payee.GetOpeningBalance:  "_s, [id] { return openingAmount(id); });
}

// The row is looked up by this record's own payeeID and written for `id`;
// callers set the two alike.
bool Payee::SetBalance(qint32 id, Currency amount) {
    return reraiseWithPrefix(u"Payee.writePayee:  "_s, [&] {
        db::Transaction transaction;
        const std::optional<db::Row> existing = lastOpeningRow(payeeID);

        Receipt opening;
        opening.receiptID = existing ? existing->int32(u"receiptID"_s) : 0;
        opening.receiptNumber = u"Opening Balance"_s;
        opening.receiptDate = QDateTime(QDate::currentDate(), QTime(0, 0));
        opening.payeeID = id;
        opening.receivedBy = u"System"_s;
        opening.status = Receipt::Issued;
        opening.receiptType = Receipt::OpeningBalance;
        opening.accountBalance = amount;
        const bool written = opening.writeReceipt();
        transaction.commit();
        return written;
    });
}

bool Payee::WritePayee() {
    return reraiseWithPrefix(u"Payee.writePayee:  "_s, [this] {
        if (payeeID != 0) {
            db::execute(u"UPDATE tblPayee SET payeeName= ?,address1=?,address2=?,city=?,state=?,"
                        "zip=?,phone=?,lastPurchaseDate=?, email=? WHERE payeeID = ?"_s,
                        {payeeName, address1, address2, city, State, zip, phone, lastPurchaseDate,
                         email, payeeID});
            return true;
        }
        const qint64 key = db::insertReturningKey(
            u"INSERT INTO tblPayee "
            "(payeeName,address1,address2,city,state,zip,phone, lastPurchaseDate, email) "
            "VALUES(?,?,?,?,?,?,?,?,?) RETURNING payeeID"_s,
            {payeeName, address1, address2, city, State, zip, phone, lastPurchaseDate, email});
        payeeID = static_cast<qint32>(key);
        return true;
    });
}

bool Payee::DeletePayee(qint32 id) {
    return reraiseWithPrefix(u"Payee.DeletePayee:  "_s, [id] {
        db::execute(u"DELETE FROM tblPayee WHERE payeeID = ?"_s, {id});
        return true;
    });
}

// Address line 2, phone, e-mail and the purchase date may be Null and then
// leave their field as it was; a Null elsewhere fails, and the record keeps
// what it held before.
bool Payee::LoadPayeeInfo(qint32 id) {
    return reraiseWithPrefix(u"Payee.loadPayeeInfo:  "_s, [this, id] {
        const std::optional<db::Row> row =
            db::readFirst(u"SELECT * FROM tblPayee WHERE payeeID = ?"_s, {id});
        if (!row)
            return false;
        Payee loaded = *this;
        loaded.payeeName = row->text(u"payeeName"_s);
        loaded.payeeID = row->int32(u"payeeID"_s);
        loaded.address1 = row->text(u"address1"_s);
        loaded.address2 = row->textOr(u"address2"_s, address2);
        loaded.city = row->text(u"city"_s);
        loaded.State = row->text(u"state"_s);
        loaded.zip = row->text(u"zip"_s);
        loaded.phone = row->textOr(u"phone"_s, phone);
        loaded.email = row->textOr(u"email"_s, email);
        if (!row->isNull(u"lastPurchaseDate"_s))
            loaded.lastPurchaseDate = row->dateTime(u"lastPurchaseDate"_s);
        *this = loaded;
        return true;
    });
}

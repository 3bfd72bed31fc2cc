#include "receipts/receipt.h"

#include "app/runtimeformat.h"
#include "platform/briskoerror.h"
#include "receipts/receiptnumberlock.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kNumberNotTakenError = -10000;

} // namespace

bool Receipt::checkForYearChange(const QString &year) {
    return reraiseWithPrefix(u"Receipt.checkForYearChange:  "_s, [&] {
        return !db::readFirst(u"SELECT * FROM tblReceiptNumbering WHERE receiptYear = ?"_s, {year});
    });
}

// The table holds the last number used, so the first receipt of the year
// gets `startNumber` itself.
bool Receipt::createReceiptYear(const QString &year, const QString &startNumber) {
    return reraiseWithPrefix(u"Receipt.createReceiptYear:  "_s, [&] {
        qint32 lastNumberUsed = Runtime::toInt32(startNumber);
        if (lastNumberUsed > 0)
            --lastNumberUsed;
        db::execute(u"INSERT INTO tblReceiptNumbering (receiptYear,lastNumberUsed) VALUES(?,?) "_s,
                    {year, lastNumberUsed});
        return true;
    });
}

bool Receipt::updateReceiptNumberUsed(const QString &year, qint32 number) {
    return reraiseWithPrefix(u"Receipt.updateReceiptNumberUsed:  "_s, [&] {
        db::execute(u"UPDATE tblReceiptNumbering SET lastNumberUsed=? WHERE receiptYear=?"_s,
                    {number, year});
        return true;
    });
}

// The number is consumed here and never given back. The lock file keeps other
// machines out; the transaction (BEGIN IMMEDIATE, or the caller's own) keeps
// the read and the write together in the file itself.
qint32 Receipt::getNextReceiptNumber(const QString &year) {
    return reraiseWithPrefix(u"Receipt.getNextReceiptNumber:  "_s, [&] {
        ReceiptNumberLock lock;
        qint32 next = -1;
        {
            db::Transaction transaction;
            const std::optional<db::Row> row = db::readFirst(
                u"SELECT lastNumberUsed FROM tblReceiptNumbering WHERE receiptYear = ?"_s, {year});
            if (row)
                next = row->int32(u"lastNumberUsed"_s) + 1;
            if (!updateReceiptNumberUsed(year, next)) {
                throw BriskoError(kNumberNotTakenError,
                                  QCoreApplication::translate(
                                      "Receipt", "Could not retrieve the next receipt number.  "
                                                 "Please try again."));
            }
            transaction.commit();
        }
        lock.release();
        return next;
    });
}

// The newest year row is the highest year text.
qint32 Receipt::GetLastReceiptNumber() {
    return reraiseWithPrefix(u"Receipt.GetLastReceiptNumber:  "_s, [] {
        ReceiptNumberLock lock;
        const std::optional<db::Row> row = db::readFirst(
            u"SELECT lastNumberUsed FROM tblReceiptNumbering ORDER BY receiptYear DESC LIMIT 1"_s);
        const qint32 last = row ? row->int32(u"lastNumberUsed"_s) : -1;
        lock.release();
        return last;
    });
}

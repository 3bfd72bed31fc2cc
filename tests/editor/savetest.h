#pragma once

#include "receipts/receipt.h"
#include "samplesale.h"
#include "support/briskotest.h"

using namespace Qt::Literals::StringLiterals;

// What a save left in the file, read back row by row.
struct StoredRows {
    static int count(const QString &table) {
        return db::readFirst(u"SELECT COUNT(*) AS n FROM "_s + table)->int32(u"n"_s);
    }
    // Customers, receipts, lines and the last number used, as "1 1 3 1".
    static QString tally() {
        return u"%1 %2 %3 %4"_s.arg(count(u"tblPayee"_s))
            .arg(count(u"tblReceipt"_s))
            .arg(count(u"tblReceipt_Product"_s))
            .arg(lastNumberUsed());
    }
    static qint32 lastNumberUsed() {
        return db::readFirst(u"SELECT lastNumberUsed FROM tblReceiptNumbering "
                             "WHERE receiptYear = '13'"_s)
            ->int32(u"lastNumberUsed"_s);
    }
    // The lines of a receipt, one "qty | product | cost | desc | total | ext" each.
    static QStringList linesOf(qint32 receiptID) {
        QStringList lines;
        for (const db::Row &row :
             db::select(u"SELECT * FROM tblReceipt_Product WHERE receiptID = ? ORDER BY rowid"_s,
                        {receiptID})) {
            lines.append(
                QStringList{row.text(u"quantity"_s), row.text(u"productID"_s),
                            row.currency(u"overrideCost"_s).toString(), row.text(u"overrideDesc"_s),
                            row.currency(u"unitTotal"_s).toString(), row.text(u"extDesc"_s)}
                    .join(u" | "_s));
        }
        return lines;
    }
    static bool integrityOk() {
        return db::readFirst(u"PRAGMA integrity_check"_s)->text(u"integrity_check"_s) == u"ok"_s;
    }
};

// Saves on a fresh database whose counter for '13 starts at 1.
class SaveTest : public BriskoTest, protected StoredRows {
protected:
    void SetUp() override {
        BriskoTest::SetUp();
        Receipt().createReceiptYear(u"13"_s, u"1"_s);
    }
};

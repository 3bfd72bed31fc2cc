#pragma once

#include "app/session.h"
#include "platform/briskoerror.h"
#include "receipts/receipt.h"
#include "support/briskotest.h"

#include <QDate>
#include <QDateTime>
#include <QFile>

// Receipts on a fresh database, with a few shortcuts to set up rows.
class ReceiptTest : public BriskoTest {
protected:
    static Receipt issuedReceipt(const QString &number, const QDateTime &date, qint32 payeeID = 0) {
        Receipt receipt;
        receipt.receiptNumber = number;
        receipt.receiptDate = date;
        receipt.payeeID = payeeID;
        receipt.status = Receipt::Issued;
        receipt.receivedBy = QStringLiteral("Ann");
        return receipt;
    }

    // Writes a receipt and gives its key.
    static qint32 saved(Receipt receipt) {
        receipt.writeReceipt();
        return receipt.receiptID;
    }

    static qint32 lastNumberUsed(const QString &year) {
        return db::readFirst(QStringLiteral("SELECT lastNumberUsed FROM tblReceiptNumbering "
                                            "WHERE receiptYear = ?"),
                             {year})
            ->int32(QStringLiteral("lastNumberUsed"));
    }

    // The database becomes the shared file of a multi-user setup.
    void shareDatabase() {
        session().useSharedFile = true;
        session().shareFileLocation = databasePath();
    }

    QString lockFile() const { return databasePath() + QStringLiteral(".lck"); }

    static QDateTime at(int year, int month, int day, int hour = 0) {
        return QDateTime(QDate(year, month, day), QTime(hour, 0));
    }
};

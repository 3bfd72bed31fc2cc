#pragma once

#include "app/database.h"
#include "platform/encryption.h"

#include <QString>
#include <QVariant>

// Accounts written straight into tblUser, so that the tests of the record
// and of the screens do not lean on the code they check.
namespace usertest {

inline QString encrypted(const QString &plain) {
    return Utility::EncryptString(plain, QString::fromUtf16(Utility::kPasswordKey));
}

inline qint32 addAccount(const QString &name, const QString &plain, int status = 1,
                         int isAdmin = 0) {
    const QString password = plain.isEmpty() ? QString::fromLatin1("") : encrypted(plain);
    return static_cast<qint32>(db::insertReturningKey(
        QString::fromLatin1("INSERT INTO tblUser (username, password, canEdit, canDelete, "
                            "canVoid, status, isAdmin, canRunReports) "
                            "VALUES (?, ?, 0, 1, 0, ?, ?, 1) RETURNING userID"),
        {name, password, status, isAdmin}));
}

// The password column as stored: a Null comes back as an invalid QVariant.
inline QVariant storedPassword(qint32 userID) {
    const auto row = db::readFirst(
        QString::fromLatin1("SELECT password FROM tblUser WHERE userID = ?"), {userID});
    return row && !row->isNull(QString::fromLatin1("password"))
               ? row->value(QString::fromLatin1("password"))
               : QVariant();
}

inline qint64 accountCount() {
    return db::readFirst(QString::fromLatin1("SELECT COUNT(*) AS n FROM tblUser"))
        ->value(QString::fromLatin1("n"))
        .toLongLong();
}

} // namespace usertest

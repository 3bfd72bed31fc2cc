#pragma once

#include "app/database.h"
#include "platform/encryption.h"

#include <QString>

// Accounts written straight into tblUser, so that the tests of the record
// and of the screens do not lean on the code they check.
namespace usertest {

using namespace Qt::Literals::StringLiterals;

inline QString encrypted(const QString &plain) {
    return Utility::EncryptString(plain, QString::fromUtf16(Utility::kPasswordKey));
}

// Rights as stored: canEdit 0, canDelete 1, canVoid 0, canRunReports 1.
inline qint32 addAccount(const QString &name, const QString &plain, int status = 1,
                         int isAdmin = 0) {
    return static_cast<qint32>(db::insertReturningKey(
        u"INSERT INTO tblUser (username, password, canEdit, canDelete, canVoid, status, "
        u"isAdmin, canRunReports) VALUES (?, ?, 0, 1, 0, ?, ?, 1) RETURNING userID"_s,
        {name, encrypted(plain), status, isAdmin}));
}

// The password column as stored, "NULL" for a Null.
inline QString storedPassword(qint32 userID) {
    return db::readFirst(u"SELECT password FROM tblUser WHERE userID = ?"_s, {userID})
        ->textOr(u"password"_s, u"NULL"_s);
}

} // namespace usertest

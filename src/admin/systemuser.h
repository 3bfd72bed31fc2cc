#pragma once

#include "app/database.h"

#include <QString>

// One account of tblUser: who may log in, and with which rights.
// The password field holds the encrypted text, never the typed one.
class SystemUser {
public:
    qint32 userID = 0;
    QString username;
    QString password;
    qint16 canEdit = 0;
    qint16 canDelete = 0;
    qint16 canVoid = 0;
    qint16 isAdmin = 0;
    qint16 status = 0;
    qint16 canRunReports = 0;

    // By key when userID is not 0, else by name and encrypted password.
    // Fills the fields and gives true when a row was found; a missing row
    // leaves them as they were. A Null in any column fails.
    bool GetUser(const QString &username, const QString &password, qint32 userID);
    // Every account, ordered by username.
    db::Snapshot GetUsers() const;
    // Inserts when userID is 0 and learns the new key, else updates. An empty
    // password keeps the stored one on update.
    bool WriteUser();
    bool DeleteUser(qint32 userID);

private:
    void readFrom(const db::Row &row);
    void insertUser();
    void updateUser();
};

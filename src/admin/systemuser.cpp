#include "admin/systemuser.h"

#include "app/session.h"
#include "platform/briskoerror.h"

using namespace Qt::Literals::StringLiterals;

bool SystemUser::GetUser(const QString &username, const QString &password, qint32 userID) {
    return reraiseWithPrefix(u"User.GetUser:  "_s, [&] {
        const std::optional<db::Row> row =
            userID != 0
                ? db::readFirst(u"SELECT * FROM tblUser WHERE userID = ?"_s, {userID})
                : db::readFirst(u"SELECT * FROM tblUser WHERE username = ? AND password = ?"_s,
                                {username, password});
        if (!row)
            return false;
        readFrom(*row);
        return true;
    });
}

db::Snapshot SystemUser::GetUsers() const {
    return reraiseWithPrefix(u"User.GetUser:  "_s, [] {
        return db::select(u"SELECT * FROM tblUser ORDER BY username"_s);
    });
}

bool SystemUser::WriteUser() {
    return reraiseWithPrefix(u"User.WriteUser:  "_s, [this] {
        if (userID == 0)
            insertUser();
        else
            updateUser();
        return true;
    });
}

bool SystemUser::DeleteUser(qint32 userID) {
    return reraiseWithPrefix(u"User.DeleteUser:  "_s, [userID] {
        db::execute(u"DELETE FROM tblUser WHERE userID = ?"_s, {userID});
        return true;
    });
}

void SystemUser::readFrom(const db::Row &row) {
    userID = row.int32(u"userID"_s);
    username = row.text(u"username"_s);
    password = row.text(u"password"_s);
    canEdit = row.int16(u"canEdit"_s);
    canDelete = row.int16(u"canDelete"_s);
    canVoid = row.int16(u"canVoid"_s);
    isAdmin = row.int16(u"isAdmin"_s);
    status = row.int16(u"status"_s);
    canRunReports = row.int16(u"canRunReports"_s);
}

void SystemUser::insertUser() {
    const qint64 key = db::insertReturningKey(
        u"INSERT INTO tblUser"
        "(username, password, canEdit, canDelete, canVoid, status, isAdmin, canRunReports) "
        "VALUES(?, ?, ?, ?, ?, ?, ?, ?) RETURNING userID"_s,
        {username, password, int(canEdit), int(canDelete), int(canVoid), int(status), int(isAdmin),
         int(canRunReports)});
    userID = static_cast<qint32>(key);
}

void SystemUser::updateUser() {
    // An empty password means the account keeps the one it has.
    const bool withPassword = !password.isEmpty();
    QString sql = u"UPDATE tblUser SET username = ?, "_s;
    db::Params params{username};
    if (withPassword) {
        sql += u"password = ?, "_s;
        params.append(password);
    }
    sql += u"canEdit = ?, canDelete = ?, canVoid = ?, status = ?, isAdmin = ?, "
           "canRunReports = ? WHERE userID = ?"_s;
    params.append({int(canEdit), int(canDelete), int(canVoid), int(status), int(isAdmin),
                   int(canRunReports), userID});
    db::execute(sql, params);
}

UserRights currentUserRights() {
    const SystemUser *user = session().currentUser.get();
    if (!user)
        return {};
    return {.canEdit = user->canEdit == 1,
            .canDelete = user->canDelete == 1,
            .canVoid = user->canVoid == 1,
            .isAdmin = user->isAdmin == 1};
}

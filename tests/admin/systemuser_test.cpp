#include "admin/systemuser.h"
#include "app/session.h"
#include "support/briskotest.h"
#include "usertestdata.h"

using namespace Qt::Literals::StringLiterals;
using namespace usertest;

namespace {

using SystemUserTest = BriskoTest;

SystemUser newAccount(const QString &name, const QString &password) {
    SystemUser user;
    user.username = name;
    user.password = password;
    user.canEdit = 1;
    user.canVoid = 1;
    user.status = 1;
    user.canRunReports = 1;
    return user;
}

TEST_F(SystemUserTest, AccountsAreFoundByKeyOrByNameAndPasswordListedAndDeleted) {
    SystemUser written = newAccount(u"O'Brien"_s, encrypted(u"pa's"_s));
    EXPECT_TRUE(written.WriteUser());
    addAccount(u"ann"_s, u"a"_s);

    SystemUser byKey;
    ASSERT_TRUE(byKey.GetUser({}, {}, written.userID));
    EXPECT_EQ(byKey.username, u"O'Brien"_s);
    EXPECT_EQ((QList<int>{byKey.canEdit, byKey.canDelete, byKey.canVoid, byKey.isAdmin,
                          byKey.status, byKey.canRunReports}),
              (QList<int>{1, 0, 1, 0, 1, 1}));
    SystemUser byName;
    ASSERT_TRUE(byName.GetUser(u"O'Brien"_s, encrypted(u"pa's"_s), 0));
    EXPECT_EQ(byName.userID, written.userID);

    // Not found leaves the fields as they were.
    EXPECT_FALSE(byName.GetUser(u"O'Brien"_s, encrypted(u"wrong"_s), 0));
    EXPECT_FALSE(byName.GetUser({}, {}, 999));
    EXPECT_EQ(byName.username, u"O'Brien"_s);

    QStringList names;
    for (const db::Row &row : SystemUser().GetUsers())
        names.append(row.text(u"username"_s));
    EXPECT_EQ(names, (QStringList{u"O'Brien"_s, u"ann"_s}));
    EXPECT_TRUE(SystemUser().DeleteUser(written.userID));
    EXPECT_EQ(accountCount(), 1);
}

TEST_F(SystemUserTest, AnEmptyPasswordKeepsTheStoredOneOrStoresTheEmptyText) {
    const qint32 id = addAccount(u"ann"_s, u"first"_s);
    SystemUser user = newAccount(u"annie"_s, QString());
    user.userID = id;
    user.WriteUser();
    EXPECT_EQ(storedPassword(id).toString(), encrypted(u"first"_s));
    EXPECT_EQ(accountCount(), 1);

    SystemUser fresh = newAccount(u"bob"_s, QString());
    fresh.WriteUser();
    EXPECT_EQ(storedPassword(fresh.userID), QVariant(u""_s)); // not Null
    EXPECT_TRUE(SystemUser().GetUser(u"bob"_s, encrypted(QString()), 0));
}

TEST_F(SystemUserTest, FailuresCarryTheirRoutinesPrefix) {
    const qint32 id = addAccount(u"ann"_s, u"a"_s);
    db::execute(u"UPDATE tblUser SET canRunReports = NULL"_s);
    EXPECT_EQ(errorOf([&] { SystemUser().GetUser({}, {}, id); }).description(),
              u"User.GetUser:  Invalid use of Null"_s);

    setConnectionString(tempPath(u"missing.db"_s));
    const auto prefixOf = [](auto &&operation) {
        return errorOf(operation).description().section(u"  "_s, 0, 0);
    };
    SystemUser user = newAccount(u"ann"_s, {});
    EXPECT_EQ(prefixOf([&] { user.GetUsers(); }), u"User.GetUser:"_s);
    EXPECT_EQ(prefixOf([&] { user.WriteUser(); }), u"User.WriteUser:"_s);
    EXPECT_EQ(prefixOf([&] { user.DeleteUser(1); }), u"User.DeleteUser:"_s);
}

} // namespace

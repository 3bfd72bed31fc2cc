#include "admin/systemuser.h"
#include "support/briskotest.h"
#include "usertestdata.h"

using namespace usertest;

namespace {

using SystemUserTest = BriskoTest;

SystemUser account(const QString &name, const QString &password) {
    return {.username = name,
            .password = password,
            .canEdit = 1,
            .canVoid = 1,
            .status = 1,
            .canRunReports = 1};
}

QStringList accountNames() {
    QStringList names;
    for (const db::Row &row : SystemUser().GetUsers())
        names.append(row.text(u"username"_s));
    return names;
}

TEST_F(SystemUserTest, AccountsAreFoundByKeyOrByNameAndPasswordListedAndDeleted) {
    SystemUser written = account(u"O'Brien"_s, encrypted(u"pa's"_s));
    EXPECT_TRUE(written.WriteUser());
    const qint32 annID = addAccount(u"ann"_s, u"a"_s);
    addAccount(u"Bob"_s, u"b"_s);

    SystemUser byKey;
    ASSERT_TRUE(byKey.GetUser({}, {}, written.userID));
    EXPECT_EQ(byKey.username, u"O'Brien"_s);
    EXPECT_EQ((QList<int>{byKey.canEdit, byKey.canDelete, byKey.canVoid, byKey.isAdmin,
                          byKey.status, byKey.canRunReports}),
              (QList<int>{1, 0, 1, 0, 1, 1}));
    SystemUser byName;
    ASSERT_TRUE(byName.GetUser(u"O'Brien"_s, encrypted(u"pa's"_s), 0));
    EXPECT_EQ(byName.userID, written.userID);
    EXPECT_FALSE(SystemUser().GetUser(u"O'Brien"_s, encrypted(u"wrong"_s), 0));

    // Names sort without regard to case.
    EXPECT_EQ(accountNames(), (QStringList{u"ann"_s, u"Bob"_s, u"O'Brien"_s}));
    EXPECT_TRUE(SystemUser().DeleteUser(written.userID));
    EXPECT_EQ(accountNames(), (QStringList{u"ann"_s, u"Bob"_s}));

    // The name compares without regard to case, the password exactly.
    SystemUser ann;
    ASSERT_TRUE(ann.GetUser(u"ANN"_s, encrypted(u"a"_s), 0));
    EXPECT_EQ(ann.username, u"ann"_s);
    db::execute(u"UPDATE tblUser SET password = 'AbC'"_s);
    EXPECT_TRUE(SystemUser().GetUser(u"ANN"_s, u"AbC"_s, 0));
    EXPECT_FALSE(SystemUser().GetUser(u"ANN"_s, u"abc"_s, 0));

    db::execute(u"UPDATE tblUser SET canRunReports = NULL"_s);
    EXPECT_EQ(errorOf([&] { SystemUser().GetUser({}, {}, annID); }).description(),
              u"User.GetUser:  Invalid use of Null"_s);
}

TEST_F(SystemUserTest, AnUpdateWithAnEmptyPasswordKeepsTheStoredOne) {
    SystemUser user = account(u"ann"_s, encrypted(u"first"_s));
    user.WriteUser();
    user.username = u"annie"_s;
    user.password.clear();
    user.canDelete = 1;
    user.WriteUser();
    EXPECT_EQ(storedPassword(user.userID), encrypted(u"first"_s));
    SystemUser stored;
    ASSERT_TRUE(stored.GetUser({}, {}, user.userID));
    EXPECT_EQ(stored.username, u"annie"_s);
    EXPECT_EQ(stored.canDelete, 1);

    // A new account without one stores the empty text, and logs in with it.
    SystemUser fresh = account(u"bob"_s, {});
    fresh.WriteUser();
    EXPECT_EQ(storedPassword(fresh.userID), u""_s);
    EXPECT_TRUE(SystemUser().GetUser(u"bob"_s, encrypted({}), 0));
}

} // namespace

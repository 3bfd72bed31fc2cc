#include "admin/systemuser.h"
#include "app/briskoerror.h"
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
    user.canDelete = 0;
    user.canVoid = 1;
    user.isAdmin = 0;
    user.status = 1;
    user.canRunReports = 1;
    return user;
}

TEST_F(SystemUserTest, WrittenAccountIsFoundByKeyAndByNameAndPassword) {
    SystemUser written = newAccount(u"O'Brien"_s, encrypted(u"pa's"_s));
    EXPECT_TRUE(written.WriteUser());
    ASSERT_GT(written.userID, 0);

    SystemUser byKey;
    ASSERT_TRUE(byKey.GetUser({}, {}, written.userID));
    EXPECT_EQ(byKey.username, u"O'Brien"_s);
    EXPECT_EQ(byKey.password, encrypted(u"pa's"_s));
    EXPECT_EQ((QList<int>{byKey.canEdit, byKey.canDelete, byKey.canVoid, byKey.isAdmin,
                          byKey.status, byKey.canRunReports}),
              (QList<int>{1, 0, 1, 0, 1, 1}));

    SystemUser byName;
    ASSERT_TRUE(byName.GetUser(u"O'Brien"_s, encrypted(u"pa's"_s), 0));
    EXPECT_EQ(byName.userID, written.userID);
}

TEST_F(SystemUserTest, MissingRowLeavesTheFieldsAsTheyWere) {
    addAccount(u"ann"_s, u"right"_s);
    SystemUser user;
    user.username = u"kept"_s;
    EXPECT_FALSE(user.GetUser(u"ann"_s, encrypted(u"wrong"_s), 0));
    EXPECT_FALSE(user.GetUser({}, {}, 0)); // a new account's load finds nothing
    EXPECT_FALSE(user.GetUser({}, {}, 999));
    EXPECT_EQ(user.username, u"kept"_s);
    EXPECT_EQ(user.userID, 0);
}

TEST_F(SystemUserTest, UpdateKeepsTheStoredPasswordWhenGivenNone) {
    const qint32 id = addAccount(u"ann"_s, u"first"_s);
    SystemUser user = newAccount(u"annie"_s, QString());
    user.userID = id;
    user.WriteUser();
    EXPECT_EQ(storedPassword(id).toString(), encrypted(u"first"_s));
    EXPECT_EQ(user.userID, id);
    EXPECT_EQ(accountCount(), 1);

    user.password = encrypted(u"second"_s);
    user.WriteUser();
    SystemUser reread;
    ASSERT_TRUE(reread.GetUser({}, {}, id));
    EXPECT_EQ(reread.username, u"annie"_s);
    EXPECT_EQ(reread.password, encrypted(u"second"_s));
}

TEST_F(SystemUserTest, NewAccountWithoutPasswordStoresTheEmptyTextNotNull) {
    SystemUser user = newAccount(u"ann"_s, QString());
    user.WriteUser();
    const QVariant stored = storedPassword(user.userID);
    ASSERT_TRUE(stored.isValid()) << "the password was stored as Null";
    EXPECT_EQ(stored.toString(), u""_s);
    SystemUser found;
    EXPECT_TRUE(found.GetUser(u"ann"_s, encrypted(QString()), 0));
}

TEST_F(SystemUserTest, ListIsOrderedByNameAndDeleteRemovesOneAccount) {
    addAccount(u"zoe"_s, u"z"_s);
    const qint32 ann = addAccount(u"ann"_s, u"a"_s);
    addAccount(u"mia"_s, u"m"_s);

    SystemUser users;
    QStringList names;
    for (const db::Row &row : users.GetUsers())
        names.append(row.text(u"username"_s));
    EXPECT_EQ(names, (QStringList{u"ann"_s, u"mia"_s, u"zoe"_s}));

    EXPECT_TRUE(users.DeleteUser(ann));
    EXPECT_EQ(accountCount(), 2);
    EXPECT_FALSE(users.GetUser({}, {}, ann));
}

TEST_F(SystemUserTest, NullInAnyColumnFailsWithThePrefix) {
    const qint32 id = addAccount(u"ann"_s, u"a"_s);
    db::execute(u"UPDATE tblUser SET canRunReports = NULL"_s);
    SystemUser user;
    try {
        user.GetUser({}, {}, id);
        FAIL() << "a Null column was read";
    } catch (const BriskoError &error) {
        EXPECT_EQ(error.number(), RuntimeError::InvalidUseOfNull);
        EXPECT_TRUE(error.description().startsWith(u"User.GetUser:  "_s)) << error.what();
    }
}

TEST_F(SystemUserTest, FailuresCarryTheirRoutinesPrefix) {
    setConnectionString(tempPath(u"missing.db"_s));
    SystemUser user = newAccount(u"ann"_s, {});
    const auto prefixOf = [](auto &&operation) -> QString {
        try {
            operation();
        } catch (const BriskoError &error) {
            return error.description().section(u"  "_s, 0, 0) + u"  "_s;
        }
        return u"no error"_s;
    };
    EXPECT_EQ(prefixOf([&] { user.GetUser(u"ann"_s, {}, 0); }), u"User.GetUser:  "_s);
    EXPECT_EQ(prefixOf([&] { user.GetUsers(); }), u"User.GetUser:  "_s);
    EXPECT_EQ(prefixOf([&] { user.WriteUser(); }), u"User.WriteUser:  "_s);
    EXPECT_EQ(prefixOf([&] { user.DeleteUser(1); }), u"User.DeleteUser:  "_s);
}

} // namespace

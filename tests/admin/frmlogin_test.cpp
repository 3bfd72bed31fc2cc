#include "admin/frmlogin.h"
#include "admin/systemuser.h"
#include "app/session.h"
#include "support/briskotest.h"
#include "usertestdata.h"

#include <QLineEdit>
#include <QTest>

using namespace usertest;

namespace {

class LoginTest : public BriskoTest {
protected:
    // Opens the login, types the two texts and submits them once, by Enter in
    // the password box or by the button. Gives whether the login stayed open;
    // then it is closed, as the person would.
    bool stayedOpen(const QString &name, const QString &password, bool byEnter) {
        return driveModal<frmLogin>(
            [] { frmLogin().exec(); },
            [&](frmLogin &login) {
                auto *txtPassword = control<QLineEdit>(login, u"txtPassword"_s);
                QTest::keyClicks(control<QLineEdit>(login, u"txtUsername"_s), name);
                QTest::keyClicks(txtPassword, password);
                if (byEnter)
                    QTest::keyClick(txtPassword, Qt::Key_Return);
                else
                    click(login, u"cmdLogin"_s);
                const bool open = login.isVisible();
                if (open)
                    login.reject();
                return open;
            });
    }
};

TEST_F(LoginTest, OnlyAnActiveAccountWithItsPasswordLogsIn) {
    driveModal<frmLogin>(
        [] { frmLogin().exec(); },
        [](frmLogin &login) {
            EXPECT_EQ(login.windowTitle(), u"Brisko Login"_s);
            QTest::keyClick(control<QLineEdit>(login, u"txtUsername"_s), Qt::Key_Return);
            EXPECT_EQ(login.focusWidget(), control<QLineEdit>(login, u"txtPassword"_s));
            QTest::keyClick(&login, Qt::Key_Escape);
        });
    const qint32 id = addAccount(u"O'Brien"_s, u"it's"_s);
    addAccount(u"bob"_s, u"s3cret"_s, /*status=*/0);
    EXPECT_TRUE(stayedOpen(u"O'Brien"_s, u"wrong"_s, true));
    EXPECT_TRUE(stayedOpen(u"bob"_s, u"s3cret"_s, false));
    setConnectionString(tempPath(u"missing.db"_s));
    EXPECT_TRUE(stayedOpen(u"O'Brien"_s, u"it's"_s, false));
    // Closing the login leaves no user, on which the program ends.
    EXPECT_FALSE(session().currentUser);

    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 3) << "Enter ran the login more than once";
    EXPECT_EQ(lines[0], u"Invalid Login | Invalid username/password | Exclamation"_s);
    EXPECT_EQ(lines[1], u"Inactive Account | User account is not active.  Please contact your "
                        u"administrator. | Exclamation"_s);
    EXPECT_TRUE(lines[2].startsWith(u"Error | An error has occured: User.GetUser:  "_s));
    EXPECT_TRUE(lines[2].endsWith(u" | Critical"_s));

    setConnectionString(databasePath());
    EXPECT_FALSE(stayedOpen(u"O'Brien"_s, u"it's"_s, true));
    EXPECT_EQ(boxes().shown.size(), 3);
    ASSERT_TRUE(session().currentUser);
    EXPECT_EQ(session().currentUser->userID, id);
}

} // namespace

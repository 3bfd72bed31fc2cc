#include "admin/frmlogin.h"
#include "admin/systemuser.h"
#include "app/session.h"
#include "support/briskotest.h"
#include "usertestdata.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace usertest;

namespace {

class LoginTest : public BriskoTest {
protected:
    enum class Submit { EnterInPassword, LoginButton };

    // Opens the login, types the two texts, submits once and gives the
    // dialog's result. A login that stays open is closed after the attempt.
    int attempt(const QString &name, const QString &password, Submit submit) {
        int result = -1;
        driveModal<frmLogin>(
            [&] {
                frmLogin login;
                result = login.exec();
            },
            [&](frmLogin &login) {
                auto *txtPassword = login.findChild<QLineEdit *>(u"txtPassword"_s);
                QTest::keyClicks(login.findChild<QLineEdit *>(u"txtUsername"_s), name);
                QTest::keyClicks(txtPassword, password);
                if (submit == Submit::EnterInPassword)
                    QTest::keyClick(txtPassword, Qt::Key_Return);
                else
                    QTest::mouseClick(login.findChild<QPushButton *>(u"cmdLogin"_s),
                                      Qt::LeftButton);
                stayedOpen = login.isVisible();
                if (stayedOpen)
                    login.reject();
            });
        return result;
    }

    bool stayedOpen = false;
};

TEST_F(LoginTest, GoodLoginByEnterSetsTheCurrentUserWithoutABox) {
    {
        frmLogin login;
        EXPECT_EQ(login.windowTitle(), u"Brisko Login"_s);
        EXPECT_EQ(login.findChild<QLabel *>(u"lblVersion"_s)->text(), u"Version 4.2.5"_s);
    }
    const qint32 id = addAccount(u"O'Brien"_s, u"it's"_s);
    EXPECT_EQ(attempt(u"O'Brien"_s, u"it's"_s, Submit::EnterInPassword), QDialog::Accepted);
    EXPECT_TRUE(boxes().shown.isEmpty());
    ASSERT_TRUE(session().currentUser);
    EXPECT_EQ(session().currentUser->userID, id);
}

// Each failed try shows one box and leaves the login open for another.
TEST_F(LoginTest, AWrongPasswordAnInactiveAccountOrAFailureKeepTheLoginOpen) {
    addAccount(u"ann"_s, u"s3cret"_s);
    addAccount(u"bob"_s, u"s3cret"_s, /*status=*/0);
    attempt(u"ann"_s, u"wrong"_s, Submit::EnterInPassword);
    EXPECT_TRUE(stayedOpen);
    attempt(u"bob"_s, u"s3cret"_s, Submit::LoginButton);
    EXPECT_TRUE(stayedOpen);
    setConnectionString(tempPath(u"missing.db"_s));
    attempt(u"ann"_s, u"s3cret"_s, Submit::LoginButton);
    EXPECT_TRUE(stayedOpen);

    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 3) << "Enter ran the login more than once";
    EXPECT_EQ(lines[0], u"Invalid Login | Invalid username/password | Exclamation"_s);
    EXPECT_EQ(lines[1], u"Inactive Account | User account is not active.  Please contact your "
                        u"administrator. | Exclamation"_s);
    EXPECT_TRUE(lines[2].startsWith(u"Error | An error has occured: User.GetUser:  "_s));
    EXPECT_TRUE(lines[2].endsWith(u" | Critical"_s));
    EXPECT_FALSE(session().currentUser);
}

} // namespace

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

TEST_F(LoginTest, ShowsItsCaptionAndTheBuildsVersion) {
    frmLogin login;
    login.show();
    EXPECT_EQ(login.focusWidget(), login.findChild<QLineEdit *>(u"txtUsername"_s));
    EXPECT_EQ(login.windowTitle(), u"Brisko Login"_s);
    EXPECT_EQ(login.findChild<QLabel *>(u"lblVersion"_s)->text(), u"Version 4.2.5"_s);
    auto *txtPassword = login.findChild<QLineEdit *>(u"txtPassword"_s);
    EXPECT_EQ(txtPassword->echoMode(), QLineEdit::Password);
}

TEST_F(LoginTest, GoodLoginByEnterSetsTheCurrentUserWithoutABox) {
    const qint32 id = addAccount(u"ann"_s, u"s3cret"_s);
    EXPECT_EQ(attempt(u"ann"_s, u"s3cret"_s, Submit::EnterInPassword), QDialog::Accepted);
    EXPECT_TRUE(boxes().shown.isEmpty());
    ASSERT_TRUE(session().currentUser);
    EXPECT_EQ(session().currentUser->userID, id);
    EXPECT_EQ(session().currentUser->username, u"ann"_s);
}

TEST_F(LoginTest, WrongPasswordShowsOneBoxAndTheLoginStays) {
    addAccount(u"ann"_s, u"s3cret"_s);
    EXPECT_EQ(attempt(u"ann"_s, u"wrong"_s, Submit::EnterInPassword), QDialog::Rejected);
    EXPECT_TRUE(stayedOpen);
    ASSERT_EQ(boxes().shown.size(), 1) << "Enter ran the login more than once";
    EXPECT_EQ(boxes().shown[0].text, u"Invalid username/password"_s);
    EXPECT_EQ(boxes().shown[0].title, u"Invalid Login"_s);
    EXPECT_EQ(boxes().shown[0].icon, Dialogs::Icon::Exclamation);
    EXPECT_FALSE(session().currentUser);
}

TEST_F(LoginTest, InactiveAccountIsTurnedAwayByTheLoginButton) {
    addAccount(u"ann"_s, u"s3cret"_s, /*status=*/0);
    attempt(u"ann"_s, u"s3cret"_s, Submit::LoginButton);
    EXPECT_TRUE(stayedOpen);
    ASSERT_EQ(boxes().shown.size(), 1);
    EXPECT_EQ(boxes().shown[0].text,
              u"User account is not active.  Please contact your administrator."_s);
    EXPECT_EQ(boxes().shown[0].title, u"Inactive Account"_s);
    EXPECT_EQ(boxes().shown[0].icon, Dialogs::Icon::Exclamation);
    EXPECT_FALSE(session().currentUser);
}

TEST_F(LoginTest, ApostropheInTheNameLogsIn) {
    addAccount(u"O'Brien"_s, u"it's"_s);
    EXPECT_EQ(attempt(u"O'Brien"_s, u"it's"_s, Submit::LoginButton), QDialog::Accepted);
    ASSERT_TRUE(session().currentUser);
    EXPECT_EQ(session().currentUser->username, u"O'Brien"_s);
}

TEST_F(LoginTest, DatabaseFailureShowsTheErrorBoxAndTheLoginStays) {
    setConnectionString(tempPath(u"missing.db"_s));
    attempt(u"ann"_s, u"s3cret"_s, Submit::LoginButton);
    EXPECT_TRUE(stayedOpen);
    ASSERT_EQ(boxes().shown.size(), 1);
    EXPECT_TRUE(boxes().shown[0].text.startsWith(u"An error has occured: User.GetUser:  "_s))
        << boxes().shown[0].text.toStdString();
    EXPECT_EQ(boxes().shown[0].title, u"Error"_s);
    EXPECT_EQ(boxes().shown[0].icon, Dialogs::Icon::Critical);
}

} // namespace

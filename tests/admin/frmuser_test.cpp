#include "admin/frmlogin.h"
#include "admin/frmuser.h"
#include "admin/systemuser.h"
#include "app/session.h"
#include "support/briskotest.h"
#include "usertestdata.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace usertest;

namespace {

class UserScreenTest : public BriskoTest {
protected:
    // Opens the account screen on `id` (0 for a new account), as its caller does.
    void open(qint32 id) {
        screen = std::make_unique<frmUser>();
        screen->userID = id;
        screen->show();
    }

    QLineEdit *text(const QString &name) { return screen->findChild<QLineEdit *>(name); }
    QCheckBox *box(const QString &name) { return screen->findChild<QCheckBox *>(name); }
    QPushButton *button(const QString &name) { return screen->findChild<QPushButton *>(name); }
    void click(QAbstractButton *target) { QTest::mouseClick(target, Qt::LeftButton); }

    QList<bool> rightsTicked() {
        return {box(u"canEdit"_s)->isChecked(), box(u"canDelete"_s)->isChecked(),
                box(u"canVoid"_s)->isChecked(), box(u"canRunReports"_s)->isChecked()};
    }
    QList<bool> rightsEnabled() {
        return {box(u"canEdit"_s)->isEnabled(), box(u"canDelete"_s)->isEnabled(),
                box(u"canVoid"_s)->isEnabled(), box(u"canRunReports"_s)->isEnabled()};
    }

    std::unique_ptr<frmUser> screen;
};

TEST_F(UserScreenTest, LoadsTheAccountWithEmptyPasswordBoxes) {
    const qint32 id = addAccount(u"O'Brien"_s, u"pw"_s);
    open(id);
    EXPECT_EQ(screen->windowTitle(), u"System User"_s);
    EXPECT_EQ(screen->focusWidget(), text(u"txtUsername"_s));
    EXPECT_EQ(text(u"txtUsername"_s)->text(), u"O'Brien"_s);
    EXPECT_TRUE(text(u"txtPassword"_s)->text().isEmpty());
    EXPECT_TRUE(text(u"txtConfirm"_s)->text().isEmpty());
    EXPECT_EQ(text(u"txtConfirm"_s)->echoMode(), QLineEdit::Password);
    EXPECT_EQ(rightsTicked(), (QList<bool>{false, true, false, true}));
    EXPECT_TRUE(box(u"status"_s)->isChecked());
    EXPECT_FALSE(box(u"isAdmin"_s)->isChecked());
}

TEST_F(UserScreenTest, AdminRuleOnLoadAndOnEachClick) {
    open(addAccount(u"boss"_s, u"pw"_s, 1, /*isAdmin=*/1));
    EXPECT_EQ(rightsTicked(), (QList<bool>{true, true, true, true}));
    EXPECT_EQ(rightsEnabled(), (QList<bool>{false, false, false, true}));

    // Reports may still be denied by hand; the admin tick takes it away too.
    click(box(u"canRunReports"_s));
    EXPECT_FALSE(box(u"canRunReports"_s)->isChecked());
    click(box(u"isAdmin"_s));
    EXPECT_EQ(rightsTicked(), (QList<bool>{false, false, false, false}));
    EXPECT_EQ(rightsEnabled(), (QList<bool>{true, true, true, true}));

    click(box(u"isAdmin"_s));
    EXPECT_EQ(rightsTicked(), (QList<bool>{true, true, true, true}));
}

TEST_F(UserScreenTest, UntickingAdminClearsRightsSetOneByOne) {
    open(0);
    click(box(u"canEdit"_s));
    click(box(u"canVoid"_s));
    click(box(u"isAdmin"_s));
    click(box(u"isAdmin"_s));
    EXPECT_EQ(rightsTicked(), (QList<bool>{false, false, false, false}));
}

TEST_F(UserScreenTest, OkNeedsAUserName) {
    open(0);
    EXPECT_FALSE(button(u"cmdOK"_s)->isEnabled());
    QTest::keyClicks(text(u"txtUsername"_s), u"a"_s);
    EXPECT_TRUE(button(u"cmdOK"_s)->isEnabled());
    QTest::keyClick(text(u"txtUsername"_s), Qt::Key_Backspace);
    EXPECT_FALSE(button(u"cmdOK"_s)->isEnabled());
}

TEST_F(UserScreenTest, EmptyPasswordBoxesKeepTheStoredPassword) {
    const qint32 id = addAccount(u"ann"_s, u"s3cret"_s);
    open(id);
    QTest::keyClick(text(u"txtUsername"_s), Qt::Key_End);
    QTest::keyClicks(text(u"txtUsername"_s), u"ie"_s);
    click(box(u"canEdit"_s));
    click(button(u"cmdOK"_s));
    EXPECT_EQ(screen->result(), QDialog::Accepted);
    EXPECT_TRUE(boxes().shown.isEmpty());

    EXPECT_EQ(storedPassword(id).toString(), encrypted(u"s3cret"_s));
    SystemUser stored;
    ASSERT_TRUE(stored.GetUser({}, {}, id));
    EXPECT_EQ(stored.username, u"annie"_s);
    EXPECT_EQ(stored.canEdit, 1);
    EXPECT_EQ(accountCount(), 1);
}

TEST_F(UserScreenTest, NewAccountWithoutPasswordLogsInWithAnEmptyPassword) {
    open(0);
    QTest::keyClicks(text(u"txtUsername"_s), u"temp"_s);
    click(button(u"cmdOK"_s));
    ASSERT_EQ(screen->result(), QDialog::Accepted);
    ASSERT_GT(screen->userID, 0);
    const QVariant stored = storedPassword(screen->userID);
    ASSERT_TRUE(stored.isValid()) << "the password was stored as Null";
    EXPECT_EQ(stored.toString(), u""_s);

    driveModal<frmLogin>([] { frmLogin().exec(); },
                         [](frmLogin &login) {
                             auto *name = login.findChild<QLineEdit *>(u"txtUsername"_s);
                             auto *password = login.findChild<QLineEdit *>(u"txtPassword"_s);
                             QTest::keyClicks(name, u"temp"_s);
                             QTest::keyClick(password, Qt::Key_Enter);
                         });
    ASSERT_TRUE(session().currentUser);
    EXPECT_EQ(session().currentUser->username, u"temp"_s);
}

TEST_F(UserScreenTest, MismatchedPasswordsWriteNothing) {
    const qint32 id = addAccount(u"ann"_s, u"s3cret"_s);
    open(id);
    QTest::keyClicks(text(u"txtPassword"_s), u"new one"_s);
    QTest::keyClicks(text(u"txtConfirm"_s), u"new 0ne"_s);
    click(box(u"canEdit"_s));
    click(button(u"cmdOK"_s));

    ASSERT_EQ(boxes().shown.size(), 1);
    EXPECT_EQ(boxes().shown[0].text, u"Passwords do not match.  Please try again."_s);
    EXPECT_EQ(boxes().shown[0].title, u"Password Check"_s);
    EXPECT_EQ(boxes().shown[0].icon, Dialogs::Icon::Critical);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(storedPassword(id).toString(), encrypted(u"s3cret"_s));
    SystemUser stored;
    stored.GetUser({}, {}, id);
    EXPECT_EQ(stored.canEdit, 0);
}

TEST_F(UserScreenTest, WriteFailureShowsTheErrorBoxAndTheScreenStays) {
    open(0);
    QTest::keyClicks(text(u"txtUsername"_s), u"ann"_s);
    setConnectionString(tempPath(u"missing.db"_s));
    click(button(u"cmdOK"_s));
    ASSERT_EQ(boxes().shown.size(), 1);
    EXPECT_TRUE(boxes().shown[0].text.startsWith(u"An error has occured:  User.WriteUser:  "_s))
        << boxes().shown[0].text.toStdString();
    EXPECT_EQ(boxes().shown[0].title, u"Error"_s);
    EXPECT_EQ(boxes().shown[0].icon, Dialogs::Icon::Critical);
    EXPECT_TRUE(screen->isVisible());
}

} // namespace

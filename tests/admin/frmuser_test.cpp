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

TEST_F(UserScreenTest, LoadsTheAccountWithEmptyPasswordBoxesAndOkNeedsAName) {
    open(addAccount(u"O'Brien"_s, u"pw"_s));
    EXPECT_EQ(screen->windowTitle(), u"System User"_s);
    EXPECT_EQ(text(u"txtUsername"_s)->text(), u"O'Brien"_s);
    EXPECT_EQ(text(u"txtPassword"_s)->text(), u""_s);
    EXPECT_EQ(text(u"txtConfirm"_s)->text(), u""_s);
    EXPECT_EQ(rightsTicked(), (QList<bool>{false, true, false, true}));
    EXPECT_TRUE(box(u"status"_s)->isChecked());

    text(u"txtUsername"_s)->selectAll();
    QTest::keyClick(text(u"txtUsername"_s), Qt::Key_Backspace);
    EXPECT_FALSE(button(u"cmdOK"_s)->isEnabled());
    QTest::keyClicks(text(u"txtUsername"_s), u"a"_s);
    EXPECT_TRUE(button(u"cmdOK"_s)->isEnabled());
}

TEST_F(UserScreenTest, AdminRuleOnLoadAndOnEachClick) {
    open(addAccount(u"boss"_s, u"pw"_s, 1, /*isAdmin=*/1));
    EXPECT_EQ(rightsTicked(), (QList<bool>{true, true, true, true}));
    EXPECT_EQ(rightsEnabled(), (QList<bool>{false, false, false, true}));

    // Unticking "Admin Access" clears all four rights, whatever was ticked.
    click(box(u"isAdmin"_s));
    EXPECT_EQ(rightsTicked(), (QList<bool>{false, false, false, false}));
    EXPECT_EQ(rightsEnabled(), (QList<bool>{true, true, true, true}));
    click(box(u"canEdit"_s));
    click(box(u"isAdmin"_s));
    EXPECT_EQ(rightsTicked(), (QList<bool>{true, true, true, true}));
    click(box(u"isAdmin"_s));
    EXPECT_EQ(rightsTicked(), (QList<bool>{false, false, false, false}));
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
}

// A mismatch or a failed write shows its box, writes nothing and leaves the screen open.
TEST_F(UserScreenTest, MismatchedPasswordsOrAFailedWriteKeepTheScreenOpen) {
    const qint32 id = addAccount(u"ann"_s, u"s3cret"_s);
    open(id);
    QTest::keyClicks(text(u"txtPassword"_s), u"new one"_s);
    QTest::keyClicks(text(u"txtConfirm"_s), u"new 0ne"_s);
    click(box(u"canEdit"_s));
    click(button(u"cmdOK"_s));
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(storedPassword(id).toString(), encrypted(u"s3cret"_s));

    text(u"txtConfirm"_s)->setText(u"new one"_s);
    setConnectionString(tempPath(u"missing.db"_s));
    click(button(u"cmdOK"_s));
    EXPECT_TRUE(screen->isVisible());

    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0],
              u"Password Check | Passwords do not match.  Please try again. | Critical"_s);
    EXPECT_TRUE(lines[1].startsWith(u"Error | An error has occured:  User.WriteUser:  "_s));
}

} // namespace

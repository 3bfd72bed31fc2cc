#include "admin/frmuser.h"
#include "admin/systemuser.h"
#include "support/briskotest.h"
#include "usertestdata.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace usertest;

namespace {

class UserScreenTest : public BriskoTest {
protected:
    // Opens the account screen on `id` (0 for a new account) as its caller
    // does, lets `act` drive it and gives back its userID once it closed.
    template <typename Act> static qint32 edit(qint32 id, Act &&act) {
        return driveModal<frmUser>(
            [id] {
                frmUser screen;
                screen.userID = id;
                screen.exec();
            },
            [&](frmUser &screen) {
                act(screen);
                return screen.userID;
            });
    }

    static QLineEdit *text(const frmUser &screen, const QString &name) {
        return control<QLineEdit>(screen, name);
    }

    // canEdit, canDelete, canVoid and canRunReports, each 1 or 0 for `state`.
    static QString rights(const frmUser &screen, bool (QAbstractButton::*state)() const) {
        QString flags;
        for (const QString &name : {u"canEdit"_s, u"canDelete"_s, u"canVoid"_s, u"canRunReports"_s})
            flags += (control<QCheckBox>(screen, name)->*state)() ? u'1' : u'0';
        return flags;
    }
};

// Editing an account: OK needs a name, two different passwords are refused,
// and empty password boxes keep the stored password.
TEST_F(UserScreenTest, EditsTheAccountAndEmptyPasswordBoxesKeepItsPassword) {
    const qint32 id = addAccount(u"O'Brien"_s, u"s3cret"_s);
    edit(id, [&](frmUser &screen) {
        EXPECT_EQ(screen.windowTitle(), u"System User"_s);
        EXPECT_EQ(screen.focusWidget(), text(screen, u"txtUsername"_s));
        EXPECT_EQ(text(screen, u"txtUsername"_s)->text(), u"O'Brien"_s);
        EXPECT_EQ(text(screen, u"txtPassword"_s)->text() + text(screen, u"txtConfirm"_s)->text(),
                  u""_s);
        EXPECT_EQ(rights(screen, &QAbstractButton::isChecked), u"0101"_s);
        EXPECT_TRUE(control<QCheckBox>(screen, u"status"_s)->isChecked());

        text(screen, u"txtUsername"_s)->selectAll();
        QTest::keyClick(text(screen, u"txtUsername"_s), Qt::Key_Backspace);
        EXPECT_FALSE(control<QPushButton>(screen, u"cmdOK"_s)->isEnabled());
        QTest::keyClicks(text(screen, u"txtUsername"_s), u"annie"_s);

        click(screen, u"canEdit"_s);
        QTest::keyClicks(text(screen, u"txtPassword"_s), u"new one"_s);
        QTest::keyClicks(text(screen, u"txtConfirm"_s), u"new 0ne"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(boxes().lines(),
                  QStringList{
                      u"Password Check | Passwords do not match.  Please try again. | Critical"_s});

        text(screen, u"txtPassword"_s)->clear();
        text(screen, u"txtConfirm"_s)->clear();
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(screen.result(), QDialog::Accepted);
    });
    EXPECT_EQ(boxes().shown.size(), 1);
    EXPECT_EQ(storedPassword(id), encrypted(u"s3cret"_s));
    SystemUser stored;
    ASSERT_TRUE(stored.GetUser({}, {}, id));
    EXPECT_EQ(stored.username, u"annie"_s);
    EXPECT_EQ(stored.canEdit, 1);
}

TEST_F(UserScreenTest, ANewAccountGetsItsKeyAndFailuresKeepTheScreenOpen) {
    const qint32 id = edit(0, [](frmUser &screen) {
        QTest::keyClicks(text(screen, u"txtUsername"_s), u"bob"_s);
        QTest::keyClick(text(screen, u"txtUsername"_s), Qt::Key_Return);
    });
    EXPECT_GT(id, 0);
    EXPECT_TRUE(SystemUser().GetUser(u"bob"_s, encrypted({}), 0));

    db::execute(u"DROP TABLE tblUser"_s);
    const qint32 kept = edit(id, [](frmUser &screen) {
        QTest::keyClicks(text(screen, u"txtUsername"_s), u"bob"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_TRUE(screen.isVisible());
        click(screen, u"cmdCancel"_s);
    });
    EXPECT_EQ(kept, id);
    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(u"Error | An error has occured:  User.GetUser:  "_s));
    EXPECT_TRUE(lines[1].startsWith(u"Error | An error has occured:  User.WriteUser:  "_s));
    EXPECT_TRUE(lines[1].endsWith(u" | Critical"_s));
}

TEST_F(UserScreenTest, AdminRuleOnLoadAndOnEachClickAndEscapeWritesNothing) {
    const qint32 id = addAccount(u"boss"_s, u"pw"_s, 1, /*isAdmin=*/1);
    edit(id, [](frmUser &screen) {
        EXPECT_EQ(rights(screen, &QAbstractButton::isChecked), u"1111"_s);
        EXPECT_EQ(rights(screen, &QWidget::isEnabled), u"0001"_s);

        // Unticking "Admin Access" clears all four rights, whatever was ticked.
        click(screen, u"isAdmin"_s);
        EXPECT_EQ(rights(screen, &QAbstractButton::isChecked), u"0000"_s);
        EXPECT_EQ(rights(screen, &QWidget::isEnabled), u"1111"_s);
        click(screen, u"canEdit"_s);
        click(screen, u"isAdmin"_s);
        EXPECT_EQ(rights(screen, &QAbstractButton::isChecked), u"1111"_s);
        click(screen, u"isAdmin"_s);
        EXPECT_EQ(rights(screen, &QAbstractButton::isChecked), u"0000"_s);
        QTest::keyClick(control<QCheckBox>(screen, u"isAdmin"_s), Qt::Key_Escape);
        EXPECT_EQ(screen.result(), QDialog::Rejected);
    });
    SystemUser stored;
    ASSERT_TRUE(stored.GetUser({}, {}, id));
    EXPECT_EQ(stored.isAdmin, 1);
}

} // namespace

// The main window's load, its tools and their rights, opening another
// database, and the way out.

#include "mainwintestbase.h"

#include "admin/frmlogin.h"
#include "admin/systemuser.h"
#include "app/company.h"
#include "app/schema.h"
#include "app/session.h"
#include "mainwin/frmabout.h"
#include "platform/registry.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

using namespace mainwintest;

namespace {

std::shared_ptr<SystemUser> userWith(qint16 canVoid, qint16 isAdmin, qint16 canRunReports) {
    auto user = std::make_shared<SystemUser>();
    user->userID = 7;
    user->username = u"ann"_s;
    user->canVoid = canVoid;
    user->isAdmin = isAdmin;
    user->canRunReports = canRunReports;
    return user;
}

// The visible texts of a menu, "-" for a separator.
QStringList entriesOf(const QWidget *holder) {
    QStringList texts;
    for (const QAction *action : holder->actions())
        texts.append(action->isSeparator() ? u"-"_s : action->text());
    return texts;
}

class MainToolsTest : public MainWindowTest {
protected:
    // The tools that rights switch, as 1 for enabled and 0 for not: "Update Receipt
    // Status", "Maintenance", the four report tools, "Inventory Sold Detail".
    QString enabledTools() const {
        QString states;
        for (const QString &id :
             {u"ID_UpdateReceiptStatus"_s, u"ID_Maintenance"_s, u"ID_ReceiptLedger"_s,
              u"ID_RptService"_s, u"ID_ServiceLedgerDetail"_s, u"ID_ProductLedgerDetail"_s,
              u"ID_InventorySoldDetail"_s})
            states += window->tool(id)->isEnabled() ? u'1' : u'0';
        return states;
    }
    QString panel(const char *name) const {
        return window->findChild<QLabel *>(QString::fromLatin1(name))->text();
    }
};

TEST_F(MainToolsTest, LoadWithoutLoginsGivesTheAnonymousUserEveryRight) {
    company().companyName = u"Corner Shop"_s;
    addReceipt(u"0001"_s, todayAtMidnight(), addPayee(u"Bo"_s));
    window->show();

    EXPECT_TRUE(window->load());

    EXPECT_EQ(window->windowTitle(), u"Brisko - Corner Shop"_s);
    EXPECT_TRUE(session().mainStarted);
    EXPECT_EQ(list(*window, u"lstReceipts"_s)->topLevelItemCount(), 1);
    const auto &user = session().currentUser;
    ASSERT_TRUE(user);
    EXPECT_EQ(user->username, u""_s);
    EXPECT_EQ((QList<int>{user->userID, user->canDelete, user->canEdit, user->canVoid,
                          user->isAdmin, user->canRunReports}),
              (QList<int>{0, 1, 1, 1, 1, 1}));
    EXPECT_EQ(enabledTools(), u"1111111"_s);
    EXPECT_FALSE(process().ended());
}

TEST_F(MainToolsTest, EachMissingRightDisablesItsTools) {
    const struct {
        qint16 canVoid, isAdmin, canRunReports;
        QString expected;
    } users[] = {{0, 1, 1, u"0111111"_s},
                 {1, 0, 1, u"1011111"_s},
                 {1, 1, 0, u"1100001"_s},  // "Inventory Sold Detail" stays open to everyone
                 {1, 1, 1, u"1100001"_s}}; // the reports right only ever takes away
    for (const auto &user : users) {
        session().currentUser = userWith(user.canVoid, user.isAdmin, user.canRunReports);
        window->applyRights();
        EXPECT_EQ(enabledTools(), user.expected);
    }
}

TEST_F(MainToolsTest, RestrictedAccessAppliesTheRightsOfWhoLoggedIn) {
    company().restrictAccess = true;
    window->show();
    bool loaded = false;
    driveModal<frmLogin>([&] { loaded = window->load(); },
                         [](frmLogin &login) {
                             session().currentUser = userWith(0, 0, 1);
                             login.accept();
                         });
    EXPECT_TRUE(loaded);
    EXPECT_EQ(session().currentUser->username, u"ann"_s);
    EXPECT_EQ(enabledTools(), u"0011111"_s);
    EXPECT_FALSE(process().ended());
}

TEST_F(MainToolsTest, ClosingTheLoginEndsTheProcessAtOnce) {
    company().restrictAccess = true;
    window->show();
    bool loaded = true;
    driveModal<frmLogin>([&] { loaded = window->load(); }, [](frmLogin &login) { login.reject(); });
    EXPECT_FALSE(loaded);
    EXPECT_EQ(process().endProcessCalls, 1);
    EXPECT_EQ(process().endProgramCalls, 0) << "not through EndProgram";
    EXPECT_FALSE(session().currentUser);
}

TEST_F(MainToolsTest, MenusHoldOnlyToolsWithACommand) {
    const auto *menuBar = window->findChild<QMenuBar *>(u"ToolBar2"_s);
    ASSERT_TRUE(menuBar);
    EXPECT_EQ(entriesOf(menuBar), (QStringList{u"&File"_s, u"&Help"_s}));
    EXPECT_EQ(entriesOf(window->tool(u"ID_File"_s)->menu()),
              (QStringList{u"Open Database"_s, u"-"_s, u"E&xit"_s}));
    EXPECT_EQ(entriesOf(window->tool(u"ID_Help"_s)->menu()),
              (QStringList{u"What's New?"_s, u"-"_s, u"About Brisko"_s}));
    EXPECT_EQ(window->tool(u"ID_Exit"_s)->shortcut(), QKeySequence(u"Ctrl+Q"_s));
    const auto *iconBar = window->findChild<QToolBar *>(u"ToolBar1"_s);
    ASSERT_TRUE(iconBar);
    EXPECT_TRUE(iconBar->isHidden()) << "nothing on it has a command yet";

    // Every tool is in the pool under its id, placed or not.
    EXPECT_EQ(window->tool(u"ID_Multi-UserSettings"_s)->objectName(), u"ID_Multi-UserSettings"_s);
    EXPECT_EQ(window->tool(u"ID_Multi-UserSettings"_s)->text(), u"Multi-User Settings"_s);
    window->toolClick(u"ID_Options"_s);
    EXPECT_TRUE(boxes().shown.isEmpty());
    EXPECT_FALSE(process().ended());
}

TEST_F(MainToolsTest, ExitAndClosingTheWindowEndTheProgram) {
    window->tool(u"ID_Exit"_s)->trigger();
    EXPECT_EQ(process().endProgramCalls, 1);
    EXPECT_TRUE(session().shuttingDown);

    window->show();
    window->close();
    EXPECT_EQ(process().endProgramCalls, 2);
    EXPECT_EQ(process().endProcessCalls, 0);
    EXPECT_TRUE(boxes().shown.isEmpty()) << "no question on the way out";
}

TEST_F(MainToolsTest, HelpToolsOpenThePageOfThisReleaseAndTheAboutBox) {
    window->tool(u"ID_WhatsNew"_s)->trigger();
    EXPECT_EQ(process().opened,
              QList<QUrl>{QUrl(u"https://brisko.example/whats-new-in-brisko-4-2-5"_s)});

    QStringList shown;
    driveModal<frmAbout>([&] { window->toolClick(u"ID_AboutBrisko"_s); },
                         [&](frmAbout &about) {
                             shown << about.windowTitle()
                                   << about.findChild<QLabel *>(u"lblName"_s)->text()
                                   << about.findChild<QLabel *>(u"lblVersion"_s)->text();
                             about.accept();
                         });
    EXPECT_EQ(shown, (QStringList{u"About Brisko"_s, u"Brisko"_s, u"Version 4.2.5"_s}));
}

TEST_F(MainToolsTest, StatusBarNamesTheDatabaseAndMarksTheShareFile) {
    EXPECT_EQ(panel("pnlDatabase"), databasePath());
    EXPECT_FALSE(panel("pnlDate").isEmpty());
    EXPECT_FALSE(panel("pnlTime").isEmpty());

    session().useSharedFile = true;
    TestMainWindow shared;
    EXPECT_EQ(shared.findChild<QLabel *>(u"pnlDatabase"_s)->text(),
              u"[SHARED] "_s + databasePath());
}

// Refused in multi-user mode; cancelled or failed, it ends without a word.
TEST_F(MainToolsTest, OpenDatabaseRefusedCancelledOrFailed) {
    session().useSharedFile = true;
    window->toolClick(u"ID_OpenDatabase"_s);
    EXPECT_EQ(boxes().lines(),
              QStringList(u"Multi-User Mode | You cannot open a stand-alone database while "
                          u"Multi-User mode is enabled.  Click File, Multi-User Settings to "
                          u"change your settings. | Exclamation"_s));
    boxes().shown.clear();

    session().useSharedFile = false;
    window->DoOpenDatabase();
    EXPECT_EQ(session().dbPath, databasePath());
    EXPECT_EQ(boxes().titles(), QStringList(u"Open Database"_s)) << "only the chooser";

    QFile junk(tempPath(u"junk.db"_s));
    ASSERT_TRUE(junk.open(QIODevice::WriteOnly));
    junk.write(QByteArray(4096, 'x'));
    junk.close();
    boxes().texts.enqueue(junk.fileName());
    window->DoOpenDatabase();
    EXPECT_EQ(boxes().titles().size(), 2) << "only the two choosers";
    EXPECT_EQ(panel("pnlDatabase"), databasePath());
}

TEST_F(MainToolsTest, OpenDatabaseSwitchesToTheChosenFile) {
    company().companyName = u"Old Shop"_s;
    window->show();
    window->load();
    const QString second = tempPath(u"second.db"_s);
    Schema::createDatabase(second);
    {
        db::Transaction onSecond(second);
        db::execute(u"UPDATE tblSystem SET companyName = ?"_s, {u"New Shop"_s});
        addReceipt(u"S-1"_s, todayAtMidnight(), addPayee(u"Cy"_s), money("12.5"));
        onSecond.commit();
    }
    session().currentUser = userWith(1, 1, 0);
    window->applyRights();
    boxes().texts.enqueue(second);

    window->toolClick(u"ID_OpenDatabase"_s);

    EXPECT_EQ(session().dbPath, second);
    EXPECT_EQ(Utility::RegGetString(u"lastDB"_s), second);
    EXPECT_EQ(company().companyName, u"New Shop"_s);
    EXPECT_EQ(window->windowTitle(), u"Brisko - Old Shop"_s) << "the caption keeps the old name";
    EXPECT_EQ(panel("pnlDatabase"), second);
    const QTreeWidget *today = list(*window, u"lstReceipts"_s);
    ASSERT_EQ(today->topLevelItemCount(), 1);
    EXPECT_EQ(rowTexts(today, 0)[1], u"S-1"_s);
    EXPECT_EQ(rowTexts(today, 0)[4], u"12.50"_s);
    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Open Database | "_s,
                           u"Success | Database has been changed | Information"_s}));
    // A new anonymous user, without the reports right; the report tools keep
    // the state they had.
    EXPECT_TRUE(session().currentUser->username.isEmpty());
    EXPECT_EQ(session().currentUser->canRunReports, 0);
    EXPECT_EQ(enabledTools(), u"1100001"_s);
}

} // namespace

// The main window: today's and this month's sales and their popup, the tools
// and their rights, opening another database, and the way out.

#include "admin/frmlogin.h"
#include "admin/systemuser.h"
#include "app/company.h"
#include "app/currency.h"
#include "app/runtimeformat.h"
#include "app/schema.h"
#include "app/session.h"
#include "customers/payee.h"
#include "editor/frmreceipt.h"
#include "mainwin/frmabout.h"
#include "mainwin/frmmain.h"
#include "platform/manual.h"
#include "platform/registry.h"
#include "receipts/receipt.h"
#include "support/briskotest.h"
#include "website.h"

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>
#include <QTreeView>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

// The texts of `row` of a list, or its headers for row -1.
QStringList textsOf(const QTreeView *list, int row) {
    const QAbstractItemModel &model = *list->model();
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
        texts.append(row < 0 ? model.headerData(column, Qt::Horizontal).toString()
                             : model.index(row, column).data().toString());
    return texts;
}

int rowsOf(const QTreeView *list) {
    return list->model()->rowCount();
}

QList<qint32> rowTags(const QTreeView *list) {
    QList<qint32> tags;
    for (int row = 0; row < rowsOf(list); ++row)
        tags.append(list->model()->index(row, 0).data(Qt::UserRole).toInt());
    return tags;
}

void selectRow(QTreeView *list, int row) {
    list->setCurrentIndex(list->model()->index(row, 0));
}

// The events of a real double click: a click, then the double click.
void doubleClick(QTreeView *list, const QPoint &position) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, position);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, position);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, position);
}

std::shared_ptr<SystemUser> userWith(qint16 canVoid, qint16 isAdmin, qint16 canRunReports) {
    auto user = std::make_shared<SystemUser>();
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

// The tools that rights switch: "Update Receipt Status", "Maintenance", the four
// report tools, "Inventory Sold Detail".
const QStringList rightsTools = {u"ID_UpdateReceiptStatus"_s, u"ID_Maintenance"_s,
                                 u"ID_ReceiptLedger"_s,       u"ID_RptService"_s,
                                 u"ID_ServiceLedgerDetail"_s, u"ID_ProductLedgerDetail"_s,
                                 u"ID_InventorySoldDetail"_s};
const QStringList popupEntries = {u"mnuPrint"_s, u"mnuPrintPreview"_s, u"mnuEmail"_s, u"mnuView"_s};

class MainWindowTest : public BriskoTest {
protected:
    void SetUp() override {
        BriskoTest::SetUp();
        window = std::make_unique<frmMain>();
        window->show();
    }
    void TearDown() override {
        window.reset();
        BriskoTest::TearDown();
    }

    static QDateTime todayAtMidnight() { return QDateTime(QDate::currentDate(), QTime(0, 0)); }

    // A sale to "Ann O'Smith" of today at midnight unless `date` says otherwise.
    static qint32 addReceipt(const QString &number, const char *received, const char *balance = "0",
                             qint16 type = Receipt::ProductReceipt, qint16 status = Receipt::Issued,
                             const QDateTime &date = todayAtMidnight()) {
        Receipt receipt;
        receipt.receiptNumber = number;
        receipt.receiptDate = date;
        Payee customer;
        customer.payeeName = u"Ann O'Smith"_s;
        customer.WritePayee();
        receipt.payeeID = customer.payeeID;
        receipt.amountReceived = Currency::fromText(QString::fromLatin1(received));
        receipt.balanceRemaining = Currency::fromText(QString::fromLatin1(balance));
        receipt.status = status;
        receipt.receiptType = type;
        receipt.writeReceipt();
        return receipt.receiptID;
    }

    QTreeView *today() const { return control<QTreeView>(*window, u"lstReceipts"_s); }
    QTreeView *month() const { return control<QTreeView>(*window, u"lstMonth"_s); }
    QAction *entry(const QString &name) const { return window->findChild<QAction *>(name); }
    QString panel() const { return window->findChild<QLabel *>(u"pnlDatabase"_s)->text(); }

    // 1 for each enabled tool or entry of `names`, 0 for each disabled one.
    QString enabled(const QStringList &names) const {
        QString states;
        for (const QString &name : names)
            states += entry(name)->isEnabled() ? u'1' : u'0';
        return states;
    }

    std::unique_ptr<frmMain> window;
};

TEST_F(MainWindowTest, ListsShowTheSalesColumnsFormatsAndTags) {
    // The month starts on its first day: the last day of the month before is out.
    addReceipt(u"0000"_s, "1", "0", Receipt::ProductReceipt, Receipt::Issued,
               todayAtMidnight().addDays(-QDate::currentDate().day()));
    const qint32 partlyPaid = addReceipt(u"0002"_s, "60", "40", Receipt::ServiceReceipt);
    const qint32 onAccount = addReceipt(u"0001"_s, "50", "-50", Receipt::AccountPayment);
    const qint32 large = addReceipt(u"0003"_s, "1234.5");
    const qint32 nothing = addReceipt(u"0004"_s, "0");
    const qint32 voided = addReceipt(u"0005"_s, "10", "0", Receipt::ProductReceipt, Receipt::Void);
    addReceipt(u"0006"_s, "0", "75", Receipt::OpeningBalance);
    // Both lists end today at midnight: a later time of day is out.
    addReceipt(u"0007"_s, "4", "0", Receipt::ProductReceipt, Receipt::Issued,
               QDateTime(QDate::currentDate(), QTime(9, 30)));
    window->refreshLists();

    EXPECT_EQ(textsOf(today(), -1), (QStringList{u"Date"_s, u"Receipt No."_s, u"Customer Name"_s,
                                                 u"Total"_s, u"Rcvd"_s, u"Status"_s}));
    const QString date = Runtime::generalDate(todayAtMidnight());
    ASSERT_EQ(rowsOf(today()), 5) << "the opening balance is not a sale";
    EXPECT_EQ(textsOf(today(), 0), (QStringList{date, u"0001"_s, u"Ann O'Smith"_s, u"50.00"_s,
                                                u"50.00"_s, u"Issued"_s}));
    EXPECT_EQ(textsOf(today(), 1), (QStringList{date, u"0002"_s, u"Ann O'Smith"_s, u"100.00"_s,
                                                u"60.00"_s, u"Issued"_s}));
    EXPECT_EQ(textsOf(today(), 2)[3], u"1,234.50"_s);
    EXPECT_EQ(textsOf(today(), 3).mid(3, 2), (QStringList{u".00"_s, u".00"_s}));
    EXPECT_EQ(textsOf(today(), 4)[5], u"Void"_s);
    EXPECT_EQ(rowTags(today()), (QList<qint32>{onAccount, partlyPaid, large, nothing, voided}));
    EXPECT_EQ(rowTags(month()), rowTags(today()));
    for (const int column : {3, 4})
        EXPECT_TRUE(today()->model()->index(0, column).data(Qt::TextAlignmentRole).toInt() &
                    Qt::AlignRight);
    EXPECT_TRUE(boxes().shown.isEmpty());

    // A receipt whose customer row is gone ends each list at that row, one box per list.
    db::execute(u"UPDATE tblReceipt SET payeeID = NULL WHERE receiptID = ?"_s, {large});
    window->refreshLists();
    EXPECT_EQ(rowsOf(today()) + rowsOf(month()), 4);
    EXPECT_EQ(boxes().lines(),
              QStringList(2, u"Error | An error has occured:  Invalid use of Null | Critical"_s));
}

// Work done while a receipt is open shows once it closes, on both lists.
TEST_F(MainWindowTest, DoubleClickAndPopupOpenTheRowsReceiptAndReloadBothLists) {
    window->refreshLists();
    EXPECT_EQ(rowsOf(today()) + rowsOf(month()), 0);
    doubleClick(today(), QPoint(20, 20));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(triggerPopupEntry(month(), u"mnuView"_s));
    EXPECT_EQ(enabled(popupEntries), u"0000"_s);

    addReceipt(u"0001"_s, "5");
    const qint32 second = addReceipt(u"0002"_s, "6");
    window->refreshLists();
    // The editor shows the row's receipt; closing it unchanged still reloads.
    const auto openedWhile = [](const std::function<void()> &work) {
        return [work](frmReceipt &editor) {
            work();
            const QString shown = editor.windowTitle();
            editor.reject();
            return shown;
        };
    };
    EXPECT_EQ(driveModal<frmReceipt>(
                  [&] {
                      doubleClick(month(),
                                  month()->visualRect(month()->model()->index(1, 0)).center());
                  },
                  openedWhile([] { addReceipt(u"0003"_s, "7"); })),
              u"Receipt 0002"_s);
    EXPECT_EQ(rowsOf(today()) + rowsOf(month()), 6);

    // View opens the selected row of the list the popup came from.
    selectRow(month(), 1);
    selectRow(today(), 0);
    EXPECT_EQ(driveModal<frmReceipt>(
                  [&] { EXPECT_TRUE(triggerPopupEntry(today(), u"mnuView"_s)); }, openedWhile([&] {
                      db::execute(u"DELETE FROM tblReceipt WHERE receiptID = ?"_s, {second});
                  })),
              u"Receipt 0001"_s);
    EXPECT_EQ(enabled(popupEntries), u"1111"_s);
    EXPECT_EQ(rowsOf(today()) + rowsOf(month()), 4);
    EXPECT_TRUE(boxes().shown.isEmpty());

    company().mailServer.clear();
    entry(u"mnuEmail"_s)->trigger();
    EXPECT_EQ(boxes().lines(),
              QStringList(u"Email Settings Required | Your email settings have not been "
                          u"configured.  Please go to Options and click the Email tab to set up "
                          u"your outbound email | Exclamation"_s));
    EXPECT_TRUE(process().opened.isEmpty());
}

// "New Receipt" opens an empty editor; only a receipt saved there reloads the lists.
TEST_F(MainWindowTest, NewReceiptOpensTheEditorAndReloadsOnlyAfterASave) {
    window->refreshLists();
    QAction *newReceipt = window->tool(u"ID_NewReceipt"_s);
    EXPECT_EQ(newReceipt->shortcut(), QKeySequence(u"Ctrl+N"_s));
    EXPECT_EQ(window->findChild<QToolBar *>(u"ToolBar1"_s)->actions().value(0), newReceipt);

    const auto openNew = [&](bool saved) {
        return driveModal<frmReceipt>([&] { newReceipt->trigger(); },
                                      [&](frmReceipt &editor) {
                                          addReceipt(u"N-1"_s, "3");
                                          editor.receiptChanged = saved;
                                          editor.reject();
                                          return std::pair(editor.receiptID, editor.windowTitle());
                                      });
    };
    EXPECT_EQ(openNew(false), std::pair(0, u"New Receipt"_s));
    EXPECT_EQ(rowsOf(today()), 0) << "nothing was saved";
    openNew(true);
    EXPECT_EQ(rowsOf(today()), 2);
}

TEST_F(MainWindowTest, RightsOfTheAnonymousAndTheLoggedInUserSwitchTheTools) {
    addReceipt(u"0001"_s, "5");
    ASSERT_TRUE(window->load());
    EXPECT_EQ(rowsOf(today()), 1);
    const SystemUser &anonymous = *session().currentUser;
    EXPECT_EQ((QList<int>{anonymous.userID, anonymous.canDelete, anonymous.canEdit,
                          anonymous.canVoid, anonymous.isAdmin, anonymous.canRunReports}),
              (QList<int>{0, 1, 1, 1, 1, 1}));
    EXPECT_TRUE(anonymous.username.isEmpty());
    EXPECT_EQ(enabled(rightsTools), u"1111111"_s);

    // With logins on, the rights of who logged in; the reports right only ever
    // takes away. A closed login ends the process at once, not through EndProgram.
    company().restrictAccess = true;
    const auto logIn = [&](const std::shared_ptr<SystemUser> &user) {
        session().currentUser.reset();
        bool loaded = false;
        driveModal<frmLogin>([&] { loaded = window->load(); },
                             [&](frmLogin &login) {
                                 session().currentUser = user;
                                 user ? login.accept() : login.reject();
                             });
        return loaded;
    };
    const struct {
        qint16 canVoid, isAdmin, canRunReports;
        QString expected;
    } users[] = {{0, 1, 1, u"0111111"_s},
                 {1, 0, 1, u"1011111"_s},
                 {0, 0, 1, u"0011111"_s},
                 {1, 1, 0, u"1100001"_s}, // "Inventory Sold Detail" stays open to everyone
                 {1, 1, 1, u"1100001"_s}};
    for (const auto &user : users) {
        EXPECT_TRUE(logIn(userWith(user.canVoid, user.isAdmin, user.canRunReports)));
        EXPECT_EQ(enabled(rightsTools), user.expected);
    }
    EXPECT_FALSE(logIn(nullptr));
    EXPECT_EQ(process().endProcessCalls, 1);
    EXPECT_EQ(process().endProgramCalls, 0);
}

// A tool shows only once it has a command: no dead buttons.
TEST_F(MainWindowTest, ToolsShowOnlyWithACommandHelpOpensTheManualAndExitEnds) {
    // "Contents", and F1 wherever the user is, open the manual in the browser.
    Manual::installHelpKey(*QCoreApplication::instance());
    window->tool(u"ID_Contents"_s)->trigger();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window.get(), Qt::Key_F1);

    QDialog screen;
    auto *field = new QLineEdit(&screen);
    screen.show();
    field->setFocus();
    QTest::keyClick(field, Qt::Key_F1);
    EXPECT_EQ(process().opened, QList<QUrl>(3, Manual::contentsPage()));
    EXPECT_TRUE(Manual::contentsPage().toLocalFile().endsWith(u"/manual/index.html"_s));
    process().opened.clear();

    EXPECT_EQ(controlsWithoutAccessibleName(*window), QStringList());
    EXPECT_EQ(entriesOf(window->findChild<QMenuBar *>(u"ToolBar2"_s)),
              (QStringList{u"&File"_s, u"&Tools"_s, u"&Reports"_s, u"&Help"_s}));
    EXPECT_EQ(entriesOf(window->tool(u"ID_Tools"_s)->menu()),
              (QStringList{u"&Update Receipt Status"_s, u"Receipt &Journal"_s, u"-"_s,
                           u"&Customers"_s, u"-"_s, u"&Maintenance"_s, u"-"_s, u"&Options"_s}));
    EXPECT_EQ(entriesOf(window->findChild<QToolBar *>(u"ToolBar1"_s)),
              (QStringList{u"&New Receipt"_s, u"-"_s, u"Receipt &Journal"_s, u"&Inventory"_s,
                           u"-"_s, u"&Customers"_s, u"-"_s, u"&Reports"_s}));
    EXPECT_EQ(entriesOf(window->tool(u"ID_Reports"_s)->menu()),
              (QStringList{u"&Receipt Ledger"_s, u"-"_s, u"&Service Ledger"_s, u"&Inventory Sold"_s,
                           u"Inventory Sold &Detail"_s, u"Service &Breakdown Report"_s}));
    EXPECT_EQ(
        entriesOf(window->tool(u"ID_File"_s)->menu()) +
            entriesOf(window->tool(u"ID_Maintenance"_s)->menu()) +
            entriesOf(window->tool(u"ID_Help"_s)->menu()),
        (QStringList{u"&Open Database"_s, u"-"_s, u"&Multi-User Settings"_s, u"-"_s, u"E&xit"_s,
                     u"&Service Descriptions"_s, u"&Inventory"_s, u"-"_s, u"&Payment Methods"_s,
                     u"-"_s, u"&Backup Database"_s, u"&Restore Database"_s, u"&Contents"_s, u"-"_s,
                     u"What's &New?"_s, u"Check for &Updates"_s, u"-"_s, u"&About Brisko"_s}));
    EXPECT_EQ(window->tool(u"ID_Exit"_s)->shortcut(), QKeySequence(u"Ctrl+Q"_s));
    // Every tool is in the pool under its id, placed or not; one without a
    // command does nothing.
    EXPECT_EQ(window->tool(u"ID_Multi-UserSettings"_s)->text(), u"&Multi-User Settings"_s);
    window->toolClick(u"ID_ServicesProvided"_s);
    EXPECT_TRUE(boxes().shown.isEmpty());

    window->tool(u"ID_WhatsNew"_s)->trigger();
    EXPECT_EQ(process().opened,
              QList<QUrl>{QUrl(QString::fromUtf8(kWebsite) + u"/whats-new-in-brisko-4-2-5"_s)});
    const QStringList about = driveModal<frmAbout>(
        [&] { window->toolClick(u"ID_AboutBrisko"_s); },
        [](frmAbout &box) {
            EXPECT_EQ(controlsWithoutAccessibleName(box), QStringList());
            click(box, u"cmdOK"_s);
            return QStringList{box.windowTitle(), control<QLabel>(box, u"lblName"_s)->text(),
                               control<QLabel>(box, u"lblVersion"_s)->text()};
        });
    EXPECT_EQ(about, (QStringList{u"About Brisko"_s, u"Brisko"_s, u"Version 4.2.5"_s}));

    window->tool(u"ID_Exit"_s)->trigger();
    EXPECT_EQ(process().endProgramCalls, 1);
    EXPECT_TRUE(session().shuttingDown);
    window->close();
    EXPECT_EQ(process().endProgramCalls, 2);
    EXPECT_EQ(process().endProcessCalls, 0);
    EXPECT_TRUE(boxes().shown.isEmpty()) << "no question on the way out";
}

// Refused in multi-user mode; cancelled or failed, it ends without a word.
TEST_F(MainWindowTest, OpenDatabaseIsRefusedFailsSilentlyOrSwitchesFiles) {
    company().companyName = u"Old Shop"_s;
    window->load();
    session().useSharedFile = true;
    window->toolClick(u"ID_OpenDatabase"_s);
    EXPECT_EQ(frmMain().findChild<QLabel *>(u"pnlDatabase"_s)->text(),
              u"[SHARED] "_s + databasePath());
    session().useSharedFile = false;
    window->DoOpenDatabase();
    EXPECT_EQ(session().dbPath, databasePath());
    QFile junk(tempPath(u"junk.db"_s));
    ASSERT_TRUE(junk.open(QIODevice::WriteOnly) && junk.write(QByteArray(4096, 'x')) > 0);
    junk.close();
    boxes().texts.enqueue(junk.fileName());
    window->DoOpenDatabase();
    EXPECT_EQ(panel(), databasePath());

    const QString second = tempPath(u"second.db"_s);
    Schema::createDatabase(second);
    {
        db::Transaction onSecond(second);
        db::execute(u"UPDATE tblSystem SET companyName = ?"_s, {u"New Shop"_s});
        addReceipt(u"S-1"_s, "12.5");
        onSecond.commit();
    }
    session().currentUser = userWith(1, 1, 0);
    window->applyRights();
    boxes().texts.enqueue(second);
    window->toolClick(u"ID_OpenDatabase"_s);

    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Multi-User Mode | You cannot open a stand-alone database while "
                           u"Multi-User mode is enabled.  Click File, Multi-User Settings to "
                           u"change your settings. | Exclamation"_s,
                           u"Open Database | "_s, u"Open Database | "_s, u"Open Database | "_s,
                           u"Success | Database has been changed | Information"_s}));
    EXPECT_EQ(session().dbPath, second);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::lastDB), second);
    EXPECT_EQ(company().companyName, u"New Shop"_s);
    EXPECT_EQ(window->windowTitle(), u"Brisko - Old Shop"_s) << "the caption keeps the old name";
    EXPECT_EQ(panel(), second);
    ASSERT_EQ(rowsOf(today()), 1);
    EXPECT_EQ(textsOf(today(), 0).mid(1, 4),
              (QStringList{u"S-1"_s, u"Ann O'Smith"_s, u"12.50"_s, u"12.50"_s}));
    // A new anonymous user without the reports right; the report tools keep
    // the state they had.
    EXPECT_TRUE(session().currentUser->username.isEmpty());
    EXPECT_EQ(enabled(rightsTools), u"1100001"_s);
}

} // namespace

#pragma once

#include <QDate>
#include <QHash>
#include <QList>
#include <QMainWindow>
#include <QStringList>
#include <memory>
#include <optional>

class BriskoError;
class QAction;
class QLabel;
class QMenu;
class QTreeView;
class ReceiptListModel;

namespace Ui {
class frmMain;
}

// The program's one permanent window: today's and this month's sales, and
// every command of the program, reached through the menus and the icon bar.
// Every other screen is opened from here as a modal dialog.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    explicit frmMain(QWidget *parent = nullptr);
    ~frmMain() override;

    // The rest of the start-up, once the window shows: caption, lists, login
    // and rights. False when nobody logged in and the process is ending.
    bool load();

    // Reloads today's and this month's sales.
    void refreshLists();
    void fillReceiptList(const QDate &startDate, const QDate &endDate, QTreeView *list);

    // Opens another database file in place of the current one.
    void DoOpenDatabase();

    // Does what a click on the tool `id` does.
    void toolClick(const QString &id);
    // Enables the tools by the rights of the session's user.
    void applyRights();

    // The tool of the pool with this id (menus included), or nullptr.
    QAction *tool(const QString &id) const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    using Command = void (frmMain::*)();

    // One tool of the pool, one row of the table in mainwintools.cpp. A tool
    // with neither a command nor a report type stands in no menu and on no
    // bar, yet it exists, so that the rights apply to it.
    struct Tool {
        const char *id;
        const char *caption;
        // A routine of the window, or showModal<Screen> for a modal screen.
        Command command = nullptr;
        // A ledger: the report type it opens on the screen.
        std::optional<qint16> reportType = std::nullopt;
        const char *shortcut = nullptr;     // given once the tool has its command
        const char *themeIcon = nullptr;    // from the desktop's icon theme ...
        const char *fallbackIcon = nullptr; // ... or this resource when the theme lacks it
    };
    // A menu and its entries, tool ids and separators.
    struct MenuLayout {
        const char *id;
        const char *caption;
        QStringList entries;
    };
    // The tables, in mainwintools.cpp.
    static const QList<Tool> &tools();
    static const QList<MenuLayout> &menuLayouts();
    static const QStringList &menuBarLayout();
    static const QStringList &iconBarLayout();
    static const Tool *findTool(const QString &id);

    // Building the window from the tables.
    void createToolPool();
    void createMenus();
    void createIconBar();
    void createItemMenu();
    void placeEntries(QWidget *holder, const QStringList &layout);
    bool isPlaceable(const QString &id) const;
    void createStatusPanels();

    // Tool commands.
    void exitProgram();
    void openDatabase();
    void showContents();
    void checkForUpdates();
    void backupDatabase();
    void restoreDatabase();
    void whatsNew();
    void newReceipt();
    void showJournal();
    // Shows a screen of type Screen modal over the window and waits for it.
    template <typename Screen> void showModal() {
        Screen screen(this);
        screen.exec();
    }

    // Start-up and users.
    void centreOnScreen();
    bool runFirstRunWizard();
    bool logIn();
    void makeAnonymousUser(bool canRunReports);
    void applyVoidAndAdminRights();
    void writeDatabasePanel();
    void updateClock();

    // The lists and their commands.
    void prepareList(QTreeView *list);
    static ReceiptListModel *salesOf(const QTreeView *list);
    void showItemMenu(QTreeView *list, const QPoint &position);
    void runItemCommand(Command command);
    QTreeView *selectedListView() const;
    // The receipt of the selected row of the popup's list, or of its first
    // row when none is selected; 0 when the list is empty.
    qint32 selectedReceiptID() const;
    void openReceipt(qint32 receiptID);
    void viewSelectedReceipt();
    void printSelectedReceipt();
    void previewSelectedReceipt();
    void emailSelectedReceipt();
    void showError(const BriskoError &error);

    std::unique_ptr<Ui::frmMain> ui;
    QHash<QString, QAction *> m_tools;
    QHash<QString, QMenu *> m_menus;
    QMenu *mnuItem = nullptr;
    QLabel *m_datePanel = nullptr;
    QLabel *m_timePanel = nullptr;
    QLabel *m_databasePanel = nullptr;
    qint16 selectedList = 0; // 1 when the popup was opened on lstMonth, 0 on lstReceipts
};

#pragma once

#include <QDate>
#include <QHash>
#include <QList>
#include <QMainWindow>
#include <QStringList>
#include <memory>

class BriskoError;
class QAction;
class QLabel;
class QMenu;
class QTreeWidget;
class QTreeWidgetItem;

namespace db {
class Row;
}

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
    void fillReceiptList(const QDate &startDate, const QDate &endDate, QTreeWidget *list);

    // Opens another database file in place of the current one.
    void DoOpenDatabase();

    // Does what a click on the tool `id` does.
    void toolClick(const QString &id);
    // Enables the tools by the rights of the session's user.
    void applyRights();

    // The tool of the pool with this id (menus included), or nullptr.
    QAction *tool(const QString &id) const;

protected:
    // Opens a stored receipt in the receipt editor, modal; true when it was
    // shown. Nothing opens before the editor exists.
    virtual bool showReceipt(qint32 receiptID);

    void closeEvent(QCloseEvent *event) override;

private:
    using Command = void (frmMain::*)();

    // One tool of the pool. A tool without a command stands in no menu and on
    // no bar, yet it exists, so that the rights apply to it.
    struct Tool {
        const char *id;
        const char *caption;
        Command command;
        const char *shortcut;     // given once the tool has its command
        const char *themeIcon;    // from the desktop's icon theme ...
        const char *fallbackIcon; // ... or this resource when the theme lacks it
    };
    // A menu and its entries, tool ids and separators.
    struct MenuLayout {
        const char *id;
        const char *caption;
        QStringList entries;
    };
    // An entry of the list popup; it stays out of the popup until ready.
    struct ItemCommand {
        const char *name;
        const char *caption;
        Command command;
        bool ready;
    };

    // The tables, in mainwintools.cpp.
    static const QList<Tool> &tools();
    static const QList<MenuLayout> &menuLayouts();
    static const QStringList &menuBarLayout();
    static const QStringList &iconBarLayout();
    static const QList<ItemCommand> &itemCommands();
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
    void whatsNew();
    void aboutBrisko();

    // Start-up and users.
    void centreOnScreen();
    bool logIn();
    void makeAnonymousUser(bool canRunReports);
    void applyVoidAndAdminRights();
    void writeDatabasePanel();
    void updateClock();

    // The lists and their commands.
    static QTreeWidgetItem *receiptItem(const db::Row &row);
    void showItemMenu(QTreeWidget *list, const QPoint &position);
    void runItemCommand(Command command);
    QTreeWidget *selectedListWidget() const;
    void openReceipt(qint32 receiptID);
    void viewSelectedReceipt();
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

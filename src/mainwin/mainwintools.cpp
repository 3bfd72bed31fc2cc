// The tools of the main window: one pool of actions, the menus and the icon
// bar built over it, and the dispatch of a click by the tool's id.
//
// A tool appears in a menu or on the icon bar only once it has a command in
// the table below; until then it exists in the pool alone, so that the rights
// still apply to it. Separators that would end up doubled, first or last are
// left out, and a menu with nothing in it is left out too.

#include "mainwin/frmmain.h"
#include "ui_frmMain.h"

#include "admin/systemuser.h"
#include "app/briskoerror.h"
#include "app/session.h"

#include <QCoreApplication>
#include <QIcon>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kSeparator = u"-"_s;

QIcon toolIcon(const char *themeIcon, const char *fallbackIcon) {
    const QIcon fallback = fallbackIcon ? QIcon(QString::fromLatin1(fallbackIcon)) : QIcon();
    return themeIcon ? QIcon::fromTheme(QString::fromLatin1(themeIcon), fallback) : fallback;
}

QString caption(const char *text) {
    return QCoreApplication::translate("frmMain", text);
}

// Adds `entries` to a menu or bar, nullptr standing for a separator. A
// separator only falls between two entries.
void addWithSeparators(QWidget *holder, const QList<QAction *> &entries) {
    bool separatorDue = false;
    for (QAction *entry : entries) {
        if (!entry) {
            separatorDue = !holder->actions().isEmpty();
            continue;
        }
        if (separatorDue) {
            auto *separator = new QAction(holder);
            separator->setSeparator(true);
            holder->addAction(separator);
            separatorDue = false;
        }
        holder->addAction(entry);
    }
}

} // namespace

// In the order in which a click looks for its tool.
const QList<frmMain::Tool> &frmMain::tools() {
    static const QList<Tool> table = {
        {"ID_Exit", QT_TRANSLATE_NOOP("frmMain", "E&xit"), &frmMain::exitProgram, "Ctrl+Q",
         "application-exit", ":/icons/exit.png"},
        {"ID_OpenDatabase", QT_TRANSLATE_NOOP("frmMain", "Open Database"), &frmMain::openDatabase,
         nullptr, "document-open", ":/icons/open-database.png"},
        {"ID_BackupDatabase", QT_TRANSLATE_NOOP("frmMain", "Backup Database"), nullptr, nullptr,
         "document-save", nullptr},
        {"ID_RestoreDatabase", QT_TRANSLATE_NOOP("frmMain", "Restore Database"), nullptr, nullptr,
         "document-revert", nullptr},
        {"ID_Multi-UserSettings", QT_TRANSLATE_NOOP("frmMain", "Multi-User Settings"), nullptr,
         nullptr, "network-server", nullptr},
        {"ID_NewReceipt", QT_TRANSLATE_NOOP("frmMain", "New Receipt"), nullptr, "Ctrl+N",
         "document-new", ":/icons/new-receipt.png"},
        {"ID_ReceiptJournal", QT_TRANSLATE_NOOP("frmMain", "Receipt Journal"), nullptr, nullptr,
         "x-office-address-book", ":/icons/journal.png"},
        {"ID_CustomerSearch", QT_TRANSLATE_NOOP("frmMain", "Customers"), nullptr, nullptr,
         "system-users", ":/icons/customers.png"},
        // Opened from other screens by its id; no menu carries it.
        {"ID_ReprintReceipt", QT_TRANSLATE_NOOP("frmMain", "Reprint Receipt"), nullptr, nullptr,
         nullptr, nullptr},
        {"ID_UpdateReceiptStatus", QT_TRANSLATE_NOOP("frmMain", "Update Receipt Status"), nullptr,
         nullptr, nullptr, nullptr},
        {"ID_Options", QT_TRANSLATE_NOOP("frmMain", "Options"), nullptr, nullptr,
         "preferences-system", nullptr},
        {"ID_ServiceDescriptions", QT_TRANSLATE_NOOP("frmMain", "Service Descriptions"), nullptr,
         nullptr, nullptr, nullptr},
        {"ID_Products", QT_TRANSLATE_NOOP("frmMain", "Inventory"), nullptr, nullptr,
         "package-x-generic", ":/icons/products.png"},
        {"ID_PaymentMethods", QT_TRANSLATE_NOOP("frmMain", "Payment Methods"), nullptr, nullptr,
         nullptr, nullptr},
        {"ID_ReceiptLedger", QT_TRANSLATE_NOOP("frmMain", "Receipt Ledger"), nullptr, nullptr,
         nullptr, nullptr},
        {"ID_RptService", QT_TRANSLATE_NOOP("frmMain", "Service Breakdown Report"), nullptr,
         nullptr, nullptr, nullptr},
        {"ID_ServiceLedgerDetail", QT_TRANSLATE_NOOP("frmMain", "Service Ledger"), nullptr, nullptr,
         nullptr, nullptr},
        {"ID_ProductLedgerDetail", QT_TRANSLATE_NOOP("frmMain", "Inventory Sold"), nullptr, nullptr,
         nullptr, nullptr},
        {"ID_InventorySoldDetail", QT_TRANSLATE_NOOP("frmMain", "Inventory Sold Detail"), nullptr,
         nullptr, nullptr, nullptr},
        {"ID_Contents", QT_TRANSLATE_NOOP("frmMain", "Contents"), nullptr, "F1", "help-contents",
         nullptr},
        {"ID_WhatsNew", QT_TRANSLATE_NOOP("frmMain", "What's New?"), &frmMain::whatsNew, nullptr,
         "internet-web-browser", ":/icons/whats-new.png"},
        {"ID_CheckforUpdates", QT_TRANSLATE_NOOP("frmMain", "Check for Updates"), nullptr, nullptr,
         "system-software-update", nullptr},
        {"ID_AboutBrisko", QT_TRANSLATE_NOOP("frmMain", "About Brisko"), &frmMain::aboutBrisko,
         nullptr, "help-about", ":/icons/about.png"},
        // Opened from other screens by its id; no menu carries it.
        {"ID_ReportManager", QT_TRANSLATE_NOOP("frmMain", "Report Manager"), nullptr, nullptr,
         nullptr, nullptr},
        // Kept in the pool for its id; it has never had a command.
        {"ID_ServicesProvided", QT_TRANSLATE_NOOP("frmMain", "Services Provided"), nullptr, nullptr,
         nullptr, nullptr},
    };
    return table;
}

// A submenu comes before the menu that holds it, so that it is filled first.
const QList<frmMain::MenuLayout> &frmMain::menuLayouts() {
    static const QList<MenuLayout> table = {
        {"ID_File",
         QT_TRANSLATE_NOOP("frmMain", "&File"),
         {u"ID_OpenDatabase"_s, kSeparator, u"ID_Multi-UserSettings"_s, kSeparator, u"ID_Exit"_s}},
        {"ID_Maintenance",
         QT_TRANSLATE_NOOP("frmMain", "Maintenance"),
         {u"ID_ServiceDescriptions"_s, u"ID_Products"_s, kSeparator, u"ID_PaymentMethods"_s,
          kSeparator, u"ID_BackupDatabase"_s, u"ID_RestoreDatabase"_s}},
        {"ID_Tools",
         QT_TRANSLATE_NOOP("frmMain", "&Tools"),
         {u"ID_UpdateReceiptStatus"_s, u"ID_ReceiptJournal"_s, kSeparator, u"ID_CustomerSearch"_s,
          kSeparator, u"ID_Maintenance"_s, kSeparator, u"ID_Options"_s}},
        {"ID_Reports",
         QT_TRANSLATE_NOOP("frmMain", "&Reports"),
         {u"ID_ReceiptLedger"_s, kSeparator, u"ID_ServiceLedgerDetail"_s,
          u"ID_ProductLedgerDetail"_s, u"ID_InventorySoldDetail"_s, u"ID_RptService"_s}},
        {"ID_Help",
         QT_TRANSLATE_NOOP("frmMain", "&Help"),
         {u"ID_Contents"_s, kSeparator, u"ID_WhatsNew"_s, u"ID_CheckforUpdates"_s, kSeparator,
          u"ID_AboutBrisko"_s}},
    };
    return table;
}

const QStringList &frmMain::menuBarLayout() {
    static const QStringList layout = {u"ID_File"_s, u"ID_Tools"_s, u"ID_Reports"_s, u"ID_Help"_s};
    return layout;
}

const QStringList &frmMain::iconBarLayout() {
    static const QStringList layout = {u"ID_NewReceipt"_s, kSeparator,      u"ID_ReceiptJournal"_s,
                                       u"ID_Products"_s,   kSeparator,      u"ID_CustomerSearch"_s,
                                       kSeparator,         u"ID_Reports"_s, kSeparator};
    return layout;
}

// Print, preview and e-mail go out through the receipt output, and View opens
// the receipt editor: each joins the popup once what it needs is there.
const QList<frmMain::ItemCommand> &frmMain::itemCommands() {
    static const QList<ItemCommand> table = {
        {"mnuPrint", QT_TRANSLATE_NOOP("frmMain", "Print Receipt"), nullptr, false},
        {"mnuPrintPreview", QT_TRANSLATE_NOOP("frmMain", "Print Preview"), nullptr, false},
        {nullptr, nullptr, nullptr, false},
        {"mnuEmail", QT_TRANSLATE_NOOP("frmMain", "Email Receipt"), &frmMain::emailSelectedReceipt,
         false},
        {nullptr, nullptr, nullptr, false},
        {"mnuView", QT_TRANSLATE_NOOP("frmMain", "View Receipt"), &frmMain::viewSelectedReceipt,
         false},
    };
    return table;
}

const frmMain::Tool *frmMain::findTool(const QString &id) {
    for (const Tool &entry : tools()) {
        if (id == QLatin1String(entry.id))
            return &entry;
    }
    return nullptr;
}

QAction *frmMain::tool(const QString &id) const {
    return m_tools.value(id);
}

void frmMain::createToolPool() {
    for (const Tool &entry : tools()) {
        const QString id = QString::fromLatin1(entry.id);
        auto *action = new QAction(toolIcon(entry.themeIcon, entry.fallbackIcon),
                                   caption(entry.caption), this);
        action->setObjectName(id);
        if (entry.command && entry.shortcut)
            action->setShortcut(QKeySequence(QString::fromLatin1(entry.shortcut)));
        connect(action, &QAction::triggered, this, [this, id] { toolClick(id); });
        m_tools.insert(id, action);
    }
}

void frmMain::createMenus() {
    for (const MenuLayout &layout : menuLayouts()) {
        const QString id = QString::fromLatin1(layout.id);
        auto *menu = new QMenu(caption(layout.caption), this);
        menu->setObjectName(u"mnu"_s + id.mid(3));
        menu->menuAction()->setObjectName(id);
        m_menus.insert(id, menu);
        m_tools.insert(id, menu->menuAction());
        placeEntries(menu, layout.entries);
    }
    m_menus.value(u"ID_Reports"_s)
        ->menuAction()
        ->setIcon(toolIcon("x-office-document", ":/icons/reports.png"));
    placeEntries(ui->ToolBar2, menuBarLayout());
}

void frmMain::createIconBar() {
    placeEntries(ui->ToolBar1, iconBarLayout());
    // The reports tool drops its menu down at once, as a menu title does.
    QAction *reports = tool(u"ID_Reports"_s);
    if (auto *button = qobject_cast<QToolButton *>(ui->ToolBar1->widgetForAction(reports)))
        button->setPopupMode(QToolButton::InstantPopup);
    ui->ToolBar1->setVisible(!ui->ToolBar1->actions().isEmpty());
}

void frmMain::placeEntries(QWidget *holder, const QStringList &layout) {
    QList<QAction *> entries;
    for (const QString &id : layout) {
        if (id == kSeparator)
            entries.append(nullptr);
        else if (isPlaceable(id))
            entries.append(tool(id));
    }
    addWithSeparators(holder, entries);
}

bool frmMain::isPlaceable(const QString &id) const {
    if (const QMenu *menu = m_menus.value(id))
        return !menu->actions().isEmpty();
    const Tool *entry = findTool(id);
    return entry && entry->command;
}

void frmMain::createItemMenu() {
    mnuItem = new QMenu(tr("Item"), this);
    mnuItem->setObjectName(u"mnuItem"_s);
    QList<QAction *> entries;
    for (const ItemCommand &entry : itemCommands()) {
        if (!entry.name) {
            entries.append(nullptr);
            continue;
        }
        auto *action = new QAction(caption(entry.caption), this);
        action->setObjectName(QString::fromLatin1(entry.name));
        if (const Command command = entry.command)
            connect(action, &QAction::triggered, this,
                    [this, command] { runItemCommand(command); });
        if (entry.ready)
            entries.append(action);
    }
    addWithSeparators(mnuItem, entries);
}

void frmMain::toolClick(const QString &id) {
    const Tool *entry = findTool(id);
    if (!entry || !entry->command)
        return;
    try {
        (this->*entry->command)();
    } catch (const BriskoError &error) {
        showError(error);
    }
}

void frmMain::applyRights() {
    if (!session().currentUser)
        return;
    applyVoidAndAdminRights();
    // Only a denial is applied; ID_InventorySoldDetail stays open to everyone.
    if (session().currentUser->canRunReports == 0) {
        for (const QString &id : {u"ID_ReceiptLedger"_s, u"ID_RptService"_s,
                                  u"ID_ServiceLedgerDetail"_s, u"ID_ProductLedgerDetail"_s})
            tool(id)->setEnabled(false);
    }
}

void frmMain::applyVoidAndAdminRights() {
    const SystemUser &user = *session().currentUser;
    tool(u"ID_UpdateReceiptStatus"_s)->setEnabled(user.canVoid != 0);
    tool(u"ID_Maintenance"_s)->setEnabled(user.isAdmin != 0);
}

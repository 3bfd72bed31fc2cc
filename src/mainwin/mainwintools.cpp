// The tools of the main window: one pool of actions, the menus and the icon
// bar built over it, and the dispatch of a click by the tool's id.
//
// A new tool is one row of the table below: its id, caption, shortcut and
// icons, and its command, a routine of the window or showModal<frmX> for a
// tool that opens a modal screen; a ledger row names its report type instead,
// and a click opens that ledger on the screen. A tool appears in a menu or on
// the icon bar only once it has a command or a report type; until then it
// exists in the pool alone, so that the rights still apply to it. Separators that would end up
// doubled, first or last are left out, and a menu with nothing in it is left out too.

#include "mainwin/frmmain.h"
#include "ui_frmMain.h"

#include "admin/frmmultiuser.h"
#include "admin/frmoptions.h"
#include "admin/systemuser.h"
#include "app/session.h"
#include "catalogue/frmpaymethod.h"
#include "catalogue/frmproductmanagement.h"
#include "catalogue/frmservice.h"
#include "customers/frmcustomerlist.h"
#include "mainwin/frmabout.h"
#include "mainwin/frmjournal.h"
#include "mainwin/frmreprint.h"
#include "mainwin/frmvoid.h"
#include "output/frmreports.h"
#include "output/modreports.h"
#include "platform/briskoerror.h"

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

// In the order in which a click looks for its tool. A row's command is a
// routine of the window, or showModal<Screen> for a tool that opens a modal
// screen; a ledger row names its report type.
const QList<frmMain::Tool> &frmMain::tools() {
    static const QList<Tool> table = {
        {.id = "ID_Exit",
         .caption = QT_TRANSLATE_NOOP("frmMain", "E&xit"),
         .command = &frmMain::exitProgram,
         .shortcut = "Ctrl+Q",
         .themeIcon = "application-exit",
         .fallbackIcon = ":/icons/exit.png"},
        {.id = "ID_OpenDatabase",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Open Database"),
         .command = &frmMain::openDatabase,
         .themeIcon = "document-open",
         .fallbackIcon = ":/icons/open-database.png"},
        {.id = "ID_BackupDatabase",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Backup Database"),
         .command = &frmMain::backupDatabase,
         .themeIcon = "document-save"},
        {.id = "ID_RestoreDatabase",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Restore Database"),
         .command = &frmMain::restoreDatabase,
         .themeIcon = "document-revert"},
        {.id = "ID_Multi-UserSettings",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Multi-User Settings"),
         .command = &frmMain::showModal<frmMultiUser>,
         .themeIcon = "network-server"},
        {.id = "ID_NewReceipt",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&New Receipt"),
         .command = &frmMain::newReceipt,
         .shortcut = "Ctrl+N",
         .themeIcon = "document-new",
         .fallbackIcon = ":/icons/new-receipt.png"},
        {.id = "ID_ReceiptJournal",
         .caption = QT_TRANSLATE_NOOP("frmMain", "Receipt &Journal"),
         .command = &frmMain::showJournal,
         .themeIcon = "x-office-address-book",
         .fallbackIcon = ":/icons/journal.png"},
        {.id = "ID_CustomerSearch",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Customers"),
         .command = &frmMain::showModal<frmCustomerList>,
         .themeIcon = "system-users",
         .fallbackIcon = ":/icons/customers.png"},
        // Opened from other screens by its id; no menu carries it.
        {.id = "ID_ReprintReceipt",
         .caption = QT_TRANSLATE_NOOP("frmMain", "Reprint Receipt"),
         .command = &frmMain::showModal<frmReprint>},
        // A changed status shows in the lists only after their next refresh.
        {.id = "ID_UpdateReceiptStatus",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Update Receipt Status"),
         .command = &frmMain::showModal<frmVoid>},
        {.id = "ID_Options",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Options"),
         .command = &frmMain::showModal<frmOptions>,
         .themeIcon = "preferences-system"},
        {.id = "ID_ServiceDescriptions",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Service Descriptions"),
         .command = &frmMain::showModal<frmService>},
        {.id = "ID_Products",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Inventory"),
         .command = &frmMain::showModal<frmProductManagement>,
         .themeIcon = "package-x-generic",
         .fallbackIcon = ":/icons/products.png"},
        {.id = "ID_PaymentMethods",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Payment Methods"),
         .command = &frmMain::showModal<frmPayMethod>},
        {.id = "ID_ReceiptLedger",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Receipt Ledger"),
         .reportType = 0},
        {.id = "ID_RptService",
         .caption = QT_TRANSLATE_NOOP("frmMain", "Service &Breakdown Report"),
         .reportType = 6},
        {.id = "ID_ServiceLedgerDetail",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Service Ledger"),
         .reportType = 2},
        {.id = "ID_ProductLedgerDetail",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Inventory Sold"),
         .reportType = 1},
        {.id = "ID_InventorySoldDetail",
         .caption = QT_TRANSLATE_NOOP("frmMain", "Inventory Sold &Detail"),
         .reportType = 7},
        {.id = "ID_Contents",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&Contents"),
         .command = &frmMain::showContents,
         .shortcut = "F1",
         .themeIcon = "help-contents"},
        {.id = "ID_WhatsNew",
         .caption = QT_TRANSLATE_NOOP("frmMain", "What's &New?"),
         .command = &frmMain::whatsNew,
         .themeIcon = "internet-web-browser",
         .fallbackIcon = ":/icons/whats-new.png"},
        {.id = "ID_CheckforUpdates",
         .caption = QT_TRANSLATE_NOOP("frmMain", "Check for &Updates"),
         .command = &frmMain::checkForUpdates,
         .themeIcon = "system-software-update"},
        {.id = "ID_AboutBrisko",
         .caption = QT_TRANSLATE_NOOP("frmMain", "&About Brisko"),
         .command = &frmMain::showModal<frmAbout>,
         .themeIcon = "help-about",
         .fallbackIcon = ":/icons/about.png"},
        // Opened by its id; no menu carries it.
        {.id = "ID_ReportManager",
         .caption = QT_TRANSLATE_NOOP("frmMain", "Report Manager"),
         .command = &frmMain::showModal<frmReports>},
        // Kept in the pool for its id; it has never had a command.
        {.id = "ID_ServicesProvided", .caption = QT_TRANSLATE_NOOP("frmMain", "Services Provided")},
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
         QT_TRANSLATE_NOOP("frmMain", "&Maintenance"),
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
    placeEntries(ui->ToolBar2, menuBarLayout());
}

void frmMain::createIconBar() {
    placeEntries(ui->ToolBar1, iconBarLayout());
    // The reports tool drops its menu down at once, as a menu title does.
    QAction *reports = tool(u"ID_Reports"_s);
    if (auto *button = qobject_cast<QToolButton *>(ui->ToolBar1->widgetForAction(reports))) {
        button->setPopupMode(QToolButton::InstantPopup);
        // The icon sits on the button alone: a menu bar shows an action's icon
        // in place of its title. A change of the action resets the button.
        const QIcon icon = toolIcon("x-office-document", ":/icons/reports.png");
        button->setIcon(icon);
        connect(reports, &QAction::changed, button, [button, icon] { button->setIcon(icon); });
    }
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
    return entry && (entry->command || entry->reportType);
}

// Print, preview and e-mail send the row's receipt through the receipt
// output; view opens it.
void frmMain::createItemMenu() {
    mnuItem = new QMenu(tr("Item"), this);
    mnuItem->setObjectName(u"mnuItem"_s);
    const std::pair<QAction *, Command> commands[] = {
        {ui->mnuPrint, &frmMain::printSelectedReceipt},
        {ui->mnuPrintPreview, &frmMain::previewSelectedReceipt},
        {ui->mnuEmail, &frmMain::emailSelectedReceipt},
        {ui->mnuView, &frmMain::viewSelectedReceipt}};
    for (const auto &[entry, command] : commands)
        connect(entry, &QAction::triggered, this, [this, command] { runItemCommand(command); });
    mnuItem->addActions({ui->mnuPrint, ui->mnuPrintPreview});
    mnuItem->addSeparator();
    mnuItem->addAction(ui->mnuEmail);
    mnuItem->addSeparator();
    mnuItem->addAction(ui->mnuView);
}

void frmMain::toolClick(const QString &id) {
    const Tool *entry = findTool(id);
    if (!entry)
        return;
    // A ledger shows its own failures.
    if (entry->reportType) {
        modReports::printLedger(*entry->reportType, modReports::ScreenMode, {}, {}, {});
        return;
    }
    if (!entry->command)
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

// What the journal changed or deleted shows in the lists at once.
void frmMain::showJournal() {
    showModal<frmJournal>();
    refreshLists();
}

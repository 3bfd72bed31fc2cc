#include "mainwin/frmmain.h"
#include "ui_frmMain.h"

#include "admin/databasefiles.h"
#include "admin/dbupdater.h"
#include "admin/frmlogin.h"
#include "admin/frmnewcompany.h"
#include "admin/systemuser.h"
#include "admin/updatecheck.h"
#include "app/company.h"
#include "app/database.h"
#include "app/modalscreen.h"
#include "app/runtimeformat.h"
#include "app/screenlinks.h"
#include "app/session.h"
#include "app/startup.h"
#include "mainwin/receiptlistmodel.h"
#include "output/modreports.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/manual.h"
#include "platform/processcontrol.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "receipts/receipt.h"
#include "version.h"
#include "website.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QScreen>
#include <QTime>
#include <QTimer>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

// Room for "12/31/2013 12:59:59 PM", a long number and a long name.
constexpr int kColumnWidths[] = {170, 110, 260, 100, 100, 80};

// The maker's page about this release.
QString whatsNewAddress() {
    const QString page = u"/whats-new-in-brisko-%1-%2-%3"_s.arg(kVersionMajor)
                             .arg(kVersionMinor)
                             .arg(kVersionRevision);
    return QString::fromUtf8(kWebsite) + page;
}

} // namespace

frmMain::frmMain(QWidget *parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::frmMain>()) {
    ui->setupUi(this);
    for (QTreeView *list : {ui->lstReceipts, ui->lstMonth})
        prepareList(list);

    createToolPool();
    createMenus();
    createIconBar();
    createItemMenu();
    createStatusPanels();
}

void frmMain::prepareList(QTreeView *list) {
    list->setModel(new ReceiptListModel(list));
    for (int column = 0; column < std::ssize(kColumnWidths); ++column)
        list->setColumnWidth(column, kColumnWidths[column]);
    list->header()->setStretchLastSection(true);
    connect(list, &QTreeView::doubleClicked, this, [this](const QModelIndex &index) {
        openReceipt(index.data(ReceiptListModel::ReceiptIDRole).toInt());
    });
    connect(list, &QWidget::customContextMenuRequested, this,
            [this, list](const QPoint &position) { showItemMenu(list, position); });
}

ReceiptListModel *frmMain::salesOf(const QTreeView *list) {
    return static_cast<ReceiptListModel *>(list->model());
}

frmMain::~frmMain() = default;

bool frmMain::load() {
    centreOnScreen();
    Session &state = session();
    if (!state.mainStarted) {
        // A cancelled wizard has ended the program.
        if (state.firstRunFlag && !runFirstRunWizard())
            return false;
        setWindowTitle(tr("Brisko - ") + company().companyName);
        refreshLists();
        state.mainStarted = true;
    }
    if (company().restrictAccess) {
        if (!logIn())
            return false;
    } else {
        makeAnonymousUser(true);
    }
    applyRights();
    return true;
}

void frmMain::centreOnScreen() {
    const QRect available = screen()->availableGeometry();
    // A small or strongly scaled screen gets a smaller window, not a cut one.
    const QSize frame = frameGeometry().size() - size();
    resize(size().boundedTo(available.size() - frame));
    move(available.center() - frameGeometry().center() + frameGeometry().topLeft());
}

// The wizard of a new installation; false when it was cancelled.
bool frmMain::runFirstRunWizard() {
    frmNewCompany wizard(this);
    return wizard.exec() == QDialog::Accepted;
}

// Shows the login; false when nobody logged in, and then the process ends at
// once, without EndProgram.
bool frmMain::logIn() {
    frmLogin login(this);
    login.exec();
    if (session().currentUser)
        return true;
    processControl().endProcess();
    return false;
}

// The session's user when logins are off: every right, no name, no account.
void frmMain::makeAnonymousUser(bool canRunReports) {
    auto user = std::make_shared<SystemUser>();
    user->canDelete = 1;
    user->canEdit = 1;
    user->canVoid = 1;
    user->isAdmin = 1;
    if (canRunReports)
        user->canRunReports = 1;
    session().currentUser = std::move(user);
}

void frmMain::createStatusPanels() {
    m_datePanel = new QLabel(this);
    m_datePanel->setObjectName(u"pnlDate"_s);
    m_timePanel = new QLabel(this);
    m_timePanel->setObjectName(u"pnlTime"_s);
    m_databasePanel = new QLabel(this);
    m_databasePanel->setObjectName(u"pnlDatabase"_s);
    m_databasePanel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (QLabel *panel : {m_datePanel, m_timePanel, m_databasePanel}) {
        panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        panel->setContentsMargins(4, 0, 4, 0);
    }
    ui->StatusBar1->addWidget(m_datePanel);
    ui->StatusBar1->addWidget(m_timePanel);
    ui->StatusBar1->addWidget(m_databasePanel, 1);

    // Only the clock ticks; the lists change on commands alone.
    auto *clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &frmMain::updateClock);
    clock->start(1000);
    updateClock();
    writeDatabasePanel();
}

void frmMain::updateClock() {
    m_datePanel->setText(Runtime::shortDate(QDate::currentDate()));
    m_timePanel->setText(QLocale().toString(QTime::currentTime(), QLocale::ShortFormat));
}

void frmMain::writeDatabasePanel() {
    const Session &state = session();
    m_databasePanel->setText(state.useSharedFile ? tr("[SHARED] ") + state.dbPath : state.dbPath);
}

void frmMain::refreshLists() {
    const QDate today = QDate::currentDate();
    fillReceiptList(today, today, ui->lstReceipts);
    fillReceiptList(QDate(today.year(), today.month(), 1), today, ui->lstMonth);
}

void frmMain::fillReceiptList(const QDate &startDate, const QDate &endDate, QTreeView *list) {
    try {
        salesOf(list)->load(Receipt().GetReceipts(
            {.startDate = Runtime::shortDate(startDate), .endDate = Runtime::shortDate(endDate)}));
    } catch (const BriskoError &error) {
        showError(error);
    }
}

void frmMain::showItemMenu(QTreeView *list, const QPoint &position) {
    selectedList = list == ui->lstMonth ? 1 : 0;
    const bool hasRows = salesOf(list)->rowCount() > 0;
    for (QAction *entry : {ui->mnuPrint, ui->mnuPrintPreview, ui->mnuView, ui->mnuEmail})
        entry->setEnabled(hasRows);
    mnuItem->popup(list->viewport()->mapToGlobal(position));
}

void frmMain::runItemCommand(Command command) {
    try {
        (this->*command)();
    } catch (const BriskoError &error) {
        showError(error);
    }
}

QTreeView *frmMain::selectedListView() const {
    return selectedList == 1 ? ui->lstMonth : ui->lstReceipts;
}

// The lists are reloaded whether the receipt changed or not.
void frmMain::openReceipt(qint32 receiptID) {
    ScreenLinks::openReceipt(this, receiptID);
    refreshLists();
}

// Only a receipt saved while the editor was open changes the lists.
void frmMain::newReceipt() {
    if (ScreenLinks::openReceipt(this, 0))
        refreshLists();
}

qint32 frmMain::selectedReceiptID() const {
    const QTreeView *list = selectedListView();
    QModelIndex row = list->currentIndex();
    if (!row.isValid())
        row = list->model()->index(0, 0);
    return row.isValid() ? row.data(ReceiptListModel::ReceiptIDRole).toInt() : 0;
}

void frmMain::viewSelectedReceipt() {
    if (const qint32 receiptID = selectedReceiptID())
        openReceipt(receiptID);
}

void frmMain::printSelectedReceipt() {
    if (const qint32 receiptID = selectedReceiptID())
        modReports::printReceipt(receiptID, modReports::PrinterMode);
}

void frmMain::previewSelectedReceipt() {
    if (const qint32 receiptID = selectedReceiptID())
        modReports::printReceipt(receiptID, modReports::ScreenMode);
}

void frmMain::emailSelectedReceipt() {
    if (!modReports::emailIsSetUp())
        return;
    if (const qint32 receiptID = selectedReceiptID())
        modReports::emailReceipt(receiptID);
}

void frmMain::showError(const BriskoError &error) {
    ModalScreen::showFailure(tr("An error has occured:  "), error);
}

void frmMain::exitProgram() {
    modMain::EndProgram();
}

void frmMain::openDatabase() {
    if (session().useSharedFile) {
        dialogs().message(tr("You cannot open a stand-alone database while Multi-User mode is "
                             "enabled.  Click File, Multi-User Settings to change your settings."),
                          tr("Multi-User Mode"), Dialogs::Icon::Exclamation);
        return;
    }
    DoOpenDatabase();
}

void frmMain::DoOpenDatabase() {
    // Whatever fails here, the cancel of the chooser included, ends the
    // routine without a word; the caption keeps the old company's name.
    try {
        const QString path = modMain::openDatabaseDialog();
        if (path.isEmpty())
            return;
        Session &state = session();
        state.dbPath = path;
        Utility::RegSetString(SettingsKey::lastDB, path);
        db::closeConnection();
        setConnectionString(path);
        if (!dbUpdater::updateDatabase())
            return;
        modMain::loadCompanyInfo();
        writeDatabasePanel();
        refreshLists();
        dialogs().message(tr("Database has been changed"), tr("Success"),
                          Dialogs::Icon::Information);
        if (company().restrictAccess) {
            if (!logIn())
                return;
        } else {
            // Reports are not granted here; their tools keep their state.
            makeAnonymousUser(false);
        }
        applyVoidAndAdminRights();
    } catch (const BriskoError &) {
    }
}

void frmMain::backupDatabase() {
    modMain::backupDatabase();
}

void frmMain::restoreDatabase() {
    modMain::restoreDatabase();
    if (session().restoreCompleted)
        modMain::EndProgram();
}

void frmMain::showContents() {
    Manual::openContents();
}

void frmMain::checkForUpdates() {
    modMain::checkForUpdate();
}

void frmMain::whatsNew() {
    Utility::shellOpen(whatsNewAddress());
}

void frmMain::closeEvent(QCloseEvent *event) {
    modMain::EndProgram();
    event->accept();
}

#include "mainwin/frmmain.h"
#include "ui_frmMain.h"

#include "admin/databasefiles.h"
#include "admin/frmlogin.h"
#include "admin/systemuser.h"
#include "app/briskoerror.h"
#include "app/company.h"
#include "app/database.h"
#include "app/runtimeformat.h"
#include "app/session.h"
#include "app/startup.h"
#include "mainwin/frmabout.h"
#include "platform/dialogs.h"
#include "platform/processcontrol.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "receipts/receipt.h"
#include "version.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QScreen>
#include <QTime>
#include <QTimer>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { DateColumn, NumberColumn, NameColumn, TotalColumn, ReceivedColumn, StatusColumn };

const QString kMoneyFormat = u"#,###.00"_s;

// Room for "12/31/2013 12:59:59 PM", a long number and a long name.
constexpr int kColumnWidths[] = {170, 110, 260, 100, 100, 80};

void prepareList(QTreeWidget *list) {
    for (int column = 0; column < std::ssize(kColumnWidths); ++column)
        list->setColumnWidth(column, kColumnWidths[column]);
    for (const int column : {TotalColumn, ReceivedColumn})
        list->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    list->header()->setStretchLastSection(true);
}

// The maker's page about this release.
QString whatsNewAddress() {
    return u"https://brisko.example/whats-new-in-brisko-%1-%2-%3"_s.arg(kVersionMajor)
        .arg(kVersionMinor)
        .arg(kVersionRevision);
}

} // namespace

frmMain::frmMain(QWidget *parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::frmMain>()) {
    ui->setupUi(this);
    prepareList(ui->lstReceipts);
    prepareList(ui->lstMonth);

    createToolPool();
    createMenus();
    createIconBar();
    createItemMenu();
    createStatusPanels();

    for (QTreeWidget *list : {ui->lstReceipts, ui->lstMonth}) {
        connect(list, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *item) {
            openReceipt(item->data(0, Qt::UserRole).toInt());
        });
        connect(list, &QWidget::customContextMenuRequested, this,
                [this, list](const QPoint &position) { showItemMenu(list, position); });
    }
}

frmMain::~frmMain() = default;

bool frmMain::load() {
    centreOnScreen();
    Session &state = session();
    if (!state.mainStarted) {
        // The first-run wizard joins here, before the caption is written.
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
    move(available.center() - frameGeometry().center() + frameGeometry().topLeft());
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

void frmMain::fillReceiptList(const QDate &startDate, const QDate &endDate, QTreeWidget *list) {
    try {
        const db::Snapshot rows =
            Receipt().GetReceipts(Runtime::shortDate(startDate), Runtime::shortDate(endDate), 0, 0,
                                  QString(), QString(), false, false);
        list->clear();
        // A row that fails ends the filling; the rows before it stay.
        for (const db::Row &row : rows)
            list->addTopLevelItem(receiptItem(row));
    } catch (const BriskoError &error) {
        showError(error);
    }
}

QTreeWidgetItem *frmMain::receiptItem(const db::Row &row) {
    const Currency received = row.currency(u"amountReceived"_s);
    const Currency total = row.int16(u"receiptType"_s) == Receipt::AccountPayment
                               ? received
                               : received + row.currency(u"balanceRemaining"_s);
    const QStringList texts = {
        Runtime::generalDate(row.dateTime(u"receiptDate"_s)),
        row.text(u"receiptNumber"_s),
        row.text(u"payeeName"_s),
        Runtime::formatNumber(total, kMoneyFormat),
        Runtime::formatNumber(received, kMoneyFormat),
        row.text(u"statusName"_s),
    };
    auto *item = new QTreeWidgetItem(texts);
    item->setData(0, Qt::UserRole, row.int32(u"receiptID"_s));
    for (const int column : {TotalColumn, ReceivedColumn})
        item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

void frmMain::showItemMenu(QTreeWidget *list, const QPoint &position) {
    selectedList = list == ui->lstMonth ? 1 : 0;
    const bool hasRows = list->topLevelItemCount() > 0;
    for (const QString &name : {u"mnuPrint"_s, u"mnuPrintPreview"_s, u"mnuView"_s, u"mnuEmail"_s})
        findChild<QAction *>(name)->setEnabled(hasRows);
    // An empty popup is not worth showing.
    if (!mnuItem->isEmpty())
        mnuItem->popup(list->viewport()->mapToGlobal(position));
}

void frmMain::runItemCommand(Command command) {
    try {
        (this->*command)();
    } catch (const BriskoError &error) {
        showError(error);
    }
}

QTreeWidget *frmMain::selectedListWidget() const {
    return selectedList == 1 ? ui->lstMonth : ui->lstReceipts;
}

bool frmMain::showReceipt(qint32 receiptID) {
    Q_UNUSED(receiptID);
    return false;
}

// The lists are reloaded whether the receipt changed or not.
void frmMain::openReceipt(qint32 receiptID) {
    try {
        showReceipt(receiptID);
    } catch (const BriskoError &error) {
        showError(error);
        return;
    }
    refreshLists();
}

void frmMain::viewSelectedReceipt() {
    const QTreeWidget *list = selectedListWidget();
    const QTreeWidgetItem *item = list->currentItem();
    if (!item)
        item = list->topLevelItem(0);
    if (item)
        openReceipt(item->data(0, Qt::UserRole).toInt());
}

void frmMain::emailSelectedReceipt() {
    if (company().mailServer.isEmpty()) {
        dialogs().message(tr("Your email settings have not been configured.  Please go to Options "
                             "and click the Email tab to set up your outbound email"),
                          tr("Email Settings Required"), Dialogs::Icon::Exclamation);
        return;
    }
    // The sending itself goes through the receipt output.
}

void frmMain::showError(const BriskoError &error) {
    dialogs().message(tr("An error has occured:  ") + error.description(), tr("Error"),
                      Dialogs::Icon::Critical);
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
        Utility::RegSetString(u"lastDB"_s, path);
        setConnectionString(path);
        // The upgrade of the opened file to the current schema belongs here.
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

void frmMain::whatsNew() {
    Utility::shellOpen(whatsNewAddress());
}

void frmMain::aboutBrisko() {
    frmAbout about(this);
    about.exec();
}

void frmMain::closeEvent(QCloseEvent *event) {
    modMain::EndProgram();
    event->accept();
}

#include "mainwin/frmjournal.h"
#include "ui_frmJournal.h"

#include "app/company.h"
#include "app/database.h"
#include "app/runtimeformat.h"
#include "app/screenlinks.h"
#include "app/session.h"
#include "mainwin/frmcustomsearchprop.h"
#include "mainwin/frmvoid.h"
#include "mainwin/journalmodel.h"
#include "output/modreports.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "receipts/receipt.h"

#include <QHeaderView>
#include <QIcon>
#include <QLocale>
#include <QMenu>
#include <QShortcut>
#include <QStyle>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

namespace {

// Room for "12/31/2013 12:59:59 PM", a long number and a long name.
constexpr int kColumnWidths[] = {180, 120, 280, 110};

// The dates that stand for all dates.
const QDate kFirstDay(1900, 1, 1);
const QDate kLastDay(2200, 1, 1);

} // namespace

frmJournal::frmJournal(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmJournal>())
    , m_receipts(new JournalModel(this)) {
    ui->setupUi(this);
    createToolBar();
    createPopupMenu();
    prepareList();
    Utility::selectAllOnFocus(ui->txtName);
    Utility::selectAllOnFocus(ui->txtReceipt);

    connect(ui->chkAllDates, &QCheckBox::toggled, this, &frmJournal::applyAllDates);
    connect(ui->cmdSearch, &QPushButton::clicked, this, [this] { getReceipts(false); });
    connect(ui->cmdCustom, &QPushButton::clicked, this, &frmJournal::searchCustomFields);
    connect(ui->cmdClear, &QPushButton::clicked, this, &frmJournal::clearCustomFields);
}

frmJournal::~frmJournal() = default;

void frmJournal::createToolBar() {
    QToolBar *bar = addToolBar(ui->layoutMain);
    m_print = addTool(bar, u"ID_Print"_s, tr("Print"), QIcon::fromTheme(u"document-print"_s));
    m_printPreview = addTool(bar, u"ID_PrintPreview"_s, tr("Print Preview"),
                             QIcon::fromTheme(u"document-print-preview"_s));
    addCloseTool(bar);
    // A tool bar takes no focus: the keys reach its tools.
    m_print->setShortcut(QKeySequence::Print);
    m_printPreview->setShortcut(QKeySequence(tr("Ctrl+Shift+P")));
    connect(m_print, &QAction::triggered, this, [this] { printSelected(modReports::PrinterMode); });
    connect(m_printPreview, &QAction::triggered, this,
            [this] { printSelected(modReports::ScreenMode); });
}

void frmJournal::createPopupMenu() {
    mnuJournal = new QMenu(tr("Journal"), this);
    mnuJournal->setObjectName(u"mnuJournal"_s);
    auto addEntry = [this](const QString &name, const QString &text) {
        QAction *entry = mnuJournal->addAction(text);
        entry->setObjectName(name);
        return entry;
    };
    mnuPrint = addEntry(u"mnuPrint"_s, tr("Print Receipt"));
    mnuJournal->addSeparator()->setObjectName(u"printdash"_s);
    mnuStatus = addEntry(u"mnuStatus"_s, tr("Change Status"));
    mnuJournal->addSeparator()->setObjectName(u"dash7"_s);
    mnuDelete = addEntry(u"mnuDelete"_s, tr("Delete Receipt"));
    mnuEdit = addEntry(u"mnuEdit"_s, tr("View Receipt"));
    connect(mnuPrint, &QAction::triggered, this,
            [this] { printSelected(modReports::PrinterMode); });
    connect(mnuStatus, &QAction::triggered, this, &frmJournal::changeStatus);
    connect(mnuDelete, &QAction::triggered, this, &frmJournal::deleteSelected);
    connect(mnuEdit, &QAction::triggered, this, &frmJournal::viewSelected);
}

// The view asks for the rows it shows. A table rather than a tree, with
// fixed row heights and column widths, so that a list of a million rows
// grows by a page without laying out the rows it already holds.
void frmJournal::prepareList() {
    QTableView *list = ui->lstReceipts;
    list->setModel(m_receipts);
    for (int column = 0; column < std::ssize(kColumnWidths); ++column)
        list->setColumnWidth(column, kColumnWidths[column]);
    list->horizontalHeader()->setAccessibleName(tr("Receipt columns"));
    list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    list->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    m_receipts->onFetchFailure = [](const BriskoError &error) {
        showFailure(tr("frmJournal.getReceipts:  "), error);
    };
    connect(list, &QAbstractItemView::activated, this, &frmJournal::viewSelected);
    connect(list, &QWidget::customContextMenuRequested, this, &frmJournal::showPopup);
    auto *deleteShortcut =
        new QShortcut(QKeySequence::Delete, list, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deleteShortcut, &QShortcut::activated, this, &frmJournal::deleteKey);
}

// All dates are checked and nothing is searched: the first search covers all.
void frmJournal::load() {
    // The pickers show the year whole, as every date of the program does.
    QString dateFormat = QLocale().dateFormat(QLocale::ShortFormat);
    if (!dateFormat.contains(u"yyyy"_s))
        dateFormat.replace(u"yy"_s, u"yyyy"_s);
    ui->txtStartDate->setDisplayFormat(dateFormat);
    ui->txtEndDate->setDisplayFormat(dateFormat);
    const QDate today = QDate::currentDate();
    ui->txtStartDate->setDate(today);
    ui->txtEndDate->setDate(today);
    ui->chkAllDates->setChecked(true);
    applyAllDates();
    m_print->setEnabled(false);
    m_printPreview->setEnabled(false);
    ui->txtName->setFocus();
}

void frmJournal::applyAllDates() {
    const bool pickers = !ui->chkAllDates->isChecked();
    const std::initializer_list<QWidget *> dates = {ui->Label1, ui->Label2, ui->txtStartDate,
                                                    ui->txtEndDate};
    for (QWidget *control : dates)
        control->setEnabled(pickers);
}

void frmJournal::getReceipts(bool useCustomFields) {
    // A failed search leaves the rows it read and the tools as they were.
    if (runCommand(tr("frmJournal.getReceipts:  "), [&] { findReceipts(useCustomFields); }))
        showSearchOutcome();
}

// Name and number go in as typed: an apostrophe, '%' or '_' simply searches.
void frmJournal::findReceipts(bool useCustomFields) {
    const bool allDates = ui->chkAllDates->isChecked();
    const QDate start = allDates ? kFirstDay : ui->txtStartDate->date();
    const QDate end = allDates ? kLastDay : ui->txtEndDate->date();
    Receipt terms;
    terms.customField1 = m_customValues.at(0);
    terms.customField2 = m_customValues.at(1);
    terms.customField3 = m_customValues.at(2);
    terms.customField4 = m_customValues.at(3);
    terms.customField5 = m_customValues.at(4);
    terms.customField6 = m_customValues.at(5);
    m_receipts->search(terms, {.startDate = Runtime::shortDate(start),
                               .endDate = Runtime::shortDate(end),
                               .payeeName = ui->txtName->text(),
                               .receiptNumber = ui->txtReceipt->text(),
                               .useCustomFields = useCustomFields,
                               .includeOpening = ui->openBal->isChecked()});
}

// The output tools follow the hits, and the first hit is selected.
void frmJournal::showSearchOutcome() {
    const bool any = m_receipts->rowCount() > 0;
    m_print->setEnabled(any);
    m_printPreview->setEnabled(any);
    if (any)
        ui->lstReceipts->setCurrentIndex(m_receipts->index(0, 0));
    ui->lstReceipts->scrollToTop();
}

void frmJournal::searchCustomFields() {
    frmCustomSearchProp dialog(this);
    dialog.values = m_customValues;
    dialog.exec();
    if (!dialog.searchChosen)
        return;
    m_customValues = dialog.values;
    ui->Frame2->setTitle(tr("Custom Fields:  (SET)"));
    getReceipts(true);
}

// The hits of the last search stay.
void frmJournal::clearCustomFields() {
    m_customValues = QStringList(6);
    dialogs().message(tr("Custom search fields have been cleared"), tr("Clear"),
                      Dialogs::Icon::Information);
    ui->Frame2->setTitle(tr("Custom Fields:"));
}

qint32 frmJournal::selectedReceiptID() const {
    const QModelIndex current = ui->lstReceipts->currentIndex();
    return current.isValid() ? m_receipts->keyAt(current.row()) : 0;
}

void frmJournal::printSelected(qint16 mode) {
    if (const qint32 receiptID = selectedReceiptID())
        modReports::printReceipt(receiptID, mode);
}

// The list is searched again only when the receipt changed.
void frmJournal::viewSelected() {
    const qint32 receiptID = selectedReceiptID();
    if (receiptID == 0)
        return;
    bool changed = false;
    runCommand(tr("An error has occured:  "),
               [&] { changed = ScreenLinks::openReceipt(this, receiptID); });
    if (changed)
        getReceipts(false);
}

void frmJournal::changeStatus() {
    const QModelIndex current = ui->lstReceipts->currentIndex();
    if (!current.isValid())
        return;
    frmVoid dialog(this);
    dialog.receiptNumber =
        m_receipts->index(current.row(), JournalModel::NumberColumn).data().toString();
    dialog.exec();
    getReceipts(false);
}

// The key tests the right itself; the popup disables its entry instead.
void frmJournal::deleteKey() {
    if (m_receipts->rowCount() == 0)
        return;
    if (!currentUserRights().canDelete) {
        dialogs().message(tr("Access Denied") + u"\n"_s +
                              tr("Your account does not have rights to delete a receipt.  Please "
                                 "see your system administrator."),
                          tr("Access Denied"), Dialogs::Icon::Critical);
        return;
    }
    deleteSelected();
}

// The lines and the receipt go together; the row leaves the list without a
// new search.
void frmJournal::deleteSelected() {
    const int row = ui->lstReceipts->currentIndex().row();
    const qint32 receiptID = m_receipts->keyAt(row);
    if (receiptID == 0)
        return;
    if (dialogs().message(tr("Are you sure you want to delete this receipt?"), tr("Confirm"),
                          Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
        return;
    const bool deleted = runCommand(tr("An error has occured:  "), [receiptID] {
        db::Transaction transaction;
        Receipt receipt;
        receipt.removeReceiptProducts(receiptID);
        receipt.deleteReceipt(receiptID);
        transaction.commit();
    });
    if (!deleted)
        return;
    dialogs().message(tr("Receipt has been deleted!"), tr("Completed"), Dialogs::Icon::Information);
    m_receipts->removeReceipt(row);
}

void frmJournal::voidReceipt() {
    const qint32 receiptID = selectedReceiptID();
    if (receiptID == 0)
        return;
    if (dialogs().message(tr("Are you sure you want to void this receipt?"), tr("Confirm"),
                          Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
        return;
    bool voided = false;
    const bool ran = runCommand(tr("An error has occured:  "), [&] {
        Receipt receipt;
        if (!receipt.GetReceipt(receiptID, QString()))
            return;
        receipt.status = Receipt::Void;
        voided = receipt.writeReceipt();
    });
    if (!ran)
        return;
    if (!voided) {
        dialogs().message(tr("Could not void receipt"), tr("Failed"), Dialogs::Icon::Exclamation);
        return;
    }
    dialogs().message(tr("Receipt has been voided!"), tr("Completed"), Dialogs::Icon::Information);
    getReceipts(false);
}

void frmJournal::showPopup(const QPoint &position) {
    const bool selected = ui->lstReceipts->currentIndex().isValid();
    mnuPrint->setEnabled(selected);
    mnuEdit->setEnabled(selected);
    mnuDelete->setEnabled(selected && currentUserRights().canDelete);
    bool statusAllowed = selected;
    if (company().restrictAccess)
        statusAllowed = selected && currentUserRights().canVoid;
    mnuStatus->setEnabled(statusAllowed);
    mnuJournal->popup(ui->lstReceipts->viewport()->mapToGlobal(position));
}

// The receipt journal with its custom search, the status change and the
// reprint, opened from the main window as a person opens them; and the main
// window's other ways out to the receipt output.

#include "admin/systemuser.h"
#include "app/company.h"
#include "app/runtimeformat.h"
#include "app/session.h"
#include "editor/frmreceipt.h"
#include "mainwin/frmcustomsearchprop.h"
#include "mainwin/frmjournal.h"
#include "mainwin/frmmain.h"
#include "mainwin/frmreprint.h"
#include "mainwin/frmvoid.h"
#include "output/frmreports.h"
#include "reportoutputtest.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

class JournalTest : public ReportOutputTest {
protected:
    void SetUp() override {
        ReportOutputTest::SetUp();
        window = std::make_unique<frmMain>();
        window->load();
        obrien = addCustomer(u"Pat O'Brien"_s);
        cotton = addCustomer(u"100% Cotton"_s);
    }
    void TearDown() override {
        window.reset();
        ReportOutputTest::TearDown();
    }

    static qint32 addReceipt(const QString &number, const QDate &day, qint32 payeeID,
                             int received = 10, int remaining = 0,
                             qint16 type = Receipt::ProductReceipt, const QString &custom1 = {}) {
        Receipt receipt;
        receipt.receiptNumber = number;
        receipt.receiptDate = QDateTime(day, QTime(0, 0));
        receipt.payeeID = payeeID;
        receipt.status = Receipt::Issued;
        receipt.receiptType = type;
        receipt.amountDue = Currency::fromInt(received + remaining);
        receipt.amountReceived = Currency::fromInt(received);
        receipt.balanceRemaining = Currency::fromInt(remaining);
        receipt.customField1 = custom1;
        receipt.writeReceipt();
        return receipt.receiptID;
    }

    // Opens the journal from the main window and lets `act` drive it.
    void onJournal(const std::function<void(frmJournal &)> &act) {
        driveModal<frmJournal>([&] { window->toolClick(u"ID_ReceiptJournal"_s); },
                               [&](frmJournal &journal) {
                                   act(journal);
                                   journal.findChild<QAction *>(u"ID_Close"_s)->trigger();
                               });
    }

    static QTableView *hits(const frmJournal &journal) {
        return control<QTableView>(journal, u"lstReceipts"_s);
    }
    static QStringList column(const frmJournal &journal, int column) {
        QStringList texts;
        const QAbstractItemModel *model = hits(journal)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, column).data().toString());
        return texts;
    }
    static QStringList numbers(const frmJournal &journal) { return column(journal, 1); }
    static void search(const frmJournal &journal, const QString &name = {},
                       const QString &number = {}) {
        control<QLineEdit>(journal, u"txtName"_s)->setText(name);
        control<QLineEdit>(journal, u"txtReceipt"_s)->setText(number);
        click(journal, u"cmdSearch"_s);
    }
    static QAction *tool(const QWidget &screen, const QString &id) {
        return screen.findChild<QAction *>(id);
    }
    static void select(const frmJournal &journal, int row) {
        hits(journal)->setCurrentIndex(hits(journal)->model()->index(row, 0));
    }

    std::unique_ptr<frmMain> window;
    qint32 obrien = 0;
    qint32 cotton = 0;
};

// Opens on all dates with nothing listed; then filters by dates, name, number
// and opening balances; a receipt whose customer is gone ends the list.
TEST_F(JournalTest, OpensEmptyThenFiltersByDatesNameNumberAndOpeningBalances) {
    addReceipt(u"26-003"_s, QDate(2026, 3, 3), obrien, 60, 40);
    addReceipt(u"26-002"_s, QDate(2026, 3, 2), cotton);
    addReceipt(u"26-001"_s, QDate(2026, 3, 1), obrien, 10, 0, Receipt::ServiceReceipt);
    addReceipt(u"00-001"_s, QDate(1900, 1, 1), obrien, 0, 0);
    addReceipt(u"Opening Balance"_s, QDate(2026, 3, 2), obrien, 0, 0, Receipt::OpeningBalance);
    onJournal([this](frmJournal &journal) {
        EXPECT_EQ(journal.windowTitle(), u"Receipt Journal"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(journal), QStringList());
        auto *allDates = control<QCheckBox>(journal, u"chkAllDates"_s);
        EXPECT_TRUE(allDates->isChecked());
        for (const QString &name : {u"txtStartDate"_s, u"txtEndDate"_s})
            EXPECT_FALSE(control<QDateEdit>(journal, name)->isEnabled());
        EXPECT_FALSE(control<QLabel>(journal, u"Label1"_s)->isEnabled());
        EXPECT_EQ(control<QDateEdit>(journal, u"txtStartDate"_s)->date(), QDate::currentDate());
        EXPECT_EQ(hits(journal)->model()->rowCount(), 0);
        EXPECT_FALSE(tool(journal, u"ID_Print"_s)->isEnabled());

        search(journal);
        EXPECT_EQ(numbers(journal),
                  (QStringList{u"00-001"_s, u"26-001"_s, u"26-002"_s, u"26-003"_s}));
        QStringList headers, last;
        const QAbstractItemModel *model = hits(journal)->model();
        for (int section = 0; section < model->columnCount(); ++section) {
            headers.append(model->headerData(section, Qt::Horizontal).toString());
            last.append(model->index(3, section).data().toString());
        }
        EXPECT_EQ(headers, (QStringList{u"Date"_s, u"Receipt No."_s, u"Customer Name"_s, u"Total"_s,
                                        u"Status"_s}));
        EXPECT_EQ(last, (QStringList{Runtime::generalDate(QDateTime(QDate(2026, 3, 3), {})),
                                     u"26-003"_s, u"Pat O'Brien"_s, u"100.00"_s, u"Issued"_s}));
        EXPECT_EQ(model->index(0, 3).data().toString(), u".00"_s);
        EXPECT_EQ(hits(journal)->currentIndex().row(), 0);
        EXPECT_TRUE(tool(journal, u"ID_Print"_s)->isEnabled());
        EXPECT_TRUE(tool(journal, u"ID_PrintPreview"_s)->isEnabled());

        allDates->click();
        EXPECT_TRUE(control<QDateEdit>(journal, u"txtEndDate"_s)->isEnabled());
        control<QDateEdit>(journal, u"txtStartDate"_s)->setDate(QDate(2026, 3, 2));
        control<QDateEdit>(journal, u"txtEndDate"_s)->setDate(QDate(2026, 3, 2));
        search(journal);
        EXPECT_EQ(numbers(journal), QStringList{u"26-002"_s});
        control<QCheckBox>(journal, u"openBal"_s)->setChecked(true);
        search(journal);
        EXPECT_EQ(numbers(journal), (QStringList{u"26-002"_s, u"Opening Balance"_s}));
        control<QCheckBox>(journal, u"openBal"_s)->setChecked(false);
        allDates->click();

        // Part of a name, apostrophe and wildcards included, as typed; the
        // number whole, in any case.
        const struct {
            QString name, number;
            QStringList found;
        } searches[] = {{u"'bri"_s, {}, {u"00-001"_s, u"26-001"_s, u"26-003"_s}},
                        {u"0%"_s, {}, {u"26-002"_s}},
                        {u"_"_s, {}, {}},
                        {u"nobody"_s, {}, {}},
                        {{}, u"26-00"_s, {}},
                        {{}, u"26-003"_s, {u"26-003"_s}},
                        {{}, u"o'"_s, {}}};
        for (const auto &each : searches) {
            search(journal, each.name, each.number);
            EXPECT_EQ(numbers(journal), each.found) << each.name.toStdString();
        }
        EXPECT_FALSE(tool(journal, u"ID_Print"_s)->isEnabled());
        EXPECT_FALSE(tool(journal, u"ID_PrintPreview"_s)->isEnabled());
        EXPECT_TRUE(boxes().shown.isEmpty());

        db::execute(u"DELETE FROM tblPayee WHERE payeeID = ?"_s, {cotton});
        search(journal);
        EXPECT_EQ(numbers(journal), (QStringList{u"00-001"_s, u"26-001"_s}));
        EXPECT_FALSE(tool(journal, u"ID_Print"_s)->isEnabled());
    });
    EXPECT_EQ(boxes().lines(),
              QStringList{u"Error | frmJournal.getReceipts:  Receipt.getReceipts:  "
                          "Invalid use of Null | Critical"_s});
}

// The custom terms count only in the search their dialog starts.
TEST_F(JournalTest, CustomTermsCountOnlyInTheirOwnSearch) {
    company().customField1 = u"Colour"_s;
    addReceipt(u"26-001"_s, QDate(2026, 3, 1), obrien, 10, 0, 0, u"dark red"_s);
    addReceipt(u"26-002"_s, QDate(2026, 3, 2), obrien, 10, 0, 0, u"blue"_s);
    onJournal([](frmJournal &journal) {
        auto *frame = control<QGroupBox>(journal, u"Frame2"_s);
        EXPECT_EQ(frame->title(), u"Custom Fields:"_s);
        driveModal<frmCustomSearchProp>([&] { click(journal, u"cmdCustom"_s); },
                                        [](frmCustomSearchProp &dialog) {
                                            EXPECT_EQ(dialog.windowTitle(),
                                                      u"Custom Search Properties"_s);
                                            click(dialog, u"cmdCancel"_s);
                                        });
        EXPECT_EQ(frame->title(), u"Custom Fields:"_s);
        EXPECT_EQ(hits(journal)->model()->rowCount(), 0);

        driveModal<frmCustomSearchProp>(
            [&] { click(journal, u"cmdCustom"_s); },
            [](frmCustomSearchProp &dialog) {
                EXPECT_EQ(control<QLabel>(dialog, u"lblCustom1"_s)->text(), u"C&olour"_s);
                EXPECT_TRUE(control<QLineEdit>(dialog, u"txtCustom1"_s)->isVisibleTo(&dialog));
                EXPECT_FALSE(control<QLineEdit>(dialog, u"txtCustom2"_s)->isVisibleTo(&dialog));
                EXPECT_EQ(controlsWithoutAccessibleName(dialog), QStringList());
                control<QLineEdit>(dialog, u"txtCustom1"_s)->setText(u"RED"_s);
                click(dialog, u"cmdSearch"_s);
            });
        EXPECT_EQ(frame->title(), u"Custom Fields:  (SET)"_s);
        EXPECT_EQ(numbers(journal), QStringList{u"26-001"_s});

        search(journal);
        EXPECT_EQ(numbers(journal), (QStringList{u"26-001"_s, u"26-002"_s}));
        EXPECT_EQ(frame->title(), u"Custom Fields:  (SET)"_s);

        click(journal, u"cmdClear"_s);
        EXPECT_EQ(frame->title(), u"Custom Fields:"_s);
        EXPECT_EQ(hits(journal)->model()->rowCount(), 2);
    });
    EXPECT_EQ(boxes().lines(),
              QStringList{u"Clear | Custom search fields have been cleared | Information"_s});
}

// "View Receipt" on the selected hit; the title of the editor it opened.
QString viewSelected(QAbstractItemView *list) {
    return driveModal<frmReceipt>([&] { EXPECT_TRUE(triggerPopupEntry(list, u"mnuEdit"_s)); },
                                  [](frmReceipt &editor) {
                                      const QString title = editor.windowTitle();
                                      editor.reject();
                                      return title;
                                  });
}

TEST_F(JournalTest, PopupCommandsActOnTheSelectedReceipt) {
    const qint32 first = addReceipt(u"26-001"_s, QDate::currentDate(), obrien);
    addReceipt(u"26-002"_s, QDate::currentDate(), cotton);
    addReceipt(u"26-003"_s, QDate::currentDate(), cotton);
    db::execute(u"INSERT INTO tblReceipt_Product (receiptID, productID, quantity) "
                "VALUES (?, 1, 1)"_s,
                {first});
    onJournal([&](frmJournal &journal) {
        QTableView *list = hits(journal);
        for (const QString &entry : {u"mnuPrint"_s, u"mnuStatus"_s, u"mnuDelete"_s, u"mnuEdit"_s})
            EXPECT_FALSE(triggerPopupEntry(list, entry)) << "nothing listed";
        search(journal);
        select(journal, 1);
        EXPECT_TRUE(triggerPopupEntry(list, u"mnuPrint"_s));
        tool(journal, u"ID_PrintPreview"_s)->trigger();
        EXPECT_EQ(viewSelected(list), u"Receipt 26-002"_s);

        driveModal<frmVoid>(
            [&] { EXPECT_TRUE(triggerPopupEntry(list, u"mnuStatus"_s)); },
            [](frmVoid &dialog) {
                EXPECT_EQ(control<QComboBox>(dialog, u"txtNumber"_s)->currentText(), u"26-002"_s);
                EXPECT_EQ(control<QLabel>(dialog, u"lblStatus"_s)->text(), u"Issued"_s);
                auto *status = control<QComboBox>(dialog, u"lstStatus"_s);
                status->setCurrentIndex(2);
                Q_EMIT status->activated(2);
                click(dialog, u"cmdApply"_s);
            });
        EXPECT_EQ(column(journal, 4), (QStringList{u"Issued"_s, u"Void"_s, u"Issued"_s}))
            << "searched again after the change";

        boxes().answers.enqueue(Dialogs::Answer::No);
        select(journal, 0);
        EXPECT_TRUE(triggerPopupEntry(list, u"mnuDelete"_s));
        EXPECT_EQ(numbers(journal).size(), 3);
        EXPECT_TRUE(triggerPopupEntry(list, u"mnuDelete"_s));
        EXPECT_EQ(numbers(journal), (QStringList{u"26-002"_s, u"26-003"_s}));
    });
    EXPECT_EQ(deliveries(), (QStringList{u"printer Receipt 26-002"_s, u"screen Receipt 26-002"_s}));
    EXPECT_EQ(db::readFirst(u"SELECT COUNT(*) AS n FROM tblReceipt_Product"_s)->int32(u"n"_s), 0);
    EXPECT_EQ(db::readFirst(u"SELECT voidReason FROM tblReceipt WHERE receiptNumber = '26-002'"_s)
                  ->text(u"voidReason"_s),
              QString());
    const QString question =
        u"Confirm | Are you sure you want to delete this receipt? | Question"_s;
    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Void Receipt | Void Reason"_s,
                           u"Success | Receipt status has been updated for receipt number 26-002 | "
                           "Information"_s,
                           question, question,
                           u"Completed | Receipt has been deleted! | Information"_s}));
    // The main window's lists were refreshed when the journal closed.
    EXPECT_EQ(window->findChild<QTreeView *>(u"lstReceipts"_s)->model()->rowCount(), 2);
}

TEST_F(JournalTest, RightsDecideDeleteAndStatus) {
    addReceipt(u"26-001"_s, QDate::currentDate(), obrien);
    auto user = std::make_shared<SystemUser>();
    user->canDelete = 0;
    user->canVoid = 0;
    session().currentUser = user;
    onJournal([this](frmJournal &journal) {
        QTableView *list = hits(journal);
        QTest::keyClick(list, Qt::Key_Delete);
        EXPECT_TRUE(boxes().shown.isEmpty()) << "an empty list takes no key";
        search(journal);
        EXPECT_FALSE(triggerPopupEntry(list, u"mnuDelete"_s));
        EXPECT_EQ(viewSelected(list), u"Receipt 26-001"_s);
        company().restrictAccess = true;
        EXPECT_FALSE(triggerPopupEntry(list, u"mnuStatus"_s));
        journal.activateWindow(); // a shortcut needs its window active again after the editor
        EXPECT_TRUE(QTest::qWaitForWindowActive(&journal));
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Delete);
        EXPECT_EQ(numbers(journal), QStringList{u"26-001"_s});
    });
    EXPECT_EQ(boxes().lines(),
              QStringList{u"Access Denied | Access Denied\nYour account does not have rights to "
                          "delete a receipt.  Please see your system administrator. | Critical"_s});
}

// Pages follow each other in date and number order, the key settling ties,
// however many rows share a date or a number.
TEST_F(JournalTest, TheListReadsOnAsTheViewScrolls) {
    {
        db::Transaction transaction;
        for (int index = 0; index < 700; ++index)
            addReceipt(u"N%1"_s.arg(index % 300, 3, 10, QChar(u'0')),
                       QDate(2026, 1, 1).addDays(index / 250), obrien);
        transaction.commit();
    }
    onJournal([](frmJournal &journal) {
        search(journal);
        QTableView *list = hits(journal);
        QAbstractItemModel *model = list->model();
        EXPECT_LT(model->rowCount(), 700);
        while (model->canFetchMore({}))
            list->scrollToBottom(), model->fetchMore({});
        ASSERT_EQ(model->rowCount(), 700);
        const db::Snapshot expected =
            db::select(u"SELECT receiptID FROM tblReceipt ORDER BY receiptDate, receiptNumber, "
                       "receiptID"_s);
        for (int row = 0; row < 700; ++row)
            ASSERT_EQ(model->index(row, 0).data(Qt::UserRole).toInt(),
                      expected.at(row).int32(u"receiptID"_s))
                << row;
    });
}

TEST_F(JournalTest, StatusChangesByNumberWithAReason) {
    addReceipt(u"26-001"_s, QDate::currentDate(), obrien);
    addReceipt(u"19-001"_s, QDate(2019, 5, 1), obrien);
    const auto stored = [] {
        const auto row = db::readFirst(
            u"SELECT status, voidReason FROM tblReceipt WHERE receiptNumber = '19-001'"_s);
        return std::pair(row->int32(u"status"_s), row->text(u"voidReason"_s));
    };
    const auto change = [&](int status, const QString &reason) {
        if (!reason.isNull())
            boxes().texts.enqueue(reason);
        driveModal<frmVoid>([&] { window->toolClick(u"ID_UpdateReceiptStatus"_s); },
                            [&](frmVoid &dialog) {
                                EXPECT_EQ(dialog.windowTitle(), u"Change Receipt Status"_s);
                                auto *number = control<QComboBox>(dialog, u"txtNumber"_s);
                                EXPECT_EQ(number->count(), 1) << "this year's receipts";
                                number->setEditText(u"19-001"_s);
                                EXPECT_FALSE(
                                    control<QPushButton>(dialog, u"cmdApply"_s)->isEnabled());
                                click(dialog, u"cmdSearch"_s);
                                auto *states = control<QComboBox>(dialog, u"lstStatus"_s);
                                states->setCurrentIndex(status);
                                Q_EMIT states->activated(status);
                                click(dialog, u"cmdApply"_s);
                            });
    };
    change(2, u"Wrong customer"_s);
    EXPECT_EQ(stored(), std::pair(2, u"Wrong customer"_s));
    change(1, QString());
    EXPECT_EQ(stored(), std::pair(1, QString()));

    driveModal<frmVoid>([&] { window->toolClick(u"ID_UpdateReceiptStatus"_s); },
                        [](frmVoid &dialog) {
                            EXPECT_EQ(controlsWithoutAccessibleName(dialog), QStringList());
                            control<QComboBox>(dialog, u"txtNumber"_s)->setEditText(u"none"_s);
                            click(dialog, u"cmdSearch"_s);
                            EXPECT_FALSE(control<QComboBox>(dialog, u"lstStatus"_s)->isEnabled());
                            click(dialog, u"cmdCancel"_s);
                        });
    EXPECT_EQ(boxes().lines().mid(1, 1),
              QStringList{u"Success | Receipt status has been updated for receipt number 19-001 | "
                          "Information"_s});
    EXPECT_EQ(boxes().lines().last(),
              u"Receipt Not Found | Receipt number not found.  Please try again. | Information"_s);
}

TEST_F(JournalTest, ReprintTakesTheLastReceiptOrTheOneNamed) {
    const auto reprint = [&](const std::function<void(frmReprint &)> &act) {
        driveModal<frmReprint>([&] { window->toolClick(u"ID_ReprintReceipt"_s); },
                               [&](frmReprint &dialog) {
                                   act(dialog);
                                   click(dialog, u"cmdCancel"_s);
                               });
    };
    reprint([](frmReprint &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Reprint Receipt"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(dialog), QStringList());
        EXPECT_FALSE(control<QLineEdit>(dialog, u"txtReceiptNumber"_s)->isEnabled());
        click(dialog, u"cmdPrint"_s);
    });
    const qint32 older = addReceipt(u"26-001"_s, QDate::currentDate(), obrien);
    addReceipt(u"26-002"_s, QDate::currentDate(), obrien);
    reprint([](frmReprint &dialog) { click(dialog, u"cmdPrint"_s); });
    session().lastReceiptID = older;
    reprint([](frmReprint &dialog) {
        control<QCheckBox>(dialog, u"chkDisplay"_s)->setChecked(true);
        click(dialog, u"cmdPrint"_s);
        // A click on the locked number box chooses a specific receipt.
        auto *number = control<QLineEdit>(dialog, u"txtReceiptNumber"_s);
        QTest::mouseClick(number, Qt::LeftButton);
        EXPECT_TRUE(control<QRadioButton>(dialog, u"receiptOption1"_s)->isChecked());
        EXPECT_TRUE(number->isEnabled());
        number->setText(u"26-002"_s);
        click(dialog, u"cmdPrint"_s);
        number->setText(u"26-009"_s);
        click(dialog, u"cmdPrint"_s);
    });
    EXPECT_EQ(deliveries(), (QStringList{u"printer Receipt 26-002"_s, u"screen Receipt 26-001"_s,
                                         u"screen Receipt 26-002"_s}));
    EXPECT_EQ(
        boxes().lines(),
        (QStringList{u"Print Receipt | No receipts were found in the database. | Exclamation"_s,
                     u"Unknown Receipt Number | Receipt number entered was not found.  "
                     "Please try again. | Exclamation"_s}));
}

// The list popup's print, preview and e-mail, the Reports menu and the Report Manager.
using MainWindowOutputTest = JournalTest;

// Each entry sends the selected row of the list the popup came from.
TEST_F(MainWindowOutputTest, PopupPrintsPreviewsAndMailsTheSelectedReceipt) {
    const QDateTime today(QDate::currentDate(), QTime(0, 0));
    addProductReceipt(u"A-1"_s, today, addCustomer(u"Ann"_s, u"ann@example.org"_s), {});
    addProductReceipt(u"A-2"_s, today, addCustomer(u"Bo"_s, u"bo@example.org"_s), {});
    window->show();
    window->refreshLists();
    auto *sales = control<QTreeView>(*window, u"lstReceipts"_s);
    sales->setCurrentIndex(sales->model()->index(1, 0));

    EXPECT_TRUE(triggerPopupEntry(sales, u"mnuPrint"_s));
    EXPECT_TRUE(
        triggerPopupEntry(control<QTreeView>(*window, u"lstMonth"_s), u"mnuPrintPreview"_s));
    company().mailServer.clear();
    EXPECT_TRUE(triggerPopupEntry(sales, u"mnuEmail"_s));
    company().mailServer = u"smtp.example.org"_s;
    EXPECT_TRUE(triggerPopupEntry(sales, u"mnuEmail"_s));

    EXPECT_EQ(deliveries(), (QStringList{u"printer Receipt A-2"_s, u"screen Receipt A-1"_s,
                                         u"mail bo@example.org"_s}));
    EXPECT_EQ(boxes().titles(), (QStringList{u"Email Settings Required"_s, u"Email Receipt"_s}));
    EXPECT_EQ(boxes().lines().last(), u"Email Receipt | Receipt has been sent | Information"_s);
}

// Every ledger opens on the screen, the menu's caption not always its title.
// The Report Manager has no menu entry; its id alone opens it.
TEST_F(MainWindowOutputTest, ReportsMenuOpensEachLedgerAndTheManagerOpensByItsId) {
    for (const char16_t *id :
         {u"ID_ReceiptLedger", u"ID_ProductLedgerDetail", u"ID_ServiceLedgerDetail",
          u"ID_RptService", u"ID_InventorySoldDetail"})
        window->tool(QString::fromUtf16(id))->trigger();
    EXPECT_EQ(deliveries(),
              (QStringList{u"screen Receipt Ledger"_s, u"screen Inventory Sold Ledger"_s,
                           u"screen Service Ledger"_s, u"screen Service Breakdown Report"_s,
                           u"screen Inventory Sold Detail Ledger"_s}));

    const int templates =
        driveModal<frmReports>([&] { window->toolClick(u"ID_ReportManager"_s); },
                               [](frmReports &screen) {
                                   screen.reject();
                                   return control<QListWidget>(screen, u"reports"_s)->count();
                               });
    EXPECT_EQ(templates, 5);
    for (const QMenu *menu : window->findChildren<QMenu *>())
        EXPECT_FALSE(menu->actions().contains(window->tool(u"ID_ReportManager"_s)));
    EXPECT_TRUE(boxes().shown.isEmpty());
}

} // namespace

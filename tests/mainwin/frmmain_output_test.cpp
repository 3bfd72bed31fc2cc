// The main window's ways out to the receipt output: the list popup's print,
// preview and e-mail, the ledgers of the Reports menu and the Report Manager.

#include "app/company.h"
#include "mainwin/frmmain.h"
#include "output/frmreports.h"
#include "reportoutputtest.h"

#include <QAction>
#include <QListWidget>
#include <QMenu>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

class MainWindowOutputTest : public ReportOutputTest {
protected:
    void SetUp() override {
        ReportOutputTest::SetUp();
        window = std::make_unique<frmMain>();
    }
    void TearDown() override {
        window.reset();
        ReportOutputTest::TearDown();
    }

    std::unique_ptr<frmMain> window;
};

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

#include "catalogue/frmproductmanagement.h"
#include "cataloguetest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTreeView>

namespace {

const QStringList panel = {u"cmdNew"_s,      u"cmdEdit"_s, u"cmdDelete"_s, u"cmdOK"_s,
                           u"cmdCancelOp"_s, u"Frame2"_s,  u"txtName"_s};

class InventoryTest : public CatalogueTest {
protected:
    // Opens "Inventory" from the main window's tool and lets `act` drive it.
    template <typename Act> void openInventory(Act &&act) {
        driveModal<frmProductManagement>([this] { mainWindow().toolClick(u"ID_Products"_s); },
                                         [&](frmProductManagement &screen) {
                                             act(screen);
                                             screen.findChild<QAction *>(u"ID_Close"_s)->trigger();
                                         });
    }

    static QTreeView *list(const frmProductManagement &screen) {
        return control<QTreeView>(screen, u"lstProducts"_s);
    }
    static QString text(const frmProductManagement &screen, const QString &name) {
        return control<QLineEdit>(screen, name)->text();
    }
};

TEST_F(InventoryTest, ViewsEditsAndAddsThroughThePanelsStates) {
    addProduct(u"B-2"_s, u"Bolt"_s);
    const qint32 lamp = addProduct(u"L-1"_s, u"Lamp"_s, Product::Active, u"12.5"_s);
    addProduct(u"A-0"_s, u"Old anvil"_s, Product::Inactive);

    openInventory([&](frmProductManagement &screen) {
        EXPECT_EQ(screen.windowTitle(), u"Inventory"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
        EXPECT_EQ(rowsOf(list(screen)), (QStringList{u"B-2 | Bolt"_s, u"L-1 | Lamp"_s}));
        EXPECT_EQ(enabled(screen, panel), u"1000000"_s) << "idle";

        clickRow(list(screen), 1, true);
        EXPECT_EQ(enabled(screen, panel), u"1110010"_s) << "viewing";
        EXPECT_EQ(QStringList({text(screen, u"txtName"_s), text(screen, u"txtSKU"_s),
                               text(screen, u"txtDesc"_s), text(screen, u"txtPrice"_s)}),
                  (QStringList{u"Lamp"_s, u"L-1"_s, u"Lamp each"_s, u"12.5"_s}));

        click(screen, u"cmdEdit"_s);
        EXPECT_EQ(enabled(screen, panel), u"0010111"_s) << "editing";
        type(screen, u"txtName"_s, u"Desk lamp"_s);
        click(screen, u"optStatus0"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(rowsOf(list(screen)), (QStringList{u"B-2 | Bolt"_s, u"L-1 | Desk lamp (red)"_s}))
            << "an inactive product stays, red, until the next reload";
        EXPECT_EQ(enabled(screen, panel), u"1000000"_s);
        EXPECT_EQ(text(screen, u"txtName"_s), u""_s);

        click(screen, u"cmdNew"_s);
        EXPECT_EQ(enabled(screen, panel), u"1000111"_s) << "adding";
        EXPECT_EQ(screen.focusWidget(), control<QWidget>(screen, u"txtName"_s));
        EXPECT_TRUE(control<QRadioButton>(screen, u"optStatus1"_s)->isChecked());
        type(screen, u"txtName"_s, u"Apple's crate"_s);
        type(screen, u"txtSKU"_s, u"0-CRATE"_s);
        type(screen, u"txtPrice"_s, u"abc"_s);
        EXPECT_FALSE(control<QWidget>(screen, u"cmdOK"_s)->isEnabled()) << "no description";
        type(screen, u"txtDesc"_s, u"Wooden"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(boxes().lines(), QStringList{u"Error | Unit Cost is invalid. | Critical"_s});
        EXPECT_EQ(screen.focusWidget(), control<QWidget>(screen, u"txtPrice"_s));
        type(screen, u"txtPrice"_s, u"3.25"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(rowsOf(list(screen)).last(), u"0-CRATE | Apple's crate"_s)
            << "added at the end, not in SKU order";
        EXPECT_EQ(list(screen)->currentIndex().row(), 2);

        click(screen, u"chkInactive"_s);
        EXPECT_EQ(rowsOf(list(screen)),
                  (QStringList{u"0-CRATE | Apple's crate"_s, u"A-0 | Old anvil (red)"_s,
                               u"B-2 | Bolt"_s, u"L-1 | Desk lamp (red)"_s}));
    });
    Product stored;
    ASSERT_TRUE(stored.getProductBySKU(u"0-crate"_s));
    EXPECT_EQ(stored.cost, Currency::fromText(u"3.25"_s));
    ASSERT_TRUE(stored.getProduct(lamp));
    EXPECT_EQ(stored.productStatus, Product::Inactive);
}

TEST_F(InventoryTest, CancelAsksAndAProductOnAReceiptIsNotDeleted) {
    useOnReceipt(addProduct(u"U-1"_s, u"Used"_s));
    addProduct(u"V-1"_s, u"Unused"_s);

    openInventory([&](frmProductManagement &screen) {
        clickRow(list(screen), 0, true);
        click(screen, u"cmdEdit"_s);
        boxes().answers << Dialogs::Answer::No << Dialogs::Answer::Yes;
        click(screen, u"cmdCancelOp"_s);
        EXPECT_EQ(enabled(screen, panel), u"0010111"_s) << "No leaves it editing";
        click(screen, u"cmdCancelOp"_s);
        EXPECT_EQ(enabled(screen, panel), u"1000000"_s);
        EXPECT_EQ(screen.focusWidget(), list(screen));

        clickRow(list(screen), 0, true);
        click(screen, u"cmdDelete"_s);
        clickRow(list(screen), 1, true);
        boxes().answers << Dialogs::Answer::Yes;
        click(screen, u"cmdDelete"_s);
        EXPECT_EQ(rowsOf(list(screen)), QStringList{u"U-1 | Used"_s});
        EXPECT_EQ(enabled(screen, panel), u"1000000"_s);
    });
    EXPECT_EQ(
        boxes().lines(),
        (QStringList{u"Cancel | Cancel operation? | Question"_s,
                     u"Cancel | Cancel operation? | Question"_s,
                     u"Product In Use | This product is used on a receipt and can not be "
                     "deleted. | Critical"_s,
                     u"Confirm | Are you sure you want to remove this product? | Question"_s}));
    EXPECT_EQ(Product().getProducts(Product::AllProducts).size(), 1);
}

TEST_F(InventoryTest, EnterSearchesInactiveProductsTooAndTypedWildcardsMatchThemselves) {
    addProduct(u"50%-OFF"_s, u"O'Brien's sale"_s, Product::Inactive);
    addProduct(u"500FF"_s, u"Plain"_s);

    openInventory([&](frmProductManagement &screen) {
        auto *search = control<QLineEdit>(screen, u"txtSearch"_s);
        search->setFocus();
        QTest::keyClick(search, Qt::Key_Return);
        EXPECT_EQ(rowsOf(list(screen)), QStringList{u"500FF | Plain"_s}) << "empty: no search";

        QTest::keyClicks(search, u"%"_s);
        QTest::keyClick(search, Qt::Key_Return);
        EXPECT_EQ(rowsOf(list(screen)), QStringList{u"50%-OFF | O'Brien's sale (red)"_s});
        type(screen, u"txtSearch"_s, u"o'brien"_s);
        QTest::keyClick(search, Qt::Key_Enter);
        EXPECT_EQ(rowsOf(list(screen)).size(), 1);
        type(screen, u"txtSearch"_s, u"_"_s);
        QTest::keyClick(search, Qt::Key_Return);
        EXPECT_EQ(rowsOf(list(screen)), QStringList());
        EXPECT_TRUE(screen.isVisible()) << "Enter goes to no button";

        screen.findChild<QAction *>(u"ID_ReloadList"_s)->trigger();
        EXPECT_EQ(rowsOf(list(screen)), QStringList{u"500FF | Plain"_s});
    });
    EXPECT_EQ(boxes().lines(), QStringList{u"Search Results | No products found | Information"_s});
}

// A click on a heading sorts without regard to case; the product on show
// stays selected, and a reload keeps the order. Each failure has its own box.
TEST_F(InventoryTest, HeadingsSortAndFailuresShowTheirOwnBoxes) {
    addProduct(u"A-1"_s, u"zinc plate"_s);
    addProduct(u"B-1"_s, u"Anchor"_s);
    addProduct(u"C-1"_s, u"bolt"_s);
    openInventory([&](frmProductManagement &screen) {
        clickRow(list(screen), 0, true);
        list(screen)->sortByColumn(1, Qt::AscendingOrder);
        EXPECT_EQ(rowsOf(list(screen)),
                  (QStringList{u"B-1 | Anchor"_s, u"C-1 | bolt"_s, u"A-1 | zinc plate"_s}));
        EXPECT_EQ(list(screen)->currentIndex().data().toString(), u"A-1"_s);
        screen.findChild<QAction *>(u"ID_ReloadList"_s)->trigger();
        EXPECT_EQ(rowsOf(list(screen)).first(), u"B-1 | Anchor"_s);

        clickRow(list(screen), 0, true);
        screen.findChild<QAction *>(u"ID_ReloadList"_s)->trigger();
        click(screen, u"cmdDelete"_s);
        db::execute(u"DROP TABLE tblProduct"_s);
        screen.findChild<QAction *>(u"ID_ReloadList"_s)->trigger();
        EXPECT_EQ(rowsOf(list(screen)).size(), 3);
        EXPECT_TRUE(screen.isVisible());
    });
    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], u"Error | An error has occured:  Object variable or With block variable "
                        "not set | Critical"_s)
        << "a reload leaves no row selected";
    EXPECT_TRUE(lines[1].startsWith(
        u"Product Load Error | An error has occured!  Product.getProducts:  no such table"_s));
}

} // namespace

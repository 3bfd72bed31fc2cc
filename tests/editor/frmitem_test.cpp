#include "catalogue/cataloguetest.h"
#include "catalogue/frmproductmanagement.h"
#include "editor/frmitem.h"
#include "editor/frmlookup.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

namespace {

class LineItemTest : public CatalogueTest {
protected:
    void SetUp() override {
        CatalogueTest::SetUp();
        bolt = addProduct(u"B-2"_s, u"Bolt"_s);
        lamp = addProduct(u"L-1"_s, u"Lamp"_s, Product::Active, u"12.5"_s);
        addProduct(u"A-0"_s, u"Old anvil"_s, Product::Inactive);
    }

    // Gives the dialog's item when it was accepted.
    template <typename Act> std::optional<Product> editLine(const Product &line, Act &&act) {
        std::optional<Product> result;
        driveModal<frmItem>(
            [&] {
                frmItem screen;
                screen.item = line;
                screen.exec();
                if (screen.accepted)
                    result = screen.item;
            },
            [&](frmItem &screen) {
                EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
                act(screen);
            });
        return result;
    }

    static QString text(const QWidget &screen, const QString &name) {
        if (auto *box = screen.findChild<QComboBox *>(name))
            return box->currentText();
        if (auto *label = screen.findChild<QLabel *>(name))
            return label->text();
        return control<QLineEdit>(screen, name)->text();
    }
    static void leave(const QWidget &screen, const QString &name) {
        QTest::keyClick(control<QWidget>(screen, name), Qt::Key_Tab);
    }
    static bool hasFocus(const QWidget &screen, const QString &name) {
        return screen.focusWidget() == control<QWidget>(screen, name);
    }

    qint32 bolt = 0, lamp = 0;
};

} // namespace

TEST_F(LineItemTest, ANewLineTakesTheCataloguesValuesAndMayChangeThemForThisSale) {
    const std::optional<Product> line = editLine(Product(), [&](frmItem &screen) {
        EXPECT_EQ(screen.windowTitle(), u"New Item"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
        EXPECT_TRUE(hasFocus(screen, u"txtSKU"_s));
        auto *skus = control<QComboBox>(screen, u"txtSKU"_s);
        EXPECT_EQ(skus->count(), 2) << "active products only";
        EXPECT_EQ(text(screen, u"txtSKU"_s), u""_s);
        EXPECT_FALSE(control<QWidget>(screen, u"cmdOK"_s)->isEnabled());

        skus->showPopup();
        QTest::keyClick(skus->view(), Qt::Key_Down);
        QTest::keyClick(skus->view(), Qt::Key_Return);
        EXPECT_EQ(text(screen, u"txtSKU"_s), u"L-1"_s);
        EXPECT_EQ(text(screen, u"lblProductName"_s), u"Lamp"_s) << "a pick in the list looks up";

        type(screen, u"txtSKU"_s, u"nothing"_s);
        leave(screen, u"txtSKU"_s);
        EXPECT_EQ(text(screen, u"lblProductName"_s), u"Item ID Not Found"_s);

        type(screen, u"txtSKU"_s, u" l-1 "_s);
        leave(screen, u"txtSKU"_s);
        EXPECT_EQ(text(screen, u"lblProductName"_s), u"Lamp"_s);
        EXPECT_EQ(text(screen, u"txtDesc"_s), u"Lamp each"_s);
        EXPECT_EQ(text(screen, u"txtPrice"_s), u"12.50"_s);
        EXPECT_TRUE(hasFocus(screen, u"txtQty"_s));
        EXPECT_FALSE(control<QWidget>(screen, u"cmdOK"_s)->isEnabled()) << "no quantity";

        type(screen, u"txtQty"_s, u"2"_s);
        type(screen, u"txtPrice"_s, u"11"_s);
        type(screen, u"txtDesc"_s, u"Lamp, shop-soiled"_s);
        type(screen, u"txtExtDesc"_s, u"no shade"_s);
        click(screen, u"cmdOK"_s);
    });
    ASSERT_TRUE(line);
    EXPECT_EQ(line->productID, lamp);
    EXPECT_EQ(u"%1|%2|%3|%4|%5"_s.arg(line->productSKU)
                  .arg(line->qty)
                  .arg(line->cost.toString(), line->description, line->extDesc),
              u" l-1 |2|11|Lamp, shop-soiled|no shade"_s);
    Product stored;
    stored.getProduct(lamp);
    EXPECT_EQ(stored.cost.toString(), u"12.5"_s) << "the catalogue keeps its price";
    EXPECT_TRUE(boxes().shown.isEmpty());
}

TEST_F(LineItemTest, AnEditedLineShowsItsValuesAndNewProductsJoinTheSkus) {
    Product line;
    line.productID = bolt;
    line.productSKU = u"B-2"_s;
    line.qty = 4;
    line.cost = Currency::fromText(u"1.2"_s);
    line.description = u"Bolt, special"_s;
    const std::optional<Product> result = editLine(line, [&](frmItem &screen) {
        QStringList shown;
        for (const auto *name : {"txtQty", "txtSKU", "txtDesc", "txtPrice", "txtExtDesc"})
            shown.append(text(screen, QString::fromLatin1(name)));
        EXPECT_EQ(shown.join(u'|'), u"4|B-2|Bolt, special|1.2|"_s);
        EXPECT_TRUE(control<QWidget>(screen, u"cmdOK"_s)->isEnabled());
        auto *sku = control<QComboBox>(screen, u"txtSKU"_s);
        EXPECT_EQ(sku->lineEdit()->selectedText(), u"B-2"_s);
        sku->lineEdit()->deselect();
        control<QWidget>(screen, u"txtDesc"_s)->setFocus();
        QTest::mouseClick(sku->lineEdit(), Qt::LeftButton, {}, QPoint(4, 4));
        QCoreApplication::processEvents();
        EXPECT_EQ(sku->lineEdit()->selectedText(), u"B-2"_s) << "also when entered by the mouse";
        leave(screen, u"txtSKU"_s);
        EXPECT_EQ(text(screen, u"txtPrice"_s), u"1.50"_s) << "leaving the SKU looks it up again";
        EXPECT_EQ(text(screen, u"txtDesc"_s), u"Bolt each"_s);

        // A product added in the inventory screen joins the SKUs at once.
        type(screen, u"txtSKU"_s, u"C-3"_s);
        driveModal<frmProductManagement>([&] { click(screen, u"cmdNewProduct"_s); },
                                         [&](frmProductManagement &inventory) {
                                             addProduct(u"C-3"_s, u"Clamp"_s);
                                             inventory.reject();
                                         });
        EXPECT_EQ(control<QComboBox>(screen, u"txtSKU"_s)->count(), 3);
        EXPECT_EQ(text(screen, u"txtSKU"_s), u"C-3"_s) << "the typed SKU stays";
        click(screen, u"cmdCancel"_s);
    });
    EXPECT_FALSE(result);
}

// Every check of OK in turn, each with its box and the field it returns to.
TEST_F(LineItemTest, OkChecksQuantityAndPriceAndMayAddAnUnknownSku) {
    const std::optional<Product> line = editLine(Product(), [&](frmItem &screen) {
        type(screen, u"txtSKU"_s, u"O'Brien-7"_s);
        type(screen, u"txtDesc"_s, u"Hinge"_s);
        type(screen, u"txtPrice"_s, u"2.25"_s);
        type(screen, u"txtQty"_s, u"abc"_s);
        boxes().answers.enqueue(Dialogs::Answer::No);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(boxes().lines(),
                  (QStringList{u"New Product | Product ID not found.  Do you want to add this "
                               "product ID to the database and continue?"_s,
                               u"Invalid Product ID | Invalid Product ID entered.  Please enter a "
                               "valid product ID or click Lookup to search. | Critical"_s}));
        EXPECT_TRUE(hasFocus(screen, u"txtSKU"_s));
        EXPECT_FALSE(Product().getProductBySKU(u"O'Brien-7"_s));

        boxes().shown.clear();
        boxes().answers.enqueue(Dialogs::Answer::Yes);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(boxes().lines().last(),
                  u"Invalid Quantity | Invalid quantity.  Please enter only digits in this field | "
                  "Critical"_s);
        EXPECT_TRUE(hasFocus(screen, u"txtQty"_s));
        Product added;
        ASSERT_TRUE(added.getProductBySKU(u"O'Brien-7"_s));
        EXPECT_EQ(u"%1|%2|%3|%4"_s.arg(added.productName, added.description, added.cost.toString())
                      .arg(added.productStatus),
                  u"O'Brien-7|Hinge|2.25|%1"_s.arg(Product::Active));

        boxes().shown.clear();
        type(screen, u"txtQty"_s, u"0"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(boxes().lines(),
                  QStringList{u"Error | Quantity must be greater than 0 | Critical"_s})
            << "the product is known now: no second question";
        type(screen, u"txtQty"_s, u"70000"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(boxes().lines().last(), u"Error | An error has occured: Overflow | Critical"_s);
        EXPECT_TRUE(screen.isVisible()) << "the line's entries stay";
        type(screen, u"txtQty"_s, u"-1.6"_s);
        type(screen, u"txtPrice"_s, u"two"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(boxes().lines().last(), u"Invalid Unit Cost | Invalid Unit Cost.  Please enter a "
                                          "valid amount | Critical"_s);
        EXPECT_TRUE(hasFocus(screen, u"txtPrice"_s));
        type(screen, u"txtPrice"_s, u"2"_s);
        click(screen, u"cmdOK"_s);
    });
    ASSERT_TRUE(line);
    Product added;
    added.getProductBySKU(u"O'Brien-7"_s);
    EXPECT_EQ(line->productID, added.productID) << "the line carries the new product";
    EXPECT_EQ(line->qty, -2) << "rounded, and negative passes";
    EXPECT_EQ(line->cost.toString(), u"2"_s);
}

// The lookup lists active products by a part of SKU or name; a pick fills
// the line from the catalogue.
TEST_F(LineItemTest, TheLookupFindsAndPicksAProduct) {
    addProduct(u"LB-9"_s, u"Lamp bulb"_s);
    const std::optional<Product> line = editLine(Product(), [&](frmItem &screen) {
        driveModal<frmLookup>(
            [&] { click(screen, u"cmdLookup"_s); },
            [&](frmLookup &lookup) {
                EXPECT_EQ(lookup.windowTitle(), u"Product Lookup"_s);
                EXPECT_EQ(controlsWithoutAccessibleName(lookup), QStringList());
                auto *list = control<QTreeView>(lookup, u"lstProducts"_s);
                QTest::keyClick(control<QWidget>(lookup, u"txtName"_s), Qt::Key_Return);
                EXPECT_EQ(rowsOf(list), QStringList()) << "Enter needs a text";
                click(lookup, u"cmdSearch"_s);
                EXPECT_EQ(rowsOf(list).size(), 3) << "no inactive product";

                type(lookup, u"txtName"_s, u"it's"_s);
                QTest::keyClick(control<QWidget>(lookup, u"txtName"_s), Qt::Key_Return);
                EXPECT_EQ(boxes().lines(), QStringList{u"Search Results | No products found | "
                                                       "Information"_s});
                type(lookup, u"txtName"_s, u"lamp"_s);
                QTest::keyClick(control<QWidget>(lookup, u"txtName"_s), Qt::Key_Return);
                EXPECT_EQ(rowsOf(list), (QStringList{u"L-1 | Lamp | Lamp each"_s,
                                                     u"LB-9 | Lamp bulb | Lamp bulb each"_s}));
                EXPECT_EQ(lookup.focusWidget(), list);
                QTest::keyClick(list, Qt::Key_Down);
                QTest::keyClick(list, Qt::Key_Return);
            });
        EXPECT_EQ(text(screen, u"txtSKU"_s), u"LB-9"_s);
        EXPECT_EQ(text(screen, u"lblProductName"_s), u"Lamp bulb"_s);
        EXPECT_EQ(screen.windowTitle(), u"Edit Line Item"_s)
            << "active again with a product, the dialog shows it";
        EXPECT_EQ(text(screen, u"txtQty"_s), u"0"_s);

        driveModal<frmLookup>(
            [&] { click(screen, u"cmdLookup"_s); },
            [&](frmLookup &lookup) { lookup.findChild<QAction *>(u"ID_Close"_s)->trigger(); });
        EXPECT_EQ(text(screen, u"txtSKU"_s), u"LB-9"_s) << "closed without a pick";
        type(screen, u"txtQty"_s, u"5"_s);
        click(screen, u"cmdOK"_s);
    });
    ASSERT_TRUE(line);
    EXPECT_EQ(line->productSKU, u"LB-9"_s);
    EXPECT_EQ(boxes().titles(), QStringList{u"Search Results"_s}) << "a picked SKU is known";
    EXPECT_EQ(line->qty, 5);
    EXPECT_EQ(line->cost.toString(), u"1.5"_s);
}

TEST_F(LineItemTest, EachFailureShowsItsOwnBox) {
    db::execute(u"ALTER TABLE tblProduct RENAME TO tblProductGone"_s);
    editLine(Product(), [&](frmItem &screen) {
        type(screen, u"txtSKU"_s, u"B-2"_s);
        leave(screen, u"txtSKU"_s);
        driveModal<frmLookup>([&] { click(screen, u"cmdLookup"_s); },
                              [&](frmLookup &lookup) {
                                  click(lookup, u"cmdSearch"_s);
                                  lookup.reject();
                              });
        click(screen, u"cmdCancel"_s);
    });
    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Error | frmItem.loadProducts:  Product.getProducts:  no such table: "
                           "tblProduct | Critical"_s,
                           u"Error | An error has occured: Product.getProductBySKU:  no such "
                           "table: tblProduct | Critical"_s,
                           u"Error | An error has occured: Product.productSearch:  no such table: "
                           "tblProduct | Critical"_s}));
}

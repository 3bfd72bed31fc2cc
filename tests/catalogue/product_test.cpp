#include "cataloguetest.h"
#include "support/testhelpers.h"

namespace {

QStringList skusOf(const db::Snapshot &products) {
    QStringList skus;
    for (const db::Row &row : products)
        skus.append(row.text(u"productSKU"_s));
    return skus;
}

using ProductTest = CatalogueTest;

TEST_F(ProductTest, ListsFilterSortAndSearchTakingTypedTextLiterally) {
    addProduct(u"b-2"_s, u"Cable"_s);
    addProduct(u"AB-1"_s, u"Widget"_s);
    addProduct(u"a-9"_s, u"Old cable"_s, Product::Inactive);
    addProduct(u"c-3"_s, u"Lamp"_s);

    Product product;
    EXPECT_EQ(skusOf(product.getProducts(Product::ActiveOnly)),
              (QStringList{u"AB-1"_s, u"b-2"_s, u"c-3"_s}));
    EXPECT_EQ(skusOf(product.getProducts(Product::InactiveOnly)), QStringList{u"a-9"_s});
    EXPECT_EQ(skusOf(product.getProducts(7)),
              (QStringList{u"a-9"_s, u"AB-1"_s, u"b-2"_s, u"c-3"_s}));

    // By SKU or by name, never by description; inactive ones only with filter 2.
    EXPECT_EQ(skusOf(product.productSearch(u"ab"_s, Product::ActiveOnly)),
              (QStringList{u"AB-1"_s, u"b-2"_s}));
    EXPECT_EQ(skusOf(product.productSearch(u"ab"_s, Product::AllProducts)),
              (QStringList{u"a-9"_s, u"AB-1"_s, u"b-2"_s}));
    EXPECT_EQ(skusOf(product.productSearch(u"each"_s, Product::AllProducts)), QStringList());
    EXPECT_EQ(skusOf(product.productSearch(u""_s, Product::InactiveOnly)), QStringList{u"a-9"_s});

    // Typed wildcards and apostrophes match themselves.
    addProduct(u"50%-OFF"_s, u"O'Brien's 10_pack"_s);
    addProduct(u"500FF"_s, u"OBriens 10-pack"_s);

    EXPECT_EQ(skusOf(product.productSearch(u"%"_s, Product::AllProducts)),
              QStringList{u"50%-OFF"_s});
    EXPECT_EQ(skusOf(product.productSearch(u"_"_s, Product::AllProducts)),
              QStringList{u"50%-OFF"_s});
    EXPECT_EQ(skusOf(product.productSearch(u"o'brien"_s, Product::ActiveOnly)),
              QStringList{u"50%-OFF"_s});
    ASSERT_TRUE(product.getProductBySKU(u"50%-off"_s));
    EXPECT_EQ(product.productName, u"O'Brien's 10_pack"_s);
    EXPECT_FALSE(Product().getProductBySKU(u"50_-OFF"_s));
}

TEST_F(ProductTest, WritesReadsAndKeepsTheLineFields) {
    Product product;
    product.productName = u"Gift box"_s;
    product.productSKU = u"GB-1"_s;
    product.description = u"Boxed"_s;
    product.cost = Currency::fromText(u"12.5"_s);
    product.qty = 3;
    product.extDesc = u"red ribbon"_s;
    product.writeProduct();
    const qint32 id = product.productID;
    ASSERT_GT(id, 0);
    EXPECT_EQ(db::readFirst(u"SELECT cost, productStatus FROM tblProduct"_s)->int32(u"cost"_s),
              125000);

    product.productName = u"Gift box, large"_s;
    product.writeProduct();
    EXPECT_EQ(product.productID, id);

    Product loaded;
    loaded.productID = 77;
    loaded.qty = 2;
    loaded.extDesc = u"kept"_s;
    ASSERT_TRUE(loaded.getProduct(id));
    EXPECT_EQ(loaded.productID, 77) << "getProduct leaves the key to its caller";
    EXPECT_EQ(QStringList({loaded.productName, loaded.description, loaded.cost.toString(),
                           QString::number(loaded.productStatus), loaded.extDesc}),
              (QStringList{u"Gift box, large"_s, u"Boxed"_s, u"12.5"_s, u"1"_s, u"kept"_s}));
    ASSERT_TRUE(loaded.getProductBySKU(u"gb-1"_s));
    EXPECT_EQ(loaded.productID, id);
    EXPECT_EQ(loaded.qty, 2);
    EXPECT_FALSE(Product().getProduct(id + 1));
}

TEST_F(ProductTest, IsUsedLooksAtReceiptLinesAndFailuresCarryTheirPrefix) {
    const qint32 used = addProduct(u"U-1"_s, u"Used"_s);
    const qint32 unused = addProduct(u"N-1"_s, u"Unused"_s);
    useOnReceipt(used);
    useOnReceipt(used);

    Product product;
    EXPECT_TRUE(product.isUsed(used));
    EXPECT_FALSE(product.isUsed(unused));
    EXPECT_TRUE(product.deleteProduct(used));
    EXPECT_EQ(skusOf(product.getProducts(Product::AllProducts)), QStringList{u"N-1"_s});

    // Failures carry the operation's prefix.
    db::execute(u"INSERT INTO tblProduct (productSKU) VALUES ('NULLS')"_s);
    const BriskoError null = errorOf([] { Product().getProductBySKU(u"NULLS"_s); });
    EXPECT_EQ(null.number(), RuntimeError::InvalidUseOfNull);
    EXPECT_EQ(null.description(), u"Product.getProductBySKU:  Invalid use of Null"_s);

    db::execute(u"DROP TABLE tblProduct"_s);
    EXPECT_TRUE(errorOf([] { Product().getProducts(1); })
                    .description()
                    .startsWith(u"Product.getProducts:  no such table"_s));
    EXPECT_TRUE(errorOf([] { Product().writeProduct(); })
                    .description()
                    .startsWith(u"Product.writeProduct:  "_s));
}

TEST_F(ProductTest, ServicesSortByShortNameAndKeepTheirKey) {
    const qint32 id = addService(u"tune-up"_s, u"O'Hare's 100% tune-up"_s, u"80"_s);
    Service service;
    ASSERT_TRUE(service.GetService(id));
    service.WriteService();
    EXPECT_EQ(service.serviceID, id) << "an update keeps the key";
    addService(u"Assembly"_s, u"Flat-pack"_s, u"45"_s);

    QStringList names;
    for (const db::Row &row : Service().GetServices())
        names.append(row.text(u"shortName"_s));
    EXPECT_EQ(names, (QStringList{u"Assembly"_s, u"tune-up"_s}));

    Service loaded;
    ASSERT_TRUE(loaded.GetService(id));
    EXPECT_EQ(loaded.longDesc, u"O'Hare's 100% tune-up"_s);
    EXPECT_EQ(loaded.defaultCost, Currency::fromInt(80));
    EXPECT_TRUE(loaded.DeleteService(id));
    EXPECT_FALSE(Service().GetService(id));
}

} // namespace

#include "catalogue/product.h"

#include "platform/briskoerror.h"

using namespace Qt::Literals::StringLiterals;

bool Product::getProduct(qint32 productID) {
    return reraiseWithPrefix(u"Product.getProduct:  "_s, [&] {
        const std::optional<db::Row> row =
            db::readFirst(u"SELECT * FROM tblProduct WHERE productID = ?"_s, {productID});
        if (!row)
            return false;
        readFrom(*row);
        return true;
    });
}

// Counted wide: a product sold for years may stand on more lines than a
// 16-bit count holds.
bool Product::isUsed(qint32 productID) {
    return reraiseWithPrefix(u"Product.isUsed:  "_s, [productID] {
        const std::optional<db::Row> row = db::readFirst(
            u"SELECT count(*) as prodCount FROM tblReceipt_Product WHERE productID = ?"_s,
            {productID});
        return row && row->int32(u"prodCount"_s) >= 1;
    });
}

bool Product::getProductBySKU(const QString &sku) {
    return reraiseWithPrefix(u"Product.getProductBySKU:  "_s, [&] {
        const std::optional<db::Row> row =
            db::readFirst(u"SELECT * FROM tblProduct WHERE productSKU = ?"_s, {sku});
        if (!row)
            return false;
        readFrom(*row);
        productID = row->int32(u"productID"_s);
        return true;
    });
}

db::Snapshot Product::getProducts(qint16 filter) {
    return reraiseWithPrefix(u"Product.getProducts:  "_s, [filter] {
        if (filter < AllProducts) {
            return db::select(
                u"SELECT * FROM tblProduct WHERE productStatus = ? ORDER BY productSKU"_s,
                {int(filter)});
        }
        return db::select(u"SELECT * FROM tblProduct ORDER BY productSKU"_s);
    });
}

db::Snapshot Product::productSearch(const QString &text, qint16 filter) {
    return reraiseWithPrefix(u"Product.productSearch:  "_s, [&] {
        const QString pattern = db::containingPattern(text);
        if (filter != AllProducts) {
            return db::select(u"SELECT * FROM tblProduct WHERE (productSKU LIKE ? ESCAPE '\\' "
                              "OR productName LIKE ? ESCAPE '\\') AND productStatus = ? "
                              "ORDER BY productSKU"_s,
                              {pattern, pattern, int(filter)});
        }
        return db::select(u"SELECT * FROM tblProduct WHERE productSKU LIKE ? ESCAPE '\\' "
                          "OR productName LIKE ? ESCAPE '\\' ORDER BY productSKU"_s,
                          {pattern, pattern});
    });
}

bool Product::writeProduct() {
    return reraiseWithPrefix(u"Product.writeProduct:  "_s, [this] {
        if (productID != 0) {
            db::execute(
                u"UPDATE tblProduct SET productName = ?, productSKU = ?, cost = ?, "
                "productStatus = ?, productDesc = ? WHERE productID = ?"_s,
                {productName, productSKU, cost, int(productStatus), description, productID});
            return true;
        }
        productID = static_cast<qint32>(db::insertReturningKey(
            u"INSERT INTO tblProduct (productName, productSKU, cost, productStatus, productDesc) "
            "VALUES(?, ?, ?, ?, ?) RETURNING productID"_s,
            {productName, productSKU, cost, int(productStatus), description}));
        return true;
    });
}

bool Product::deleteProduct(qint32 productID) {
    return reraiseWithPrefix(u"Product.deleteProduct:  "_s, [productID] {
        db::execute(u"DELETE FROM tblProduct WHERE productID = ?"_s, {productID});
        return true;
    });
}

// productID is the caller's to set; a Null in any column fails.
void Product::readFrom(const db::Row &row) {
    productName = row.text(u"productName"_s);
    productSKU = row.text(u"productSKU"_s);
    cost = row.currency(u"cost"_s);
    productStatus = row.int16(u"productStatus"_s);
    description = row.text(u"productDesc"_s);
}

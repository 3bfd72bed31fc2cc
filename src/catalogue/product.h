#pragma once

#include "app/currency.h"
#include "app/database.h"

#include <QString>

// One product of tblProduct with every query on that table. The receipt
// editor also carries a line item on it: qty and extDesc belong to the line
// and are never read or written here. A product that a receipt uses is never
// deleted (isUsed tells); setting it inactive takes it out of the lists.
class Product {
public:
    // productStatus.
    static constexpr qint16 Inactive = 0;
    static constexpr qint16 Active = 1;
    // Status filters of getProducts and productSearch.
    static constexpr qint16 InactiveOnly = 0;
    static constexpr qint16 ActiveOnly = 1;
    static constexpr qint16 AllProducts = 2;

    qint32 productID = 0; // 0 until first written
    QString productName;
    QString productSKU; // the product's code; every list is sorted by it
    Currency cost;      // the unit price
    qint16 productStatus = Active;
    QString description; // column productDesc
    qint16 qty = 0;      // quantity on a receipt line
    QString extDesc;     // extended description on a receipt line

    // Fills every field but productID (and the line's two); false when
    // there is no such product.
    bool getProduct(qint32 productID);
    // Whether any receipt line names the product, a void receipt's included.
    bool isUsed(qint32 productID);
    // The first product with this SKU, in any case; fills productID too.
    bool getProductBySKU(const QString &sku);
    // Products of the filter's status, by SKU.
    db::Snapshot getProducts(qint16 filter);
    // Products whose SKU or name holds `text`, of the filter's status, by SKU.
    db::Snapshot productSearch(const QString &text, qint16 filter);
    // Inserts when productID is 0 and learns the new key, else updates.
    bool writeProduct();
    // Deletes without asking isUsed: that guard is the caller's.
    bool deleteProduct(qint32 productID);

private:
    void readFrom(const db::Row &row);
};

#pragma once

#include "app/modalscreen.h"
#include "catalogue/product.h"

#include <memory>

namespace Ui {
class frmItem;
}

// "New Item" / "Edit Line Item": one line of a product receipt. The SKU is
// looked up in the catalogue, whose description and price the line takes;
// both may then be changed for this sale alone. An unknown SKU can join the
// catalogue on the spot.
//
// The caller fills item (productID above 0 for a line being edited) before
// exec() and, when accepted is true, reads productID, productSKU, qty, cost,
// description and extDesc of item back.
class frmItem : public ModalScreen {
    Q_OBJECT

public:
    explicit frmItem(QWidget *parent = nullptr);
    ~frmItem() override;

    Product item;
    bool accepted = false;

protected:
    void load() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void loadProducts();
    void becameActive();
    void showItem();
    void updateOk();
    void skuChanged();
    void skuPicked();
    void skuLeft();
    void lookupProduct();
    void openLookup();
    void openProductManagement();
    void acceptItem();
    void addUnknownProduct();
    bool entriesValid();
    void refuse(const QString &text, const QString &title, QWidget *focus);

    std::unique_ptr<Ui::frmItem> ui;
    bool productFound = false;    // txtSKU names a product of the catalogue
    bool lookupOnClick = true;    // a pick in txtSKU's list looks the product up
    bool skipFocusLookup = false; // that pick has looked up; leaving txtSKU need not
};

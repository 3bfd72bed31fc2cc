#pragma once

#include "catalogue/cataloguescreen.h"

#include <memory>

namespace Ui {
class frmLookup;
}

// "Product Lookup": finds active products by a part of their SKU or name.
// A double click or Enter on a row picks it: selected is then true and
// selectedSKU holds the row's SKU.
class frmLookup : public CatalogueScreen {
    Q_OBJECT

public:
    explicit frmLookup(QWidget *parent = nullptr);
    ~frmLookup() override;

    bool selected = false;
    QString selectedSKU;

protected:
    void load() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void searchProducts();
    void pickProduct();

    std::unique_ptr<Ui::frmLookup> ui;
};

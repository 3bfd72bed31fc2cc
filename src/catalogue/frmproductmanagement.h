#pragma once

#include "catalogue/cataloguescreen.h"

#include <memory>

namespace db {
class Snapshot;
}

namespace Ui {
class frmProductManagement;
}

// "Inventory": the product list beside a details panel that goes through
// the states idle, viewing (a double click on a row), adding and editing.
// Inactive products show in red; a product a receipt uses is never deleted.
class frmProductManagement : public CatalogueScreen {
    Q_OBJECT

public:
    explicit frmProductManagement(QWidget *parent = nullptr);
    ~frmProductManagement() override;

protected:
    void load() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void loadProductList(qint16 filter);
    void showProducts(const db::Snapshot &products, bool (*isInactive)(qint16 status));
    void reloadList();
    void viewSelectedProduct();
    void addProduct();
    void editProduct();
    void cancelOperation();
    void saveProduct();
    void deleteProduct();
    void searchProducts();

    void setPanelEnabled(bool enabled);
    void clearPanel();
    void returnToIdle();
    void validateProduct();

    std::unique_ptr<Ui::frmProductManagement> ui;
    bool isEditing = false;
    bool isAdding = false;
    bool showInactive = false;
};

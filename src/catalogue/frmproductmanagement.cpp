#include "catalogue/frmproductmanagement.h"
#include "ui_frmProductManagement.h"

#include "platform/briskoerror.h"
#include "app/runtimeformat.h"
#include "catalogue/product.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

CatalogueListModel::Entry productEntry(const Product &product, bool inactive) {
    return {product.productID, {product.productSKU, product.productName}, inactive};
}

bool zeroIsInactive(qint16 status) {
    return status == 0;
}

// The search draws black only what is above 0.
bool notAboveZeroIsInactive(qint16 status) {
    return status <= 0;
}

} // namespace

frmProductManagement::frmProductManagement(QWidget *parent)
    : CatalogueScreen({tr("ID"), tr("Name")}, parent)
    , ui(std::make_unique<Ui::frmProductManagement>()) {
    ui->setupUi(this);
    ui->optStatus->setId(ui->optStatus0, Product::Inactive);
    ui->optStatus->setId(ui->optStatus1, Product::Active);
    attachList(ui->lstProducts);
    connect(ui->ID_Close, &QAction::triggered, this, &QDialog::reject);

    for (QLineEdit *text : {ui->txtName, ui->txtSKU, ui->txtDesc, ui->txtPrice}) {
        connect(text, &QLineEdit::textChanged, this, &frmProductManagement::validateProduct);
        Utility::selectAllOnFocus(text);
    }
    Utility::selectAllOnFocus(ui->txtSearch);
    ui->txtSearch->installEventFilter(this);
    connect(ui->optStatus, &QButtonGroup::buttonClicked, this,
            &frmProductManagement::validateProduct);
    connect(ui->lstProducts, &QAbstractItemView::activated, this,
            &frmProductManagement::viewSelectedProduct);
    connect(ui->chkInactive, &QCheckBox::clicked, this, [this](bool checked) {
        showInactive = checked;
        reloadList();
    });
    connect(ui->ID_ReloadList, &QAction::triggered, this, &frmProductManagement::reloadList);
    connect(ui->cmdNew, &QPushButton::clicked, this, &frmProductManagement::addProduct);
    connect(ui->cmdEdit, &QPushButton::clicked, this, &frmProductManagement::editProduct);
    connect(ui->cmdCancelOp, &QPushButton::clicked, this, &frmProductManagement::cancelOperation);
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmProductManagement::saveProduct);
    connect(ui->cmdDelete, &QPushButton::clicked, this, &frmProductManagement::deleteProduct);

    clearPanel();
    setPanelEnabled(false);
}

frmProductManagement::~frmProductManagement() = default;

void frmProductManagement::load() {
    loadProductList(Product::ActiveOnly);
}

// Enter in the search box runs the search and goes no further, so that no
// button of the screen takes it.
bool frmProductManagement::eventFilter(QObject *watched, QEvent *event) {
    if (watched == ui->txtSearch && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            searchProducts();
            return true;
        }
    }
    return CatalogueScreen::eventFilter(watched, event);
}

void frmProductManagement::loadProductList(qint16 filter) {
    runCommand(tr("An error has occured!  "), tr("Product Load Error"),
               [&] { showProducts(Product().getProducts(filter), zeroIsInactive); });
}

void frmProductManagement::showProducts(const db::Snapshot &products,
                                        bool (*isInactive)(qint16 status)) {
    QList<CatalogueListModel::Entry> entries;
    entries.reserve(products.size());
    for (const db::Row &row : products) {
        const qint16 status = row.int16(u"productStatus"_s);
        entries.append({row.int32(u"productID"_s),
                        {row.text(u"productSKU"_s), row.text(u"productName"_s)},
                        isInactive(status)});
    }
    showRows(std::move(entries));
}

void frmProductManagement::reloadList() {
    loadProductList(showInactive ? Product::AllProducts : Product::ActiveOnly);
}

void frmProductManagement::viewSelectedProduct() {
    if (!hasRows())
        return;
    runCommand(tr("An error occured:  "), tr("Product Load Error"), [this] {
        Product product;
        if (!product.getProduct(selectedKey()))
            return;
        ui->txtName->setText(product.productName);
        ui->txtSKU->setText(product.productSKU);
        ui->txtDesc->setText(product.description);
        ui->txtPrice->setText(product.cost.toString());
        if (QAbstractButton *option = ui->optStatus->button(product.productStatus))
            option->setChecked(true);
        ui->Frame2->setEnabled(true);
        ui->cmdEdit->setEnabled(true);
        ui->cmdDelete->setEnabled(true);
        ui->cmdOK->setEnabled(false);
    });
}

void frmProductManagement::addProduct() {
    isAdding = true;
    ui->cmdCancelOp->setEnabled(true);
    clearPanel();
    setPanelEnabled(true);
    ui->txtName->setFocus();
    enableAll({ui->cmdEdit, ui->cmdDelete}, false);
}

void frmProductManagement::editProduct() {
    isEditing = true;
    ui->cmdCancelOp->setEnabled(true);
    enableAll({ui->cmdEdit, ui->cmdNew}, false);
    setPanelEnabled(true);
}

void frmProductManagement::cancelOperation() {
    if (dialogs().message(tr("Cancel operation?"), tr("Cancel"), Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNo) != Dialogs::Answer::Yes)
        return;
    const bool wasAdding = isAdding;
    returnToIdle();
    if (wasAdding)
        ui->cmdNew->setFocus();
    else
        ui->lstProducts->setFocus();
}

void frmProductManagement::saveProduct() {
    if (!Runtime::isNumeric(ui->txtPrice->text())) {
        dialogs().message(tr("Unit Cost is invalid."), tr("Error"), Dialogs::Icon::Critical);
        ui->txtPrice->setFocus();
        return;
    }
    runCommand(tr("An error has occured:  "), [this] {
        Product product;
        product.productID = isEditing ? selectedKey() : 0;
        product.productName = ui->txtName->text();
        product.productSKU = ui->txtSKU->text();
        product.description = ui->txtDesc->text();
        product.cost = Currency::fromText(ui->txtPrice->text());
        product.productStatus = ui->optStatus0->isChecked() ? Product::Inactive : Product::Active;
        product.writeProduct();
        const bool inactive = product.productStatus == Product::Inactive;
        if (isEditing)
            rows().replace(selectedRow(), productEntry(product, inactive));
        else if (isAdding)
            selectRow(rows().append(productEntry(product, inactive)));
        returnToIdle();
    });
}

void frmProductManagement::deleteProduct() {
    runCommand(tr("An error has occured:  "), [this] {
        Product product;
        const qint32 id = selectedKey();
        if (product.isUsed(id)) {
            dialogs().message(tr("This product is used on a receipt and can not be deleted."),
                              tr("Product In Use"), Dialogs::Icon::Critical);
            return;
        }
        if (dialogs().message(tr("Are you sure you want to remove this product?"), tr("Confirm"),
                              Dialogs::Icon::Question,
                              Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
            return;
        product.deleteProduct(id);
        rows().remove(selectedRow());
        returnToIdle();
        ui->lstProducts->setFocus();
    });
}

// Finds inactive products too, whatever "Show Inactive" says; an empty text
// leaves the list as it is.
void frmProductManagement::searchProducts() {
    const QString text = ui->txtSearch->text();
    if (text.isEmpty())
        return;
    runCommand(tr("An error has occured: "), [&] {
        const db::Snapshot found = Product().productSearch(text, Product::AllProducts);
        showProducts(found, notAboveZeroIsInactive);
        if (found.isEmpty()) {
            dialogs().message(tr("No products found"), tr("Search Results"),
                              Dialogs::Icon::Information);
        }
    });
}

void frmProductManagement::setPanelEnabled(bool enabled) {
    enableAll({ui->Frame2, ui->txtName, ui->txtSKU, ui->txtDesc, ui->txtPrice, ui->optStatus0,
               ui->optStatus1, ui->Label2, ui->Label3, ui->Label4, ui->Label5, ui->Label6},
              enabled);
}

void frmProductManagement::clearPanel() {
    for (QLineEdit *text : {ui->txtName, ui->txtSKU, ui->txtDesc, ui->txtPrice})
        text->clear();
    ui->optStatus1->setChecked(true);
}

// Idle: after a save, a cancel or a delete.
void frmProductManagement::returnToIdle() {
    isAdding = false;
    isEditing = false;
    clearPanel();
    setPanelEnabled(false);
    enableAll({ui->cmdEdit, ui->cmdDelete, ui->cmdOK, ui->cmdCancelOp}, false);
    ui->cmdNew->setEnabled(true);
}

// The description is required too; nothing is trimmed.
void frmProductManagement::validateProduct() {
    bool complete = true;
    for (const QLineEdit *text : {ui->txtName, ui->txtSKU, ui->txtDesc, ui->txtPrice})
        complete = complete && !text->text().isEmpty();
    ui->cmdOK->setEnabled(complete);
}

#include "editor/frmitem.h"
#include "ui_frmItem.h"

#include "app/runtimeformat.h"
#include "catalogue/frmproductmanagement.h"
#include "editor/frmlookup.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

void setTextIfChanged(QComboBox *box, const QString &text) {
    if (box->currentText() != text)
        box->setEditText(text);
}

// CInt of CLng: a quantity beyond 16 bits is an overflow.
qint16 quantityOf(const QString &text) {
    const qint32 whole = Runtime::toInt32(text);
    if (whole < std::numeric_limits<qint16>::min() || whole > std::numeric_limits<qint16>::max())
        raiseOverflow();
    return static_cast<qint16>(whole);
}

} // namespace

frmItem::frmItem(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmItem>()) {
    ui->setupUi(this);
    ui->cmdOK->setEnabled(false);

    for (QLineEdit *text : {ui->txtDesc, ui->txtPrice, ui->txtQty}) {
        Utility::selectAllOnFocus(text);
        connect(text, &QLineEdit::textChanged, this, &frmItem::updateOk);
    }
    // The box's own text field and drop-down list answer to the label's name.
    const QString skuName = ui->lblSKU->text().remove(u'&');
    ui->txtSKU->lineEdit()->setAccessibleName(skuName);
    ui->txtSKU->view()->setAccessibleName(skuName);
    connect(ui->txtSKU, &QComboBox::editTextChanged, this, &frmItem::skuChanged);
    connect(ui->txtSKU, &QComboBox::activated, this, &frmItem::skuPicked);
    ui->txtSKU->installEventFilter(this);

    connect(ui->cmdOK, &QPushButton::clicked, this, &frmItem::acceptItem);
    connect(ui->cmdLookup, &QPushButton::clicked, this, &frmItem::openLookup);
    connect(ui->cmdNewProduct, &QPushButton::clicked, this, &frmItem::openProductManagement);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmItem::~frmItem() = default;

void frmItem::load() {
    loadProducts();
    lookupOnClick = true;
    becameActive();
    ui->txtSKU->setFocus();
}

// Entering txtSKU selects its text; leaving it looks the text up, unless a
// pick in its list just did. The box holds the focus for its text field, so
// the box is watched, not the field.
bool frmItem::eventFilter(QObject *watched, QEvent *event) {
    const bool popup = (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) &&
                       static_cast<QFocusEvent *>(event)->reason() == Qt::PopupFocusReason;
    if (watched == ui->txtSKU && !popup) {
        if (event->type() == QEvent::FocusIn) {
            QLineEdit *text = ui->txtSKU->lineEdit();
            QTimer::singleShot(0, text, [text] { Utility::selectAllText(text); });
        } else if (event->type() == QEvent::FocusOut) {
            skuLeft();
        }
    }
    return ModalScreen::eventFilter(watched, event);
}

// Every active SKU, the typed text kept.
void frmItem::loadProducts() {
    runCommand(tr("frmItem.loadProducts:  "), [this] {
        const db::Snapshot products = Product().getProducts(Product::ActiveOnly);
        QStringList skus;
        skus.reserve(products.size());
        for (const db::Row &row : products)
            skus.append(row.text(u"productSKU"_s));
        const QString typed = ui->txtSKU->currentText();
        const QSignalBlocker quiet(ui->txtSKU);
        ui->txtSKU->clear();
        ui->txtSKU->addItems(skus);
        ui->txtSKU->setCurrentIndex(-1);
        ui->txtSKU->setEditText(typed);
    });
}

// Whenever the dialog is the active window again, first shown or back from
// a screen it opened, a line with a product shows that product's values.
void frmItem::becameActive() {
    if (item.productID <= 0)
        return;
    showItem();
    setWindowTitle(tr("Edit Line Item"));
}

void frmItem::showItem() {
    ui->txtQty->setText(QString::number(item.qty));
    setTextIfChanged(ui->txtSKU, item.productSKU);
    ui->txtDesc->setText(item.description);
    ui->txtPrice->setText(item.cost.toString());
    ui->txtExtDesc->setText(item.extDesc);
}

void frmItem::updateOk() {
    ui->cmdOK->setEnabled(!ui->txtQty->text().isEmpty() && !ui->txtSKU->currentText().isEmpty() &&
                          !ui->txtDesc->text().isEmpty() && !ui->txtPrice->text().isEmpty());
}

void frmItem::skuChanged() {
    productFound = false;
    updateOk();
}

void frmItem::skuPicked() {
    if (lookupOnClick) {
        skipFocusLookup = true;
        lookupProduct();
    }
    lookupOnClick = true;
}

void frmItem::skuLeft() {
    const bool skip = skipFocusLookup;
    skipFocusLookup = false;
    if (!skip)
        lookupProduct();
}

// The catalogue's description and price replace what the fields held.
void frmItem::lookupProduct() {
    const QString sku = ui->txtSKU->currentText();
    if (sku.isEmpty())
        return;
    runCommand(tr("An error has occured: "), [this, &sku] {
        item = Product();
        if (!item.getProductBySKU(sku.trimmed())) {
            productFound = false;
            ui->lblProductName->setText(tr("Item ID Not Found"));
            return;
        }
        ui->txtDesc->setText(item.description);
        ui->txtPrice->setText(Runtime::formatNumber(item.cost, u"0.00"_s));
        ui->lblProductName->setText(item.productName);
        productFound = true;
        ui->txtQty->setFocus();
    });
}

void frmItem::openLookup() {
    lookupOnClick = false;
    {
        frmLookup lookup(this);
        lookup.exec();
        if (lookup.selected) {
            setTextIfChanged(ui->txtSKU, lookup.selectedSKU);
            ui->txtQty->setFocus();
            lookupProduct();
        }
    }
    becameActive();
}

void frmItem::openProductManagement() {
    lookupOnClick = false;
    {
        frmProductManagement products(this);
        products.exec();
    }
    loadProducts();
    becameActive();
}

void frmItem::acceptItem() {
    if (!productFound) {
        if (dialogs().message(tr("Product ID not found.  Do you want to add this product ID to "
                                 "the database and continue?"),
                              tr("New Product"), Dialogs::Icon::None,
                              Dialogs::Buttons::YesNo) == Dialogs::Answer::No) {
            refuse(tr("Invalid Product ID entered.  Please enter a valid product ID or click "
                      "Lookup to search."),
                   tr("Invalid Product ID"), ui->txtSKU);
            return;
        }
        addUnknownProduct();
    }
    if (!productFound || !entriesValid())
        return;
    // The values are this line's alone: the catalogue stays as it is.
    runCommand(tr("An error has occured: "), [this] {
        Product line = item;
        line.qty = quantityOf(ui->txtQty->text());
        line.productSKU = ui->txtSKU->currentText();
        line.description = ui->txtDesc->text();
        line.cost = Currency::fromText(ui->txtPrice->text());
        line.extDesc = ui->txtExtDesc->text();
        item = line;
        accepted = true;
        accept();
    });
}

// The typed SKU becomes a product of its own name, active, at the typed price.
void frmItem::addUnknownProduct() {
    runCommand(tr("An error has occured: "), [this] {
        Product product = item;
        product.productID = 0;
        product.productName = ui->txtSKU->currentText();
        product.productSKU = ui->txtSKU->currentText();
        product.description = ui->txtDesc->text();
        product.cost = Currency::fromText(ui->txtPrice->text());
        product.productStatus = Product::Active;
        if (product.writeProduct()) {
            item = product;
            productFound = true;
        }
    });
}

// Any quantity but 0 passes, a negative one too, and decimals are rounded.
bool frmItem::entriesValid() {
    if (!Runtime::isNumeric(ui->txtQty->text())) {
        refuse(tr("Invalid quantity.  Please enter only digits in this field"),
               tr("Invalid Quantity"), ui->txtQty);
        return false;
    }
    bool zero = false;
    if (!runCommand(tr("An error has occured: "),
                    [&] { zero = Runtime::toInt16(ui->txtQty->text()) == 0; }))
        return false;
    if (zero) {
        refuse(tr("Quantity must be greater than 0"), tr("Error"), ui->txtQty);
        return false;
    }
    if (!Runtime::isNumeric(ui->txtPrice->text())) {
        refuse(tr("Invalid Unit Cost.  Please enter a valid amount"), tr("Invalid Unit Cost"),
               ui->txtPrice);
        return false;
    }
    return true;
}

void frmItem::refuse(const QString &text, const QString &title, QWidget *focus) {
    dialogs().message(text, title, Dialogs::Icon::Critical);
    focus->setFocus();
}

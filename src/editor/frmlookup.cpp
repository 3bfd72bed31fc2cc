#include "editor/frmlookup.h"
#include "ui_frmLookup.h"

#include "catalogue/product.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

frmLookup::frmLookup(QWidget *parent)
    : CatalogueScreen({tr("SKU"), tr("Product Name"), tr("Product Desc")}, parent)
    , ui(std::make_unique<Ui::frmLookup>()) {
    ui->setupUi(this);
    attachList(ui->lstProducts);
    Utility::selectAllOnFocus(ui->txtName);
    ui->txtName->installEventFilter(this);
    connect(ui->cmdSearch, &QPushButton::clicked, this, &frmLookup::searchProducts);
    connect(ui->lstProducts, &QAbstractItemView::activated, this, &frmLookup::pickProduct);
    connect(ui->ID_Close, &QAction::triggered, this, &QDialog::reject);
}

frmLookup::~frmLookup() = default;

void frmLookup::load() {
    ui->txtName->setFocus();
}

// Enter searches only for some text, and goes no further either way: the
// whole catalogue is listed by the button alone.
bool frmLookup::eventFilter(QObject *watched, QEvent *event) {
    if (watched == ui->txtName && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (!ui->txtName->text().isEmpty())
                searchProducts();
            return true;
        }
    }
    return CatalogueScreen::eventFilter(watched, event);
}

void frmLookup::searchProducts() {
    runCommand(tr("An error has occured: "), [this] {
        const db::Snapshot products =
            Product().productSearch(ui->txtName->text(), Product::ActiveOnly);
        QList<CatalogueListModel::Entry> entries;
        entries.reserve(products.size());
        for (const db::Row &row : products) {
            entries.append({row.int32(u"productID"_s),
                            {row.text(u"productSKU"_s), row.text(u"productName"_s),
                             row.textOr(u"productDesc"_s, {})}});
        }
        showRows(std::move(entries));
        if (!hasRows()) {
            dialogs().message(tr("No products found"), tr("Search Results"),
                              Dialogs::Icon::Information);
            return;
        }
        ui->lstProducts->setFocus();
        selectRow(0);
    });
}

void frmLookup::pickProduct() {
    const int row = selectedRow();
    if (row < 0)
        return;
    selectedSKU = rows().entry(row).texts.first();
    selected = true;
    accept();
}

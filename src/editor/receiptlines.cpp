// The lines of a product receipt. The list is their only holder until the
// receipt is saved; productTotal follows every change of it.

#include "editor/frmreceipt.h"
#include "ui_frmReceipt.h"

#include "app/runtimeformat.h"
#include "catalogue/product.h"
#include "editor/frmitem.h"
#include "platform/dialogs.h"

#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { QtyColumn, SkuColumn, DescColumn, PriceColumn, TotalColumn, ExtDescColumn };

qint16 quantityOf(const QTreeWidgetItem *line) {
    return line->text(QtyColumn).toShort();
}

Currency priceOf(const QTreeWidgetItem *line) {
    return Currency::fromText(line->text(PriceColumn));
}

} // namespace

void frmReceipt::addProduct() {
    frmItem dialog(this);
    dialog.exec();
    if (!dialog.accepted)
        return;
    auto *line = new QTreeWidgetItem(ui->lstProducts);
    showLine(line, dialog.item);
    line->setText(ExtDescColumn, dialog.item.extDesc);
    ui->lstProducts->setCurrentItem(line);
    productTotal += dialog.item.cost * dialog.item.qty;
    calculateTotals();
}

// The extended description of a line stays as it was sold: the dialog
// opens without it, and what is typed there is dropped.
void frmReceipt::editProduct() {
    QTreeWidgetItem *line = ui->lstProducts->currentItem();
    if (!line)
        return;
    frmItem dialog(this);
    dialog.item.productID = line->data(QtyColumn, Qt::UserRole).toInt();
    dialog.item.qty = quantityOf(line);
    dialog.item.productSKU = line->text(SkuColumn);
    dialog.item.description = line->text(DescColumn);
    dialog.item.cost = priceOf(line);
    const Currency oldTotal = lineTotal(line);
    dialog.exec();
    if (!dialog.accepted)
        return;
    showLine(line, dialog.item);
    productTotal += dialog.item.cost * dialog.item.qty - oldTotal;
    calculateTotals();
}

void frmReceipt::removeProduct() {
    QTreeWidgetItem *line = ui->lstProducts->currentItem();
    if (!line)
        return;
    if (dialogs().message(tr("Are you sure you want to remove this line item?"),
                          tr("Remove Line item"), Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNo) != Dialogs::Answer::Yes)
        return;
    productTotal -= lineTotal(line);
    delete line;
    calculateTotals();
}

// Enter opens the line as a double click does; Delete removes it.
bool frmReceipt::productListKey(QKeyEvent *key) {
    if (key->modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        editProduct();
        return true;
    case Qt::Key_Delete:
        removeProduct();
        return true;
    default:
        return false;
    }
}

// The line as sold: quantity, SKU, description and the price of this sale.
void frmReceipt::showLine(QTreeWidgetItem *line, const Product &item) {
    line->setText(QtyColumn, QString::number(item.qty));
    line->setText(SkuColumn, item.productSKU);
    line->setText(DescColumn, item.description);
    line->setText(PriceColumn, Runtime::formatNumber(item.cost, u"0.00"_s));
    line->setText(TotalColumn, Runtime::formatNumber(item.cost * item.qty, u"0.00"_s));
    line->setData(QtyColumn, Qt::UserRole, item.productID);
    for (int column : {QtyColumn, PriceColumn, TotalColumn})
        line->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
}

Currency frmReceipt::lineTotal(const QTreeWidgetItem *line) {
    return priceOf(line) * quantityOf(line);
}

QList<Product> frmReceipt::linesOnScreen() const {
    QList<Product> lines;
    for (int row = 0; row < ui->lstProducts->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *line = ui->lstProducts->topLevelItem(row);
        Product item;
        item.productID = line->data(QtyColumn, Qt::UserRole).toInt();
        item.qty = quantityOf(line);
        item.cost = priceOf(line);
        item.description = line->text(DescColumn);
        item.extDesc = line->text(ExtDescColumn);
        lines.append(item);
    }
    return lines;
}

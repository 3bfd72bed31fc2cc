// The money of the receipt editor: the totals after every change, and the
// checks of the amounts a person types.

#include "editor/frmreceipt.h"
#include "ui_frmReceipt.h"

#include "app/company.h"
#include "app/runtimeformat.h"
#include "editor/receipttotals.h"
#include "platform/dialogs.h"

using namespace Qt::Literals::StringLiterals;

// Runs on each keystroke in an amount; a field being typed in counts as 0
// until it is a number. The labels are the result a save reads back.
void frmReceipt::calculateTotals() {
    runCommand(tr("An error has occured:  "), [this] {
        const ReceiptTotals::Result totals = ReceiptTotals::calculate(
            {.due = ui->txtDue->text(),
             .received = ui->txtRecvd->text(),
             .other = ui->txtOther->text(),
             .discount = ui->txtDiscount->text(),
             .productTotal = productTotal,
             .productView = isProductView,
             .noTax = ui->chkTaxExempt->isChecked() || ui->optView2->isChecked(),
             .taxRate = company().taxRate});
        const QString format = u"0.00"_s;
        ui->lblSubTotal->setText(Runtime::formatNumber(totals.subTotal, format));
        ui->lblTax->setText(Runtime::formatNumber(totals.tax, format));
        ui->lblTotal->setText(Runtime::formatNumber(totals.total, format));
        ui->lblBalance->setText(Runtime::formatNumber(totals.balance, format));
    });
}

// The amount due and the amount received must be numbers when the focus
// leaves them; an empty field passes.
bool frmReceipt::checkAmountField(QLineEdit *field) {
    if (field->text().isEmpty() || Runtime::isNumeric(field->text()))
        return true;
    dialogs().message(tr("Invalid dollar amount.  Use format 0.00"), tr("Error"),
                      Dialogs::Icon::Critical);
    field->setFocus();
    return false;
}

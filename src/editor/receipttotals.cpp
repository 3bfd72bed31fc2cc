#include "editor/receipttotals.h"

#include "app/runtimeformat.h"

using namespace Qt::Literals::StringLiterals;

namespace ReceiptTotals {

Currency amountOf(const QString &text) {
    return Runtime::isNumeric(text) ? Currency::fromText(text) : Currency();
}

// The product goes through its text of two decimals, so that 105 at 6.5%
// (6.825 after its 15 significant digits) gives 6.83.
Currency taxOn(Currency base, double taxRate) {
    const double product = base.toDouble() * (taxRate / 100);
    return Currency::fromText(Runtime::formatNumber(product, u"0.00"_s));
}

Result calculate(const Input &input) {
    const Currency due = amountOf(input.due);
    const Currency received = amountOf(input.received);
    const Currency other = amountOf(input.other);
    const Currency discount = amountOf(input.discount);

    Result result;
    result.subTotal = input.productView ? input.productTotal : due;
    if (!input.noTax)
        result.tax = taxOn(result.subTotal + other - discount, input.taxRate);
    result.total = result.subTotal + result.tax + other - discount;
    result.balance = result.total - received;
    return result;
}

} // namespace ReceiptTotals

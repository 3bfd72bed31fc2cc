#pragma once

#include "app/currency.h"

#include <QString>

// The money of a receipt as the editor shows it. Every sum is exact
// Currency; only the tax goes through a double, rounded once to cents.
namespace ReceiptTotals {

// What the editor's fields hold when the totals are worked out.
struct Input {
    QString due; // typed amount of a service receipt, or the account balance
    QString received;
    QString other;    // a further charge, taxed
    QString discount; // lowers the taxed base
    Currency productTotal;
    bool productView = false; // the lines make the sub total, not `due`
    bool noTax = false;       // tax exempt, or an account payment
    double taxRate = 0;       // percent, as 6.5
};

struct Result {
    Currency subTotal;
    Currency tax;
    Currency total;
    Currency balance; // what is still due; negative when more was received
};

// The amount of a field's text: a number converted to four decimals, or 0
// while it is not (yet) a number.
Currency amountOf(const QString &text);

// The tax on `base` at `taxRate` percent, rounded half away from zero to cents.
Currency taxOn(Currency base, double taxRate);

Result calculate(const Input &input);

} // namespace ReceiptTotals

#pragma once

#include "app/database.h"

#include <QHash>
#include <QString>
#include <QVariant>

class ReportTemplate;

// Everything a template's placeholders and conditions can name while a report
// is laid out: the rows of its data sets, the runner's flags and texts, and
// the answers to its questions.
class ReportData {
public:
    QHash<QString, bool> flags;         // hideSalesTax, isVoid, logo, ...
    QHash<QString, QVariant> variables; // companyName, title, startDate, ...
    QHash<QString, db::Snapshot> sets;  // by data set name
    QString detailSet;
    QString currencySymbol;

    // Runs every data set of `report`. A statement's named parameters
    // (":receiptID", ":startDate") are bound from `variables`; a statement
    // that is not a single SELECT is refused.
    void fetch(const ReportTemplate &report);

    // Reads the money symbol of the company row.
    void readCurrencySymbol();
};

// Where in the report a value is looked up: the detail row at hand and the
// rows a sum runs over.
struct ReportScope {
    const db::Row *row = nullptr;
    QList<const db::Row *> rows;
    int page = 0;
    int pages = 0;
};

namespace ReportValues {

// A named value: "set.column", a column of the current row, a variable,
// "page", "pages", "count" or "sum(column)". Null when nothing has the name.
QVariant lookup(const ReportData &data, const ReportScope &scope, const QString &name);

// Whether a condition holds: a flag, or a value that is neither empty nor 0;
// "!" in front negates it and an empty condition always holds.
bool holds(const ReportData &data, const ReportScope &scope, const QString &condition);

// A value in a template format: "money" (with the currency symbol) and
// "amount" read ten-thousandths; "number:<pattern>" and "date:<pattern>" use
// the runtime patterns.
QString format(const QVariant &value, const QString &format, const QString &currencySymbol);

// A text with {name} or {name|format} placeholders filled in.
QString expand(const ReportData &data, const ReportScope &scope, const QString &text);

// The symbol a company's currency code stands for.
QString symbolOfCurrency(int code, const QString &customCurrency);

} // namespace ReportValues

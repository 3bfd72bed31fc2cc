#include "output/reportdata.h"

#include "app/runtimeformat.h"
#include "output/reporttemplate.h"
#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <QDate>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kDataSetError = 31002;

[[noreturn]] void refuse(const QString &set, const QString &why) {
    throw BriskoError(kDataSetError,
                      QCoreApplication::translate("ReportData", "Data set '%1': %2").arg(set, why));
}

db::Param toParam(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::QDate:
        return db::Param(value.toDate());
    case QMetaType::Int:
        return db::Param(value.toInt());
    case QMetaType::LongLong:
        return db::Param(value.toLongLong());
    case QMetaType::Bool:
        return db::Param(value.toBool());
    default:
        return value.isNull() ? db::Param(nullptr) : db::Param(value.toString());
    }
}

// A template's statement with its ":name" parameters turned into "?" and the
// values to bind, in order. Quoted text is left alone.
struct BoundStatement {
    QString sql;
    db::Params params;
};

BoundStatement bindNamed(const ReportDataSet &set, const QHash<QString, QVariant> &values) {
    BoundStatement bound;
    const QString &sql = set.sql;
    QChar quote;
    for (qsizetype i = 0; i < sql.size(); ++i) {
        const QChar c = sql[i];
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == u'\'' || c == u'"') {
            quote = c;
        } else if (c == u';' && !sql.mid(i + 1).trimmed().isEmpty()) {
            refuse(set.name,
                   QCoreApplication::translate("ReportData", "only one statement is allowed."));
        } else if (c == u':' && i + 1 < sql.size() && sql[i + 1].isLetter()) {
            qsizetype end = i + 1;
            while (end < sql.size() && (sql[end].isLetterOrNumber() || sql[end] == u'_'))
                ++end;
            const QString name = sql.mid(i + 1, end - i - 1);
            if (!values.contains(name))
                refuse(set.name,
                       QCoreApplication::translate("ReportData", "no value for :%1.").arg(name));
            bound.params.append(toParam(values.value(name)));
            bound.sql += u'?';
            i = end - 1;
            continue;
        }
        bound.sql += c;
    }
    static const QRegularExpression readOnly(u"^\\s*(SELECT|WITH)\\b"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    if (!readOnly.match(bound.sql).hasMatch())
        refuse(set.name, QCoreApplication::translate("ReportData", "only a SELECT may read data."));
    return bound;
}

QVariant columnOf(const db::Row &row, const QString &column) {
    return row.contains(column) ? row.value(column) : QVariant();
}

QVariant sumOf(const QList<const db::Row *> &rows, const QString &column) {
    qint64 total = 0;
    for (const db::Row *row : rows)
        total += columnOf(*row, column).toLongLong();
    return total;
}

QDate dateOf(const QVariant &value) {
    if (value.typeId() == QMetaType::QDate)
        return value.toDate();
    return QDate::fromString(value.toString().left(10), u"yyyy-MM-dd"_s);
}

} // namespace

void ReportData::fetch(const ReportTemplate &report) {
    for (const ReportDataSet &set : report.dataSets) {
        const BoundStatement bound = bindNamed(set, variables);
        sets.insert(set.name, db::select(bound.sql, bound.params));
    }
    detailSet = report.detailData;
}

void ReportData::readCurrencySymbol() {
    const std::optional<db::Row> row =
        db::readFirst(u"SELECT currencySymbol, customCurrency FROM tblSystem"_s);
    if (row) {
        currencySymbol = ReportValues::symbolOfCurrency(row->value(u"currencySymbol"_s).toInt(),
                                                        row->textOr(u"customCurrency"_s, {}));
    }
}

namespace ReportValues {

QVariant lookup(const ReportData &data, const ReportScope &scope, const QString &name) {
    if (name == u"page")
        return scope.page;
    if (name == u"pages")
        return scope.pages;
    if (name == u"count")
        return scope.rows.size();
    if (name.startsWith(u"sum(") && name.endsWith(u')'))
        return sumOf(scope.rows, name.mid(4, name.size() - 5));
    const qsizetype dot = name.indexOf(u'.');
    if (dot > 0) {
        const QString set = name.left(dot);
        const QString column = name.mid(dot + 1);
        if (set == data.detailSet && scope.row)
            return columnOf(*scope.row, column);
        const db::Snapshot snapshot = data.sets.value(set);
        return snapshot.isEmpty() ? QVariant() : columnOf(snapshot.at(0), column);
    }
    if (data.variables.contains(name))
        return data.variables.value(name);
    return scope.row ? columnOf(*scope.row, name) : QVariant();
}

bool holds(const ReportData &data, const ReportScope &scope, const QString &condition) {
    if (condition.isEmpty())
        return true;
    if (condition.startsWith(u'!'))
        return !holds(data, scope, condition.mid(1));
    if (data.flags.contains(condition))
        return data.flags.value(condition);
    const QVariant value = lookup(data, scope, condition);
    if (value.isNull())
        return false;
    if (value.typeId() == QMetaType::QString)
        return !value.toString().trimmed().isEmpty();
    return value.toDouble() != 0;
}

QString format(const QVariant &value, const QString &format, const QString &currencySymbol) {
    if (value.isNull())
        return {};
    if (format == u"money" || format == u"amount") {
        const Currency amount = Currency::fromUnits(value.toLongLong());
        const QString digits = Runtime::formatNumber(amount, u"#,##0.00"_s);
        if (format == u"amount")
            return digits;
        return amount < Currency() ? u"-"_s + currencySymbol + digits.mid(1)
                                   : currencySymbol + digits;
    }
    if (format.startsWith(u"number:"))
        return Runtime::formatNumber(value.toDouble(), format.mid(7));
    if (format.startsWith(u"date:")) {
        const QDate day = dateOf(value);
        return day.isValid() ? Runtime::formatDate(day, format.mid(5)) : QString();
    }
    return value.toString();
}

QString expand(const ReportData &data, const ReportScope &scope, const QString &text) {
    QString result;
    qsizetype from = 0;
    while (true) {
        const qsizetype open = text.indexOf(u'{', from);
        const qsizetype close = open < 0 ? -1 : text.indexOf(u'}', open);
        if (close < 0) {
            result += text.mid(from);
            return result;
        }
        result += text.mid(from, open - from);
        const QString placeholder = text.mid(open + 1, close - open - 1);
        const qsizetype bar = placeholder.indexOf(u'|');
        const QString name = bar < 0 ? placeholder : placeholder.left(bar);
        const QString pattern = bar < 0 ? QString() : placeholder.mid(bar + 1);
        result += format(lookup(data, scope, name.trimmed()), pattern, data.currencySymbol);
        from = close + 1;
    }
}

QString symbolOfCurrency(int code, const QString &customCurrency) {
    switch (code) {
    case 0:
        return {};
    case 128:
        return u"€"_s;
    case 165:
        return u"¥"_s;
    case 163:
    case 164:
        return u"£"_s;
    case -1:
        return customCurrency;
    default:
        return u"$"_s;
    }
}

} // namespace ReportValues

#include "customers/customertransactionsmodel.h"

#include "app/database.h"
#include "app/runtimeformat.h"
#include "receipts/receipt.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Qt::Alignment kMoney = Qt::AlignRight | Qt::AlignVCenter;

constexpr RecordListBase::Column kColumns[CustomerTransactionsModel::ColumnCount] = {
    {""},
    {QT_TRANSLATE_NOOP("CustomerTransactionsModel", "Date")},
    {QT_TRANSLATE_NOOP("CustomerTransactionsModel", "Receipt #")},
    {QT_TRANSLATE_NOOP("CustomerTransactionsModel", "Total"), kMoney},
    {QT_TRANSLATE_NOOP("CustomerTransactionsModel", "Balance"), kMoney},
    {QT_TRANSLATE_NOOP("CustomerTransactionsModel", "Type")},
    {""},
};

const QString kMoneyFormat = u"#,###.00"_s;

} // namespace

CustomerTransactionsModel::CustomerTransactionsModel(QObject *parent)
    : RecordListModel(kColumns, parent) {}

void CustomerTransactionsModel::load(const db::Snapshot &rows) {
    beginResetModel();
    const auto endReset = qScopeGuard([this] { endResetModel(); });
    m_records.clear();
    for (const db::Row &row : rows) {
        const qint16 type = row.int16(u"receiptType"_s);
        // A payment's total is what came in; a sale's is its amount due alone.
        const Currency total =
            row.currency(type == Receipt::AccountPayment ? u"amountReceived"_s : u"amountDue"_s);
        m_records.append(
            {.receiptID = row.int32(u"receiptID"_s),
             .date = row.dateTime(u"receiptDate"_s),
             .number = row.text(u"receiptNumber"_s),
             .total = total,
             // Rows of older releases may have no balance.
             .balance =
                 row.isNull(u"accountBalance"_s) ? Currency() : row.currency(u"accountBalance"_s),
             .sale = type == Receipt::ProductReceipt || type == Receipt::ServiceReceipt,
             .isVoid = row.int16(u"status"_s) == Receipt::Void});
    }
}

QList<qint32> CustomerTransactionsModel::checkedReceiptIDs() const {
    QList<qint32> keys;
    for (const Transaction &row : m_records) {
        if (row.checked)
            keys.append(row.receiptID);
    }
    return keys;
}

QVariant CustomerTransactionsModel::otherData(const Transaction &row, int column, int role) const {
    if (role == Qt::CheckStateRole && column == CheckColumn)
        return row.checked ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool CustomerTransactionsModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::CheckStateRole || index.column() != CheckColumn ||
        !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    m_records[index.row()].checked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags CustomerTransactionsModel::flags(const QModelIndex &index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() == CheckColumn)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QString CustomerTransactionsModel::text(const Transaction &row, int column) const {
    switch (column) {
    case DateColumn:
        return Runtime::formatDate(row.date.date(), u"mm/dd/yyyy"_s);
    case NumberColumn:
        return row.number;
    case TotalColumn:
        return Runtime::formatNumber(row.total, kMoneyFormat);
    case BalanceColumn:
        return Runtime::formatNumber(row.balance, kMoneyFormat);
    case TypeColumn:
        return row.sale ? tr("Sale") : tr("Payment");
    case VoidColumn:
        return row.isVoid ? tr("Void") : QString();
    default:
        return QString();
    }
}

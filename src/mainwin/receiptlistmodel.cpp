#include "mainwin/receiptlistmodel.h"

#include "app/database.h"
#include "app/runtimeformat.h"
#include "receipts/receipt.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kColumnCount = ReceiptListModel::StatusColumn + 1;

const char *const kHeaders[kColumnCount] = {
    QT_TRANSLATE_NOOP("ReceiptListModel", "Date"),
    QT_TRANSLATE_NOOP("ReceiptListModel", "Receipt No."),
    QT_TRANSLATE_NOOP("ReceiptListModel", "Customer Name"),
    QT_TRANSLATE_NOOP("ReceiptListModel", "Total"),
    QT_TRANSLATE_NOOP("ReceiptListModel", "Rcvd"),
    QT_TRANSLATE_NOOP("ReceiptListModel", "Status"),
};

const QString kMoneyFormat = u"#,###.00"_s;

bool isMoney(int column) {
    return column == ReceiptListModel::TotalColumn || column == ReceiptListModel::ReceivedColumn;
}

} // namespace

void ReceiptListModel::load(const db::Snapshot &rows) {
    beginResetModel();
    const auto endReset = qScopeGuard([this] { endResetModel(); });
    m_sales.clear();
    m_sales.reserve(rows.size());
    for (const db::Row &row : rows) {
        const Currency received = row.currency(u"amountReceived"_s);
        // A payment on account has no balance of its own to add.
        const Currency total = row.int16(u"receiptType"_s) == Receipt::AccountPayment
                                   ? received
                                   : received + row.currency(u"balanceRemaining"_s);
        m_sales.append({row.dateTime(u"receiptDate"_s), row.text(u"receiptNumber"_s),
                        row.text(u"payeeName"_s), total, received, row.text(u"statusName"_s),
                        row.int32(u"receiptID"_s)});
    }
}

int ReceiptListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_sales.size());
}

int ReceiptListModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : kColumnCount;
}

QVariant ReceiptListModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Sale &sale = m_sales.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(sale, index.column());
    case Qt::TextAlignmentRole:
        return isMoney(index.column()) ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case ReceiptIDRole:
        return sale.receiptID;
    default:
        return {};
    }
}

QVariant ReceiptListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= kColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return tr(kHeaders[section]);
    if (role == Qt::TextAlignmentRole && isMoney(section))
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QString ReceiptListModel::text(const Sale &sale, int column) {
    switch (column) {
    case DateColumn:
        return Runtime::generalDate(sale.date);
    case NumberColumn:
        return sale.number;
    case NameColumn:
        return sale.customer;
    case TotalColumn:
        return Runtime::formatNumber(sale.total, kMoneyFormat);
    case ReceivedColumn:
        return Runtime::formatNumber(sale.received, kMoneyFormat);
    default:
        return sale.status;
    }
}

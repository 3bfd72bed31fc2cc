#include "mainwin/receiptlistmodel.h"

#include "app/database.h"
#include "app/runtimeformat.h"
#include "receipts/receipt.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Qt::Alignment kMoney = Qt::AlignRight | Qt::AlignVCenter;

constexpr RecordListBase::Column kColumns[] = {
    {QT_TRANSLATE_NOOP("ReceiptListModel", "Date")},
    {QT_TRANSLATE_NOOP("ReceiptListModel", "Receipt No.")},
    {QT_TRANSLATE_NOOP("ReceiptListModel", "Customer Name")},
    {QT_TRANSLATE_NOOP("ReceiptListModel", "Total"), kMoney},
    {QT_TRANSLATE_NOOP("ReceiptListModel", "Rcvd"), kMoney},
    {QT_TRANSLATE_NOOP("ReceiptListModel", "Status")},
};

const QString kMoneyFormat = u"#,###.00"_s;

} // namespace

ReceiptListModel::ReceiptListModel(QObject *parent)
    : RecordListModel(kColumns, parent) {}

void ReceiptListModel::load(const db::Snapshot &rows) {
    beginResetModel();
    const auto endReset = qScopeGuard([this] { endResetModel(); });
    m_records.clear();
    m_records.reserve(rows.size());
    for (const db::Row &row : rows) {
        const Currency received = row.currency(u"amountReceived"_s);
        // A payment on account has no balance of its own to add.
        const Currency total = row.int16(u"receiptType"_s) == Receipt::AccountPayment
                                   ? received
                                   : received + row.currency(u"balanceRemaining"_s);
        m_records.append({row.dateTime(u"receiptDate"_s), row.text(u"receiptNumber"_s),
                          row.text(u"payeeName"_s), total, received, row.text(u"statusName"_s),
                          row.int32(u"receiptID"_s)});
    }
}

QString ReceiptListModel::text(const Sale &sale, int column) const {
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

#include "customers/customerlistmodel.h"

namespace {

constexpr RecordListBase::Column kColumns[CustomerListModel::ColumnCount] = {
    {QT_TRANSLATE_NOOP("CustomerListModel", "Account ID"), Qt::AlignRight | Qt::AlignVCenter},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Name")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Address")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "City")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "State")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Phone")},
};

} // namespace

CustomerListModel::CustomerListModel(QObject *parent)
    : RecordListModel(kColumns, parent) {}

QString CustomerListModel::text(const CustomerListRow &row, int column) const {
    switch (column) {
    case AccountID:
        return QString::number(row.payeeID);
    case Name:
        return row.payeeName;
    case Address:
        return row.address1;
    case City:
        return row.city;
    case State:
        return row.state;
    case Phone:
        return row.phone;
    default:
        return {};
    }
}

// Keys sort as numbers; texts without regard to case, as names always have.
void CustomerListModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= ColumnCount)
        return;
    const auto lessThan = [&](const CustomerListRow &left, const CustomerListRow &right) {
        if (column == AccountID)
            return left.payeeID < right.payeeID;
        return QString::compare(text(left, column), text(right, column), Qt::CaseInsensitive) < 0;
    };
    if (order == Qt::AscendingOrder)
        sortRecords(lessThan);
    else
        sortRecords([&](const CustomerListRow &left, const CustomerListRow &right) {
            return lessThan(right, left);
        });
}

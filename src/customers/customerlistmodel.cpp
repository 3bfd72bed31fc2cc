#include "customers/customerlistmodel.h"

#include <algorithm>
#include <numeric>

namespace {

QString textOf(const CustomerListRow &row, int column) {
    switch (column) {
    case CustomerListModel::AccountID:
        return QString::number(row.payeeID);
    case CustomerListModel::Name:
        return row.payeeName;
    case CustomerListModel::Address:
        return row.address1;
    case CustomerListModel::City:
        return row.city;
    case CustomerListModel::State:
        return row.state;
    case CustomerListModel::Phone:
        return row.phone;
    default:
        return {};
    }
}

// Keys sort as numbers; texts without regard to case, as names always have.
bool lessThan(const CustomerListRow &left, const CustomerListRow &right, int column) {
    if (column == CustomerListModel::AccountID)
        return left.payeeID < right.payeeID;
    return QString::compare(textOf(left, column), textOf(right, column), Qt::CaseInsensitive) < 0;
}

} // namespace

void CustomerListModel::setRows(QList<CustomerListRow> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

qint32 CustomerListModel::payeeIDAt(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).payeeID : 0;
}

int CustomerListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

int CustomerListModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CustomerListModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid())
        return {};
    const CustomerListRow &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return textOf(row, index.column());
    case Qt::UserRole:
        return row.payeeID;
    case Qt::TextAlignmentRole:
        if (index.column() == AccountID)
            return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    default:
        return {};
    }
}

QVariant CustomerListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    static const char *const headers[ColumnCount] = {
        QT_TR_NOOP("Account ID"), QT_TR_NOOP("Name"),  QT_TR_NOOP("Address"),
        QT_TR_NOOP("City"),       QT_TR_NOOP("State"), QT_TR_NOOP("Phone"),
    };
    return section >= 0 && section < ColumnCount ? tr(headers[section]) : QVariant();
}

// Rows move as a layout change, so that the selection moves with them.
void CustomerListModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= ColumnCount)
        return;
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    QList<int> oldRows(m_rows.size());
    std::iota(oldRows.begin(), oldRows.end(), 0);
    std::stable_sort(oldRows.begin(), oldRows.end(), [&](int left, int right) {
        return order == Qt::AscendingOrder ? lessThan(m_rows[left], m_rows[right], column)
                                           : lessThan(m_rows[right], m_rows[left], column);
    });

    QList<CustomerListRow> sorted;
    sorted.reserve(m_rows.size());
    QList<int> newRowOf(m_rows.size());
    for (int row = 0; row < oldRows.size(); ++row) {
        sorted.append(std::move(m_rows[oldRows[row]]));
        newRowOf[oldRows[row]] = row;
    }
    m_rows = std::move(sorted);
    movePersistentIndexes(newRowOf);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void CustomerListModel::movePersistentIndexes(const QList<int> &newRowOf) {
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before)
        after.append(this->index(newRowOf.at(index.row()), index.column()));
    changePersistentIndexList(before, after);
}

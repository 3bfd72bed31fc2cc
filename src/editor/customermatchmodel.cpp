#include "editor/customermatchmodel.h"

namespace {

QString textOf(const CustomerMatch &row, int column) {
    switch (column) {
    case CustomerMatchModel::AccountID:
        return QString::number(row.payeeID);
    case CustomerMatchModel::Name:
        return row.payeeName;
    case CustomerMatchModel::Address:
        return row.address1;
    case CustomerMatchModel::Address2:
        return row.address2;
    case CustomerMatchModel::City:
        return row.city;
    case CustomerMatchModel::State:
        return row.state;
    case CustomerMatchModel::Zip:
        return row.zip;
    default:
        return {};
    }
}

} // namespace

void CustomerMatchModel::setRows(QList<CustomerMatch> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

qint32 CustomerMatchModel::payeeIDAt(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).payeeID : 0;
}

int CustomerMatchModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

int CustomerMatchModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CustomerMatchModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid())
        return {};
    const CustomerMatch &row = m_rows.at(index.row());
    if (role == Qt::DisplayRole)
        return textOf(row, index.column());
    if (role == Qt::UserRole)
        return row.payeeID;
    return {};
}

QVariant CustomerMatchModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    static const char *const headers[ColumnCount] = {
        QT_TR_NOOP("Account ID"), QT_TR_NOOP("Name"), QT_TR_NOOP("Address"),
        QT_TR_NOOP("Address 2"),  QT_TR_NOOP("City"), QT_TR_NOOP("State"),
        QT_TR_NOOP("Zip"),
    };
    return section >= 0 && section < ColumnCount ? tr(headers[section]) : QVariant();
}

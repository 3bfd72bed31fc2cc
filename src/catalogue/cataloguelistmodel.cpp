#include "catalogue/cataloguelistmodel.h"

#include <QBrush>
#include <QCollator>
#include <algorithm>

CatalogueListModel::CatalogueListModel(QStringList headers, QObject *parent)
    : QAbstractTableModel(parent)
    , m_headers(std::move(headers)) {}

void CatalogueListModel::setEntries(QList<Entry> entries) {
    beginResetModel();
    m_entries = std::move(entries);
    endResetModel();
}

int CatalogueListModel::append(Entry entry) {
    const int row = static_cast<int>(m_entries.size());
    beginInsertRows({}, row, row);
    m_entries.append(std::move(entry));
    endInsertRows();
    return row;
}

void CatalogueListModel::replace(int row, Entry entry) {
    m_entries[row] = std::move(entry);
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void CatalogueListModel::remove(int row) {
    beginRemoveRows({}, row, row);
    m_entries.removeAt(row);
    endRemoveRows();
}

int CatalogueListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

int CatalogueListModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_headers.size());
}

QVariant CatalogueListModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid())
        return {};
    const Entry &row = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return row.texts.value(index.column());
    case Qt::UserRole:
        return row.key;
    case Qt::ForegroundRole:
        return row.inactive ? QVariant(QBrush(QColor(255, 0, 0))) : QVariant();
    default:
        return {};
    }
}

QVariant CatalogueListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_headers.value(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

void CatalogueListModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columnCount())
        return;
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QList<qint32> keysBefore;
    for (const QModelIndex &index : before)
        keysBefore.append(m_entries.at(index.row()).key);
    std::stable_sort(m_entries.begin(), m_entries.end(), [&](const Entry &a, const Entry &b) {
        const int comparison = collator.compare(a.texts.value(column), b.texts.value(column));
        return order == Qt::AscendingOrder ? comparison < 0 : comparison > 0;
    });
    QModelIndexList after;
    for (qsizetype at = 0; at < before.size(); ++at) {
        const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                        [&](const Entry &e) { return e.key == keysBefore[at]; });
        after.append(index(static_cast<int>(found - m_entries.cbegin()), before[at].column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

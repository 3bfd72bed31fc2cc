#include "app/recordlistmodel.h"

#include <QCoreApplication>

RecordListBase::RecordListBase(std::span<const Column> columns, QObject *parent)
    : QAbstractTableModel(parent)
    , m_columns(columns) {}

int RecordListBase::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant RecordListBase::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= int(m_columns.size()))
        return QAbstractTableModel::headerData(section, orientation, role);
    const Column &column = m_columns[section];
    switch (role) {
    case Qt::DisplayRole:
        return *column.heading
                   ? QCoreApplication::translate(metaObject()->className(), column.heading)
                   : QString();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(column.alignment);
    default:
        return {};
    }
}

Qt::Alignment RecordListBase::alignment(int column) const {
    return column >= 0 && column < int(m_columns.size()) ? m_columns[column].alignment
                                                         : Qt::AlignLeft | Qt::AlignVCenter;
}

void RecordListBase::movePersistentIndexes(const QList<int> &newRowOf) {
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before)
        after.append(this->index(newRowOf.at(index.row()), index.column()));
    changePersistentIndexList(before, after);
}

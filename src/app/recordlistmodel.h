#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <algorithm>
#include <numeric>
#include <span>

// The shape of Brisko's read-only lists: a table whose rows are records,
// their texts formatted only for the rows that show, and whose every cell
// hands out its record's key under KeyRole. A list names its columns once
// (heading and alignment) and says how a record reads in each column.
class RecordListBase : public QAbstractTableModel {
public:
    static constexpr int KeyRole = Qt::UserRole;

    struct Column {
        // Translated in the context of the list's own class; may be empty.
        const char *heading;
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    };

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

protected:
    RecordListBase(std::span<const Column> columns, QObject *parent);

    Qt::Alignment alignment(int column) const;
    // After a sort: the row that was `row` is now newRowOf[row].
    void movePersistentIndexes(const QList<int> &newRowOf);

private:
    std::span<const Column> m_columns;
};

template <typename Record> class RecordListModel : public RecordListBase {
public:
    void setRecords(QList<Record> records) {
        beginResetModel();
        m_records = std::move(records);
        endResetModel();
    }
    void clear() { setRecords({}); }
    // The key of the record in `row`, 0 when there is no such row.
    qint32 keyAt(int row) const {
        const Record *record = recordAt(row);
        return record ? key(*record) : 0;
    }
    // The record of `row`; nullptr when there is no such row.
    const Record *recordAt(int row) const {
        return row >= 0 && row < m_records.size() ? &m_records.at(row) : nullptr;
    }

    int rowCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : int(m_records.size());
    }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid))
            return {};
        const Record &record = m_records.at(index.row());
        switch (role) {
        case Qt::DisplayRole:
            return text(record, index.column());
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(alignment(index.column()));
        case KeyRole:
            return key(record);
        default:
            return otherData(record, index.column(), role);
        }
    }

protected:
    using RecordListBase::RecordListBase;

    virtual QString text(const Record &record, int column) const = 0;
    virtual qint32 key(const Record &record) const = 0;
    // Roles beyond the text, the alignment and the key.
    virtual QVariant otherData(const Record &record, int column, int role) const {
        Q_UNUSED(record);
        Q_UNUSED(column);
        Q_UNUSED(role);
        return {};
    }

    // Orders the records by `lessThan`, keeping equal ones as they stood;
    // the rows move as a layout change, so that the selection moves with them.
    template <typename Less> void sortRecords(Less lessThan) {
        Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
        QList<int> oldRows(m_records.size());
        std::iota(oldRows.begin(), oldRows.end(), 0);
        std::stable_sort(oldRows.begin(), oldRows.end(), [&](int left, int right) {
            return lessThan(m_records[left], m_records[right]);
        });
        QList<Record> sorted;
        sorted.reserve(m_records.size());
        QList<int> newRowOf(m_records.size());
        for (int row = 0; row < oldRows.size(); ++row) {
            sorted.append(std::move(m_records[oldRows[row]]));
            newRowOf[oldRows[row]] = row;
        }
        m_records = std::move(sorted);
        movePersistentIndexes(newRowOf);
        Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
    }

    QList<Record> m_records;
};

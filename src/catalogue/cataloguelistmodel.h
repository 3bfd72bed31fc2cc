#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QStringList>

// The rows of a catalogue list, read-only: the texts of each column, the
// record's key (Qt::UserRole on every cell) and whether the record is
// inactive, which draws the whole row red. It holds plain values, so that a
// list of many thousand products fills in one reset.
class CatalogueListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    struct Entry {
        qint32 key = 0;
        QStringList texts;
        bool inactive = false;
    };

    explicit CatalogueListModel(QStringList headers, QObject *parent = nullptr);

    void setEntries(QList<Entry> entries);
    // Adds at the end, whatever the order of the rows above; gives its row.
    int append(Entry entry);
    void replace(int row, Entry entry);
    void remove(int row);
    const Entry &entry(int row) const { return m_entries.at(row); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // Sorts on a click on a heading, by the column's text without regard to
    // case; rows added later stay where they were put.
    void sort(int column, Qt::SortOrder order) override;

private:
    QStringList m_headers;
    QList<Entry> m_entries;
};

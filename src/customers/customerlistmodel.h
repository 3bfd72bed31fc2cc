#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>

// One customer as the customer lists show it.
struct CustomerListRow {
    qint32 payeeID = 0;
    QString payeeName{};
    QString address1{};
    QString city{};
    QString state{};
    QString phone{};
};

// The customers of a list, read-only, each row keeping its customer's key
// under Qt::UserRole. Rows are handed over whole, so that a list of many
// thousands fills at once; the view sorts them by any column.
class CustomerListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { AccountID, Name, Address, City, State, Phone, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setRows(QList<CustomerListRow> rows);
    void clear() { setRows({}); }
    // The key of the customer in `row`, 0 when there is no such row.
    qint32 payeeIDAt(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    // After a sort: the row that was `row` is now newRowOf[row].
    void movePersistentIndexes(const QList<int> &newRowOf);

    QList<CustomerListRow> m_rows;
};

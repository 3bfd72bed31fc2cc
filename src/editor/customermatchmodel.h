#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>

// One customer whose name begins with what was typed in the receipt editor.
struct CustomerMatch {
    qint32 payeeID = 0;
    QString payeeName{};
    QString address1{};
    QString address2{};
    QString city{};
    QString state{};
    QString zip{};
};

// The matches under the editor's name field, read-only, each row keeping
// its customer's key under Qt::UserRole. Rows are handed over whole, so
// that a short prefix over many customers still fills at once.
class CustomerMatchModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { AccountID, Name, Address, Address2, City, State, Zip, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setRows(QList<CustomerMatch> rows);
    // The key of the customer in `row`, 0 when there is no such row.
    qint32 payeeIDAt(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QList<CustomerMatch> m_rows;
};

#pragma once

#include "app/currency.h"

#include <QAbstractTableModel>
#include <QDateTime>
#include <QList>

namespace db {
class Snapshot;
}

// The rows of a sales list, read-only: date, number, customer, total,
// received and status of each receipt, and the receipt's key under
// ReceiptIDRole. The texts are formatted only for the rows that show.
class ReceiptListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { DateColumn, NumberColumn, NameColumn, TotalColumn, ReceivedColumn, StatusColumn };
    static constexpr int ReceiptIDRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    // Shows the rows of a receipt list. A row that cannot be read ends the
    // list there, the rows before it staying, and its error goes on.
    void load(const db::Snapshot &rows);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Sale {
        QDateTime date;
        QString number;
        QString customer;
        Currency total;
        Currency received;
        QString status;
        qint32 receiptID = 0;
    };

    static QString text(const Sale &sale, int column);

    QList<Sale> m_sales;
};

#pragma once

#include "app/currency.h"

#include <QAbstractTableModel>
#include <QDateTime>
#include <QList>

namespace db {
class Snapshot;
}

// A customer's receipts as the customer sheet lists them, each row with a
// check box in its first column and its receipt's key under ReceiptIDRole.
class CustomerTransactionsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        CheckColumn,
        DateColumn,
        NumberColumn,
        TotalColumn,
        BalanceColumn,
        TypeColumn,
        VoidColumn,
        ColumnCount
    };
    static constexpr int ReceiptIDRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    // Shows the rows of GetCustomerReceipts, none checked. A row that cannot
    // be read ends the list there and its error goes on.
    void load(const db::Snapshot &rows);
    QList<qint32> checkedReceiptIDs() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Transaction {
        qint32 receiptID = 0;
        QDateTime date;
        QString number;
        Currency total;
        Currency balance;
        bool sale = false;
        bool isVoid = false;
        bool checked = false;
    };

    static QString text(const Transaction &row, int column);

    QList<Transaction> m_rows;
};

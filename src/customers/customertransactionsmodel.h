#pragma once

#include "app/currency.h"
#include "app/recordlistmodel.h"

#include <QDateTime>

namespace db {
class Snapshot;
}

// One receipt of a customer, as the customer sheet lists it.
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

// A customer's receipts as the customer sheet lists them, each row with a
// check box in its first column and its receipt's key under ReceiptIDRole.
class CustomerTransactionsModel : public RecordListModel<Transaction> {
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
    static constexpr int ReceiptIDRole = KeyRole;

    explicit CustomerTransactionsModel(QObject *parent = nullptr);

    // Shows the rows of GetCustomerReceipts, none checked. A row that cannot
    // be read ends the list there and its error goes on.
    void load(const db::Snapshot &rows);
    QList<qint32> checkedReceiptIDs() const;

    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    QString text(const Transaction &row, int column) const override;
    qint32 key(const Transaction &row) const override { return row.receiptID; }
    QVariant otherData(const Transaction &row, int column, int role) const override;
};

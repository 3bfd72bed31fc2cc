#pragma once

#include "app/currency.h"
#include "app/recordlistmodel.h"

#include <QDateTime>

namespace db {
class Snapshot;
}

// One receipt of a sales list.
struct Sale {
    QDateTime date;
    QString number;
    QString customer;
    Currency total;
    Currency received;
    QString status;
    qint32 receiptID = 0;
};

// The rows of a sales list: date, number, customer, total, received and
// status of each receipt, and the receipt's key under ReceiptIDRole.
class ReceiptListModel : public RecordListModel<Sale> {
    Q_OBJECT

public:
    enum Column { DateColumn, NumberColumn, NameColumn, TotalColumn, ReceivedColumn, StatusColumn };
    static constexpr int ReceiptIDRole = KeyRole;

    explicit ReceiptListModel(QObject *parent = nullptr);

    // Shows the rows of a receipt list. A row that cannot be read ends the
    // list there, the rows before it staying, and its error goes on.
    void load(const db::Snapshot &rows);

protected:
    QString text(const Sale &sale, int column) const override;
    qint32 key(const Sale &sale) const override { return sale.receiptID; }
};

#pragma once

#include "app/recordlistmodel.h"

// One customer as the customer lists show it.
struct CustomerListRow {
    qint32 payeeID = 0;
    QString payeeName{};
    QString address1{};
    QString city{};
    QString state{};
    QString phone{};
};

// The customers of a list. Rows are handed over whole, so that a list of
// many thousands fills at once; the view sorts them by any column.
class CustomerListModel : public RecordListModel<CustomerListRow> {
    Q_OBJECT

public:
    enum Column { AccountID, Name, Address, City, State, Phone, ColumnCount };

    explicit CustomerListModel(QObject *parent = nullptr);

    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
    QString text(const CustomerListRow &row, int column) const override;
    qint32 key(const CustomerListRow &row) const override { return row.payeeID; }
};

#pragma once

#include "app/recordlistmodel.h"

// One customer as the customer lists show it. A list reads only the fields
// its columns show.
struct CustomerListRow {
    qint32 payeeID = 0;
    QString payeeName{};
    QString address1{};
    QString address2{};
    QString city{};
    QString state{};
    QString zip{};
    QString phone{};
};

// The customers of a list. Rows are handed over whole, so that a list of
// many thousands fills at once; the view sorts them by any column. The
// customer search shows its columns, the receipt editor's matches under the
// name field theirs; the key and the name lead both.
class CustomerListModel : public RecordListModel<CustomerListRow> {
    Q_OBJECT

public:
    enum class Layout {
        Search, // Account ID, Name, Address, City, State, Phone
        Matches // Account ID, Name, Address, Address 2, City, State, Zip
    };
    enum Column { AccountID, Name };

    explicit CustomerListModel(Layout layout, QObject *parent = nullptr);

    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
    QString text(const CustomerListRow &row, int column) const override;
    qint32 key(const CustomerListRow &row) const override { return row.payeeID; }

private:
    Layout m_layout;
};

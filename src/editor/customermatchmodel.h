#pragma once

#include "app/recordlistmodel.h"

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

// The matches under the editor's name field. Rows are handed over whole, so
// that a short prefix over many customers still fills at once.
class CustomerMatchModel : public RecordListModel<CustomerMatch> {
    Q_OBJECT

public:
    enum Column { AccountID, Name, Address, Address2, City, State, Zip, ColumnCount };

    explicit CustomerMatchModel(QObject *parent = nullptr);

protected:
    QString text(const CustomerMatch &row, int column) const override;
    qint32 key(const CustomerMatch &row) const override { return row.payeeID; }
};

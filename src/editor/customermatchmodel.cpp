#include "editor/customermatchmodel.h"

namespace {

constexpr RecordListBase::Column kColumns[CustomerMatchModel::ColumnCount] = {
    {QT_TRANSLATE_NOOP("CustomerMatchModel", "Account ID")},
    {QT_TRANSLATE_NOOP("CustomerMatchModel", "Name")},
    {QT_TRANSLATE_NOOP("CustomerMatchModel", "Address")},
    {QT_TRANSLATE_NOOP("CustomerMatchModel", "Address 2")},
    {QT_TRANSLATE_NOOP("CustomerMatchModel", "City")},
    {QT_TRANSLATE_NOOP("CustomerMatchModel", "State")},
    {QT_TRANSLATE_NOOP("CustomerMatchModel", "Zip")},
};

} // namespace

CustomerMatchModel::CustomerMatchModel(QObject *parent)
    : RecordListModel(kColumns, parent) {}

QString CustomerMatchModel::text(const CustomerMatch &row, int column) const {
    switch (column) {
    case AccountID:
        return QString::number(row.payeeID);
    case Name:
        return row.payeeName;
    case Address:
        return row.address1;
    case Address2:
        return row.address2;
    case City:
        return row.city;
    case State:
        return row.state;
    case Zip:
        return row.zip;
    default:
        return {};
    }
}

#include "customers/customerlistmodel.h"

namespace {

enum class Field { AccountID, Name, Address, Address2, City, State, Zip, Phone };

constexpr Qt::Alignment kNumber = Qt::AlignRight | Qt::AlignVCenter;

constexpr RecordListBase::Column kSearchColumns[] = {
    {QT_TRANSLATE_NOOP("CustomerListModel", "Account ID"), kNumber},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Name")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Address")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "City")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "State")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Phone")},
};
constexpr Field kSearchFields[] = {Field::AccountID, Field::Name,  Field::Address,
                                   Field::City,      Field::State, Field::Phone};

constexpr RecordListBase::Column kMatchColumns[] = {
    {QT_TRANSLATE_NOOP("CustomerListModel", "Account ID")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Name")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Address")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Address 2")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "City")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "State")},
    {QT_TRANSLATE_NOOP("CustomerListModel", "Zip")},
};
constexpr Field kMatchFields[] = {Field::AccountID, Field::Name,  Field::Address, Field::Address2,
                                  Field::City,      Field::State, Field::Zip};

std::span<const RecordListBase::Column> columnsOf(CustomerListModel::Layout layout) {
    if (layout == CustomerListModel::Layout::Search)
        return kSearchColumns;
    return kMatchColumns;
}

Field fieldOf(CustomerListModel::Layout layout, int column) {
    const std::span<const Field> fields = layout == CustomerListModel::Layout::Search
                                              ? std::span<const Field>(kSearchFields)
                                              : std::span<const Field>(kMatchFields);
    return fields[column];
}

} // namespace

CustomerListModel::CustomerListModel(Layout layout, QObject *parent)
    : RecordListModel(columnsOf(layout), parent)
    , m_layout(layout) {}

QString CustomerListModel::text(const CustomerListRow &row, int column) const {
    if (column < 0 || column >= columnCount())
        return {};
    switch (fieldOf(m_layout, column)) {
    case Field::AccountID:
        return QString::number(row.payeeID);
    case Field::Name:
        return row.payeeName;
    case Field::Address:
        return row.address1;
    case Field::Address2:
        return row.address2;
    case Field::City:
        return row.city;
    case Field::State:
        return row.state;
    case Field::Zip:
        return row.zip;
    case Field::Phone:
        return row.phone;
    }
    return {};
}

// Keys sort as numbers; texts without regard to case, as names always have.
void CustomerListModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columnCount())
        return;
    const auto lessThan = [&](const CustomerListRow &left, const CustomerListRow &right) {
        if (column == AccountID)
            return left.payeeID < right.payeeID;
        return QString::compare(text(left, column), text(right, column), Qt::CaseInsensitive) < 0;
    };
    if (order == Qt::AscendingOrder)
        sortRecords(lessThan);
    else
        sortRecords([&](const CustomerListRow &left, const CustomerListRow &right) {
            return lessThan(right, left);
        });
}

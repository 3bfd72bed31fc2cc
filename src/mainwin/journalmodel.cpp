#include "mainwin/journalmodel.h"

#include "app/runtimeformat.h"
#include "platform/briskoerror.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr RecordListBase::Column kColumns[JournalModel::ColumnCount] = {
    {QT_TRANSLATE_NOOP("JournalModel", "Date")},
    {QT_TRANSLATE_NOOP("JournalModel", "Receipt No.")},
    {QT_TRANSLATE_NOOP("JournalModel", "Customer Name")},
    {QT_TRANSLATE_NOOP("JournalModel", "Total"), Qt::AlignRight | Qt::AlignVCenter},
    {QT_TRANSLATE_NOOP("JournalModel", "Status")},
};

} // namespace

JournalModel::JournalModel(QObject *parent)
    : RecordListModel(kColumns, parent) {}

void JournalModel::search(const Receipt &terms, const Receipt::GetReceiptsArgs &args) {
    clear();
    m_terms = terms;
    m_args = args;
    m_complete = false;
    readPage();
}

void JournalModel::clear() {
    beginResetModel();
    m_records.clear();
    m_texts.clear();
    m_after.reset();
    m_complete = true;
    endResetModel();
}

// The next page still follows the last row read, removed or not.
void JournalModel::removeReceipt(int row) {
    if (row < 0 || row >= m_records.size())
        return;
    beginRemoveRows({}, row, row);
    m_records.removeAt(row);
    endRemoveRows();
}

bool JournalModel::canFetchMore(const QModelIndex &parent) const {
    return !parent.isValid() && !m_complete;
}

void JournalModel::fetchMore(const QModelIndex &parent) {
    if (!canFetchMore(parent))
        return;
    try {
        readPage();
    } catch (const BriskoError &error) {
        if (onFetchFailure)
            onFetchFailure(error);
    }
}

// A short page is the last one. A failed page ends the list after the rows
// it could read.
void JournalModel::readPage() {
    QList<Receipt::ListEntry> page;
    const auto keep = qScopeGuard([&] { append(page); });
    m_complete = true;
    m_terms.GetReceiptsPage(m_args, m_after ? &*m_after : nullptr, kPageRows, page);
    m_complete = page.size() < kPageRows;
}

void JournalModel::append(QList<Receipt::ListEntry> &page) {
    if (page.isEmpty())
        return;
    m_after = page.constLast();
    for (Receipt::ListEntry &entry : page) {
        entry.payeeName = sharedText(entry.payeeName);
        entry.statusName = sharedText(entry.statusName);
    }
    const int first = int(m_records.size());
    beginInsertRows({}, first, first + int(page.size()) - 1);
    m_records.append(std::move(page));
    endInsertRows();
}

// A customer's name or a status repeats on many rows; the rows share one
// copy of it, which keeps a list scrolled through years small.
QString JournalModel::sharedText(const QString &text) {
    auto known = m_texts.constFind(text);
    if (known == m_texts.constEnd())
        known = m_texts.insert(text);
    return *known;
}

QString JournalModel::text(const Receipt::ListEntry &entry, int column) const {
    switch (column) {
    case DateColumn:
        return Runtime::generalDate(entry.receiptDate);
    case NumberColumn:
        return entry.receiptNumber;
    case NameColumn:
        return entry.payeeName;
    case TotalColumn:
        return Runtime::formatNumber(entry.amountReceived + entry.balanceRemaining, u"#,###.00"_s);
    default:
        return entry.statusName;
    }
}

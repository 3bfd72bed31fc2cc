#include "mainwin/journalmodel.h"

#include "app/runtimeformat.h"
#include "platform/briskoerror.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

const char *const kHeaders[JournalModel::ColumnCount] = {
    QT_TRANSLATE_NOOP("JournalModel", "Date"),
    QT_TRANSLATE_NOOP("JournalModel", "Receipt No."),
    QT_TRANSLATE_NOOP("JournalModel", "Customer Name"),
    QT_TRANSLATE_NOOP("JournalModel", "Total"),
    QT_TRANSLATE_NOOP("JournalModel", "Status"),
};

} // namespace

void JournalModel::search(const Receipt &terms, const Receipt::GetReceiptsArgs &args) {
    clear();
    m_terms = terms;
    m_args = args;
    m_complete = false;
    readPage();
}

void JournalModel::clear() {
    beginResetModel();
    m_rows.clear();
    m_texts.clear();
    m_after.reset();
    m_complete = true;
    endResetModel();
}

qint32 JournalModel::receiptIDAt(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).receiptID : 0;
}

// The next page still follows the last row read, removed or not.
void JournalModel::removeReceipt(int row) {
    if (row < 0 || row >= m_rows.size())
        return;
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
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
    const int first = int(m_rows.size());
    beginInsertRows({}, first, first + int(page.size()) - 1);
    m_rows.append(std::move(page));
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

int JournalModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

int JournalModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant JournalModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Receipt::ListEntry &entry = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(entry, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == TotalColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                             : QVariant();
    case ReceiptIDRole:
        return entry.receiptID;
    default:
        return {};
    }
}

QVariant JournalModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return tr(kHeaders[section]);
    if (role == Qt::TextAlignmentRole && section == TotalColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
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

#pragma once

#include "app/recordlistmodel.h"
#include "receipts/receipt.h"

#include <QSet>
#include <functional>
#include <optional>

class BriskoError;

// The hits of the receipt journal, read a page at a time as the view scrolls
// to them, so that a search over years of receipts shows its first rows at
// once and no more of the list is ever held than has been looked at. Each
// row keeps its receipt's key under ReceiptIDRole.
class JournalModel : public RecordListModel<Receipt::ListEntry> {
    Q_OBJECT

public:
    enum Column { DateColumn, NumberColumn, NameColumn, TotalColumn, StatusColumn, ColumnCount };
    static constexpr int ReceiptIDRole = KeyRole;
    static constexpr int kPageRows = 256;

    explicit JournalModel(QObject *parent = nullptr);

    // Starts the list over with the hits of `args`, the custom terms taken
    // from `terms`, and reads the first page. A failure leaves the rows read
    // before it and goes on.
    void search(const Receipt &terms, const Receipt::GetReceiptsArgs &args);
    void clear();
    void removeReceipt(int row);

    // Told the failure of a page the view asked for; the list ends there.
    std::function<void(const BriskoError &)> onFetchFailure;

    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

protected:
    QString text(const Receipt::ListEntry &entry, int column) const override;
    qint32 key(const Receipt::ListEntry &entry) const override { return entry.receiptID; }

private:
    void readPage();
    void append(QList<Receipt::ListEntry> &page);
    QString sharedText(const QString &text);

    Receipt m_terms;
    Receipt::GetReceiptsArgs m_args;
    std::optional<Receipt::ListEntry> m_after; // the last row read; the next page follows it
    QSet<QString> m_texts; // one copy of each name and status, shared by the rows
    bool m_complete = true;
};

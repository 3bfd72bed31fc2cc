#pragma once

#include "receipts/receipt.h"

#include <QAbstractTableModel>
#include <QList>
#include <QSet>
#include <functional>
#include <optional>

class BriskoError;

// The hits of the receipt journal, read a page at a time as the view scrolls
// to them, so that a search over years of receipts shows its first rows at
// once and no more of the list is ever held than has been looked at. Each
// row keeps its receipt's key under ReceiptIDRole.
class JournalModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { DateColumn, NumberColumn, NameColumn, TotalColumn, StatusColumn, ColumnCount };
    static constexpr int ReceiptIDRole = Qt::UserRole;
    static constexpr int kPageRows = 256;

    using QAbstractTableModel::QAbstractTableModel;

    // Starts the list over with the hits of `args`, the custom terms taken
    // from `terms`, and reads the first page. A failure leaves the rows read
    // before it and goes on.
    void search(const Receipt &terms, const Receipt::GetReceiptsArgs &args);
    void clear();
    // The key of the receipt in `row`; 0 when there is no such row.
    qint32 receiptIDAt(int row) const;
    void removeReceipt(int row);

    // Told the failure of a page the view asked for; the list ends there.
    std::function<void(const BriskoError &)> onFetchFailure;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

private:
    void readPage();
    void append(QList<Receipt::ListEntry> &page);
    QString sharedText(const QString &text);
    QString text(const Receipt::ListEntry &entry, int column) const;

    Receipt m_terms;
    Receipt::GetReceiptsArgs m_args;
    QList<Receipt::ListEntry> m_rows;
    std::optional<Receipt::ListEntry> m_after; // the last row read; the next page follows it
    QSet<QString> m_texts; // one copy of each name and status, shared by the rows
    bool m_complete = true;
};

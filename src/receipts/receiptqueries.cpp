#include "receipts/receipt.h"

#include "app/runtimeformat.h"
#include "platform/briskoerror.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kReceiptListColumns = u" R.*, P.payeeName, S.statusName FROM (tblReceipt AS R "
                                    "LEFT JOIN tblPayee AS P ON P.payeeID = R.payeeID) "
                                    "LEFT JOIN tblStatus AS S ON S.statusID = R.status "_s;

// The WHERE part of the receipt list: each condition after the first is
// joined with " AND ". With no condition at all nothing follows "WHERE ".
class Conditions {
public:
    void add(const QString &condition, const db::Param &value) {
        if (m_any)
            m_sql += u" AND "_s;
        m_sql += condition;
        m_params.append(value);
        m_any = true;
    }

    // Values of further "?" in the condition added last.
    void appendParams(const db::Params &values) { m_params.append(values); }

    const QString &sql() const { return m_sql; }
    const db::Params &params() const { return m_params; }

private:
    QString m_sql;
    db::Params m_params;
    bool m_any = false;
};

// The user's short date text as the stored text of that day at midnight, so
// that a receipt later than midnight on the end date falls outside.
QDate listDate(const QString &shortDate) {
    const QDate day = Runtime::parseShortDate(shortDate);
    if (!day.isValid())
        raiseTypeMismatch();
    return day;
}

void addCustomFieldTerms(Conditions &where, const Receipt &terms) {
    const QString *fields[] = {&terms.customField1, &terms.customField2, &terms.customField3,
                               &terms.customField4, &terms.customField5, &terms.customField6};
    for (int index = 0; index < 6; ++index) {
        if (!fields[index]->isEmpty())
            where.add(uR"(R.customField%1 LIKE ? ESCAPE '\' )"_s.arg(index + 1),
                      db::containingPattern(*fields[index]));
    }
}

// The filters of a receipt list; a typed '%' or '_' matches itself.
Conditions listConditions(const Receipt &terms, const Receipt::GetReceiptsArgs &args) {
    Conditions where;
    if (!args.startDate.isEmpty())
        where.add(u"R.receiptDate >= ? "_s, listDate(args.startDate));
    if (!args.endDate.isEmpty())
        where.add(u"R.receiptDate <= ? "_s, listDate(args.endDate));
    if (!args.payeeName.isEmpty())
        where.add(uR"(P.payeeName LIKE ? ESCAPE '\' )"_s, db::containingPattern(args.payeeName));
    if (!args.receiptNumber.isEmpty())
        where.add(u"R.receiptNumber = ? "_s, args.receiptNumber);
    if (args.useCustomFields)
        addCustomFieldTerms(where, terms);
    if (!args.includeOpening)
        where.add(u"R.receiptType <> ? "_s, int(Receipt::OpeningBalance));
    return where;
}

} // namespace

// An empty filter is no filter. Search terms for the custom fields travel in
// this object's own customField1 to customField6.
db::Snapshot Receipt::GetReceipts(const QString &startDate, const QString &endDate,
                                  qint16 sortOrder, qint16 maxRows, const QString &payeeName,
                                  const QString &receiptNumber, bool useCustomFields,
                                  bool includeOpening) {
    return GetReceipts({startDate, endDate, sortOrder, maxRows, payeeName, receiptNumber,
                        useCustomFields, includeOpening});
}

db::Snapshot Receipt::GetReceipts(const GetReceiptsArgs &args) {
    return reraiseWithPrefix(u"Receipt.getReceipts:  "_s, [&] {
        const Conditions where = listConditions(*this, args);
        QString sql = u"SELECT "_s + kReceiptListColumns + u"WHERE "_s + where.sql();
        sql += args.sortOrder == 1 ? u"ORDER BY R.receiptNumber DESC"_s
                                   : u"ORDER BY R.receiptDate, R.receiptNumber"_s;
        db::Params params = where.params();
        if (args.maxRows > 0) {
            sql += u" LIMIT ?"_s;
            params.append(int(args.maxRows));
        }
        return db::select(sql, params);
    });
}

// The page goes on from the last row shown by the row value of the list's
// order, which the date and number index serves, so that a page deep into
// the list costs what the first one does.
void Receipt::GetReceiptsPage(const GetReceiptsArgs &args, const ListEntry *after, int count,
                              QList<ListEntry> &page) {
    Q_ASSERT(args.sortOrder == 0);
    reraiseWithPrefix(u"Receipt.getReceipts:  "_s, [&] {
        // The page starts on the last row's day at the earliest, so that
        // the index seeks straight to it rather than from the start date.
        GetReceiptsArgs bounded = args;
        if (after && !args.startDate.isEmpty())
            bounded.startDate =
                Runtime::shortDate(std::max(listDate(args.startDate), after->receiptDate.date()));
        Conditions where = listConditions(*this, bounded);
        if (after) {
            where.add(u"(R.receiptDate, R.receiptNumber, R.receiptID) > (?, ?, ?) "_s,
                      after->receiptDate);
            where.appendParams({after->receiptNumber, after->receiptID});
        }
        const QString sql =
            u"SELECT R.receiptID, R.receiptDate, R.receiptNumber, P.payeeName, "
            "R.amountReceived, R.balanceRemaining, S.statusName FROM (tblReceipt AS R "
            "LEFT JOIN tblPayee AS P ON P.payeeID = R.payeeID) "
            "LEFT JOIN tblStatus AS S ON S.statusID = R.status WHERE "_s +
            where.sql() + u"ORDER BY R.receiptDate, R.receiptNumber, R.receiptID LIMIT ?"_s;
        db::Params params = where.params();
        params.append(count);
        db::forEachRow(sql, params, [&page](const db::Cells &cells) {
            page.append({cells.int32(0), cells.dateTime(1), cells.text(2), cells.text(3),
                         cells.currency(4), cells.currency(5), cells.text(6)});
        });
    });
}

qint32 Receipt::GetReceiptCount() {
    return reraiseWithPrefix(u"Receipt.getReceipts:  "_s, [] {
        const std::optional<db::Row> row =
            db::readFirst(u"SELECT COUNT(receiptID) as totalCreated FROM tblReceipt"_s);
        return row ? row->int32(u"totalCreated"_s) : 0;
    });
}

// Opening-balance records are part of a customer's own list.
db::Snapshot Receipt::GetCustomerReceipts(qint32 payeeID) {
    return reraiseWithPrefix(u"Receipt.GetCustomerReceipts:  "_s, [payeeID] {
        return db::select(u"SELECT"_s + kReceiptListColumns +
                              u"WHERE R.payeeID = ? ORDER BY R.receiptDate, R.receiptNumber"_s,
                          {payeeID});
    });
}

// A line whose product was deleted still comes, with a Null productSKU.
db::Snapshot Receipt::getReceiptProducts(qint32 receiptID) {
    return reraiseWithPrefix(u"Receipt.getReceiptProducts:  "_s, [receiptID] {
        return db::select(u"SELECT RP.*, P.productSKU FROM tblReceipt_Product AS RP "
                          "LEFT JOIN tblProduct AS P ON P.productID = RP.productID "
                          "WHERE RP.receiptID = ?"_s,
                          {receiptID});
    });
}

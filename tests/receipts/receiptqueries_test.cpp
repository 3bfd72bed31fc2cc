#include "receipttestbase.h"

#include "app/runtimeformat.h"

using namespace Qt::Literals::StringLiterals;

// Receipts of two customers around 25 Oct 2013, and one opening balance.
class ReceiptQueriesTest : public ReceiptTest {
protected:
    void SetUp() override {
        ReceiptTest::SetUp();
        goldsmith = addPayee(u"Goldsmith"_s);
        brien = addPayee(u"O'Brien"_s);
        saved(issuedReceipt(u"00003"_s, at(2013, 10, 24), goldsmith));
        saved(issuedReceipt(u"00005"_s, at(2013, 10, 25), brien));
        saved(issuedReceipt(u"00004"_s, at(2013, 10, 25), goldsmith));
        saved(issuedReceipt(u"00006"_s, at(2013, 10, 25, 10), goldsmith));
        saved(issuedReceipt(u"000050"_s, at(2013, 10, 26), brien));
        Receipt custom = issuedReceipt(u"00007"_s, at(2013, 10, 20), brien);
        custom.customField4 = u"Dark Blue"_s;
        saved(custom);
        Receipt opening = issuedReceipt(u"Opening Balance"_s, at(2013, 10, 25), goldsmith);
        opening.receiptType = Receipt::OpeningBalance;
        saved(opening);
    }

    static QString day(int dayOfMonth) { return Runtime::shortDate(QDate(2013, 10, dayOfMonth)); }

    static QStringList numbers(const db::Snapshot &rows) {
        QStringList result;
        for (const db::Row &row : rows)
            result.append(row.text(u"receiptNumber"_s));
        return result;
    }

    QStringList list(const QString &payeeName, const QString &receiptNumber = {},
                     bool includeOpening = false) {
        return numbers(terms.GetReceipts(day(1), day(31), 0, 0, payeeName, receiptNumber,
                                         useCustomFields, includeOpening));
    }

    Receipt terms;
    bool useCustomFields = false;
    qint32 goldsmith = 0;
    qint32 brien = 0;
};

TEST_F(ReceiptQueriesTest, DateRangeEndsAtMidnightOfTheEndDay) {
    const db::Snapshot rows = terms.GetReceipts({.startDate = day(24), .endDate = day(25)});
    EXPECT_EQ(numbers(rows), (QStringList{u"00003"_s, u"00004"_s, u"00005"_s}));
    EXPECT_EQ(rows.at(0).text(u"payeeName"_s), u"Goldsmith"_s);
    EXPECT_EQ(rows.at(0).text(u"statusName"_s), u"Issued"_s);

    EXPECT_EQ(numbers(terms.GetReceipts({.startDate = day(26)})), (QStringList{u"000050"_s}));

    // Sorted by number, newest first, and cut at maxRows.
    EXPECT_EQ(numbers(terms.GetReceipts({.sortOrder = 1, .maxRows = 3})),
              (QStringList{u"00007"_s, u"00006"_s, u"000050"_s}));
}

TEST_F(ReceiptQueriesTest, NameNumberOpeningAndCustomFieldFilters) {
    EXPECT_EQ(list(u"smith"_s), (QStringList{u"00003"_s, u"00004"_s, u"00006"_s}));
    EXPECT_EQ(list(u"O'Brien"_s), (QStringList{u"00007"_s, u"00005"_s, u"000050"_s}));
    EXPECT_EQ(list({}, u"00005"_s), (QStringList{u"00005"_s}));
    EXPECT_EQ(list(u"smith"_s, u"00005"_s), QStringList());
    EXPECT_FALSE(list(u"Goldsmith"_s).contains(u"Opening Balance"_s));
    EXPECT_TRUE(list(u"Goldsmith"_s, {}, true).contains(u"Opening Balance"_s));

    // Custom field terms come from the querying object.
    terms.customField4 = u"blue"_s;
    EXPECT_EQ(list({}).size(), 6);
    useCustomFields = true;
    EXPECT_EQ(list({}), (QStringList{u"00007"_s}));
    terms.customField1 = u"red"_s;
    EXPECT_EQ(list({}), QStringList());
}

TEST_F(ReceiptQueriesTest, CustomerListAndLinesKeepWhatTheirKeysNoLongerFind) {
    EXPECT_EQ(numbers(terms.GetCustomerReceipts(goldsmith)),
              (QStringList{u"00003"_s, u"00004"_s, u"Opening Balance"_s, u"00006"_s}));

    db::execute(u"DELETE FROM tblPayee WHERE payeeID = ?"_s, {brien});
    const db::Snapshot rows = terms.GetCustomerReceipts(brien);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_TRUE(rows.at(0).isNull(u"payeeName"_s));

    const qint64 kept = db::insertReturningKey(
        u"INSERT INTO tblProduct (productName, productSKU) VALUES ('Nails', 'N-1') "
        "RETURNING productID"_s);
    terms.writeReceiptProducts(1, qint32(kept), 2, Currency::fromInt(1), u"Nails"_s, {});
    terms.writeReceiptProducts(1, 999, 1, Currency::fromInt(4), u"Gone"_s, {});
    terms.writeReceiptProducts(2, qint32(kept), 1, Currency::fromInt(1), u"Nails"_s, {});

    QMap<QString, QVariant> skuByDesc;
    for (const db::Row &row : terms.getReceiptProducts(1))
        skuByDesc.insert(row.text(u"overrideDesc"_s), row.value(u"productSKU"_s));
    ASSERT_EQ(skuByDesc.size(), 2);
    EXPECT_EQ(skuByDesc.value(u"Nails"_s).toString(), u"N-1"_s);
    EXPECT_TRUE(skuByDesc.value(u"Gone"_s).isNull());
}

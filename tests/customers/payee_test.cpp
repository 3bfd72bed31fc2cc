#include "customers/payee.h"
#include "receipts/receipt.h"
#include "support/briskotest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// One receipt row of a customer; amounts as typed.
struct Line {
    qint16 type = Receipt::ProductReceipt;
    const char *due = "0", *received = "0";
    qint16 status = Receipt::Issued;
    const char *tax = "0", *other = "0", *discount = "0";
    const char *opening = "0"; // accountBalance, read on opening-balance rows
};

Currency money(const char *text) {
    return Currency::fromText(QString::fromLatin1(text));
}

qint32 addLine(qint32 payeeID, const Line &line) {
    Receipt receipt;
    receipt.payeeID = payeeID;
    receipt.receiptType = line.type;
    receipt.status = line.status;
    receipt.amountDue = money(line.due);
    receipt.amountReceived = money(line.received);
    receipt.amountTax = money(line.tax);
    receipt.amountOther = money(line.other);
    receipt.amountDiscount = money(line.discount);
    receipt.accountBalance = money(line.opening);
    receipt.writeReceipt();
    return receipt.receiptID;
}

QString planOf(const QString &sql, const db::Params &params) {
    QStringList steps;
    for (const db::Row &row : db::select(u"EXPLAIN QUERY PLAN "_s + sql, params))
        steps.append(row.text(u"detail"_s));
    return steps.join(u"; "_s);
}

using PayeeTest = BriskoTest;

TEST_F(PayeeTest, BalanceFollowsTheSalesPaymentsAndOpeningRow) {
    const Line opening50{.type = Receipt::OpeningBalance, .opening = "50"};
    const struct {
        struct {
            const char *balance, *openingBalance, *name;
        } expected;
        QList<Line> lines;
    } cases[] = {
        {{"0", "0", "no receipts"}, {}},
        {{"0", "0", "paid in full"}, {{.due = "100", .received = "100"}}},
        {{"0", "0", "paid more: the excess is dropped"}, {{.due = "100", .received = "150"}}},
        {{"70", "0", "paid 30 of 100"}, {{.due = "100", .received = "30"}}},
        {{"70", "0", "discount lowers the total"},
         {{Receipt::ServiceReceipt, "100", "30", Receipt::Issued, "8", "2", "10"}}},
        {{"0", "0", "void sale and void payment"},
         {{.due = "100", .status = Receipt::Void},
          {.type = Receipt::AccountPayment, .received = "40", .status = Receipt::Void}}},
        {{"50", "50", "a void opening row counts"},
         {{.type = Receipt::OpeningBalance, .status = Receipt::Void, .opening = "50"}}},
        {{"-30", "50", "a payment beyond the balance"},
         {opening50, {.type = Receipt::AccountPayment, .due = "999", .received = "80"}}},
        {{"0", "0", "type 3 does nothing"}, {{.type = 3, .due = "100"}}},
        {{"26.25", "20.25", "the last of two opening rows"},
         {opening50,
          {.type = Receipt::OpeningBalance, .opening = "20.25"},
          {.due = "10", .received = "4"}}},
    };
    for (const auto &example : cases) {
        const qint32 id = addPayee(QString::fromLatin1(example.expected.name));
        addLine(addPayee(u"someone else"_s), {.due = "500"});
        for (const Line &line : example.lines)
            addLine(id, line);
        EXPECT_EQ(Payee().GetPayeeBalance(id), money(example.expected.balance))
            << example.expected.name;
        EXPECT_EQ(Payee().GetOpeningBalance(id), money(example.expected.openingBalance))
            << example.expected.name;
    }
}

// The opening balance is one row, updated in place and dated today.
TEST_F(PayeeTest, SetBalanceKeepsOneOpeningRowDatedToday) {
    Payee payee;
    payee.payeeID = addPayee(u"Ann"_s);
    ASSERT_TRUE(payee.SetBalance(payee.payeeID, money("12.5")));
    db::execute(u"UPDATE tblReceipt SET receiptDate = '2001-01-01 00:00:00'"_s);
    ASSERT_TRUE(payee.SetBalance(payee.payeeID, money("-7")));

    const db::Snapshot rows = db::select(u"SELECT * FROM tblReceipt"_s);
    ASSERT_EQ(rows.size(), 1);
    const db::Row &row = rows.at(0);
    EXPECT_EQ(row.currency(u"accountBalance"_s), money("-7"));
    EXPECT_EQ(row.dateTime(u"receiptDate"_s), QDateTime(QDate::currentDate(), QTime(0, 0)));
    EXPECT_EQ(row.text(u"receiptNumber"_s) + u'|' + row.text(u"receivedBy"_s),
              u"Opening Balance|System"_s);
    EXPECT_EQ(row.int16(u"receiptType"_s) * 10 + row.int16(u"status"_s), 41);
    EXPECT_EQ(payee.GetPayeeBalance(payee.payeeID), money("-7"));

    db::execute(u"DROP TABLE tblReceipt"_s);
    EXPECT_TRUE(errorOf([&] { payee.SetBalance(payee.payeeID, money("1")); })
                    .description()
                    .startsWith(u"Payee.writePayee:  "_s));
}

TEST_F(PayeeTest, WriteLoadAndDeleteAgainstTheFile) {
    Payee written;
    written.payeeName = u"O'Brien 100% A_B Łódź"_s;
    written.address1 = u"1 Main St"_s;
    written.city = u"Springfield"_s;
    written.State = u"IL"_s;
    ASSERT_TRUE(written.WritePayee());
    ASSERT_GT(written.payeeID, 0);
    EXPECT_EQ(
        db::readFirst(u"SELECT lastPurchaseDate FROM tblPayee"_s)->text(u"lastPurchaseDate"_s),
        u"1899-12-30 00:00:00"_s)
        << "a record that never had a purchase writes the zero date";

    Payee loaded;
    ASSERT_TRUE(loaded.LoadPayeeInfo(written.payeeID));
    EXPECT_EQ(loaded.payeeName + u'|' + loaded.State, u"O'Brien 100% A_B Łódź|IL"_s);

    loaded.phone = u"555-0100"_s;
    loaded.lastPurchaseDate = QDateTime(QDate(2024, 3, 1), QTime(9, 30));
    ASSERT_TRUE(loaded.WritePayee());
    ASSERT_TRUE(written.LoadPayeeInfo(loaded.payeeID));
    EXPECT_EQ(written.phone + u' ' + db::dateText(written.lastPurchaseDate),
              u"555-0100 2024-03-01 09:30:00"_s);
    EXPECT_EQ(db::select(u"SELECT * FROM tblPayee"_s).size(), 1);

    // A key whose row is gone changes nothing and still succeeds.
    Payee gone = written;
    gone.payeeID = written.payeeID + 1;
    gone.payeeName = u"Nobody"_s;
    EXPECT_TRUE(gone.WritePayee());
    EXPECT_EQ(db::select(u"SELECT * FROM tblPayee WHERE payeeName = 'Nobody'"_s).size(), 0);

    addLine(written.payeeID, {.due = "5"});
    EXPECT_TRUE(Payee().DeletePayee(written.payeeID));
    EXPECT_FALSE(Payee().LoadPayeeInfo(written.payeeID));
    EXPECT_EQ(db::select(u"SELECT * FROM tblReceipt"_s).size(), 1) << "receipts stay";
}

// Four columns may be Null and keep the field; any other Null fails.
TEST_F(PayeeTest, LoadKeepsFieldsOnNullsAndOnAMissingRow) {
    const qint32 id = addPayee(u"Ann"_s);
    db::execute(u"UPDATE tblPayee SET address1 = 'a', city = 'c', state = 's', zip = 'z'"_s);
    Payee payee;
    payee.address2 = u"kept 2"_s;
    payee.phone = u"kept phone"_s;
    payee.email = u"kept@example.com"_s;
    ASSERT_TRUE(payee.LoadPayeeInfo(id));
    EXPECT_EQ(payee.address2 + payee.phone + payee.email, u"kept 2kept phonekept@example.com"_s);
    EXPECT_EQ(payee.lastPurchaseDate, Payee::zeroDate);

    EXPECT_FALSE(payee.LoadPayeeInfo(id + 1));
    EXPECT_EQ(payee.payeeName, u"Ann"_s);

    db::execute(u"UPDATE tblPayee SET payeeName = 'Bob', city = NULL"_s);
    const BriskoError error = errorOf([&] { payee.LoadPayeeInfo(id); });
    EXPECT_EQ(error.description(), u"Payee.loadPayeeInfo:  Invalid use of Null"_s);
    EXPECT_EQ(payee.payeeName, u"Ann"_s);

    // A Null amount fails the balance, even on a void row.
    const qint32 receiptID = addLine(id, {.due = "100", .status = Receipt::Void});
    db::execute(u"UPDATE tblReceipt SET amountTax = NULL WHERE receiptID = ?"_s, {receiptID});
    const BriskoError balance = errorOf([&] { Payee().GetPayeeBalance(id); });
    EXPECT_EQ(balance.number(), RuntimeError::InvalidUseOfNull);
    EXPECT_EQ(balance.description(), u"Payee.loadPayeeInfo:  Invalid use of Null"_s);
}

// The balance and the name search read their columns from an index alone,
// the search a range of names in order.
TEST_F(PayeeTest, TheBalanceAndTheNameSearchUseTheirIndexes) {
    EXPECT_EQ(planOf(u"SELECT amountReceived, amountTax, amountOther, amountDiscount, amountDue, "
                     "receiptType, status FROM tblReceipt WHERE payeeID = ? AND receiptType <> 4"_s,
                     {7}),
              u"SEARCH tblReceipt USING COVERING INDEX idxReceiptPayee (payeeID=?)"_s);
    EXPECT_EQ(planOf(u"SELECT payeeID, payeeName, address1, city, state, phone FROM tblPayee "
                     "WHERE payeeName LIKE ? ESCAPE '\\' ORDER BY payeeName"_s,
                     {u"o\\'b%"_s}),
              u"SEARCH tblPayee USING COVERING INDEX idxPayeeName (payeeName>? AND payeeName<?)"_s);
}

} // namespace

#include "receipttestbase.h"

#include "app/company.h"
#include "support/testhelpers.h"

using namespace Qt::Literals::StringLiterals;

using ReceiptRecordTest = ReceiptTest;

TEST_F(ReceiptRecordTest, InsertSetsKeyThenUpdateKeepsKeyAndNumber) {
    Receipt receipt = issuedReceipt(u"00042"_s, at(2013, 10, 25));
    receipt.amountDue = Currency::fromText(u"12.5"_s);
    ASSERT_TRUE(receipt.writeReceipt());
    const qint32 key = receipt.receiptID;
    EXPECT_GT(key, 0);
    EXPECT_EQ(receipt.getLastReceiptID(), key);

    receipt.receiptNumber = u"99999"_s;
    receipt.status = Receipt::Void;
    receipt.voidReason = u"Typed twice"_s;
    receipt.amountDue = Currency::fromText(u"7.25"_s);
    ASSERT_TRUE(receipt.writeReceipt());
    EXPECT_EQ(receipt.receiptID, key);
    EXPECT_EQ(Receipt().GetReceiptCount(), 1);

    Receipt stored;
    ASSERT_TRUE(stored.GetReceipt(key, {}));
    EXPECT_EQ(stored.receiptNumber, u"00042"_s);
    EXPECT_EQ(stored.status, Receipt::Void);
    EXPECT_EQ(stored.voidReason, u"Typed twice"_s);
    EXPECT_EQ(stored.amountDue, Currency::fromText(u"7.25"_s));
    EXPECT_EQ(stored.receiptDate, at(2013, 10, 25));
}

TEST_F(ReceiptRecordTest, GetReceiptByNumberOrKeyAndNotFound) {
    const qint32 first = saved(issuedReceipt(u"13-07"_s, at(2013, 10, 25)));
    const qint32 second = saved(issuedReceipt(u"13-08"_s, at(2013, 10, 26)));

    Receipt byNumber;
    ASSERT_TRUE(byNumber.GetReceipt(0, u"13-08"_s));
    EXPECT_EQ(byNumber.receiptID, second);

    // A key of 1 or more wins over the number.
    Receipt byKey;
    ASSERT_TRUE(byKey.GetReceipt(first, u"13-08"_s));
    EXPECT_EQ(byKey.receiptNumber, u"13-07"_s);

    Receipt untouched = issuedReceipt(u"kept"_s, at(2001, 1, 1));
    untouched.receiptID = 77;
    untouched.amountTax = Currency::fromInt(3);
    EXPECT_FALSE(untouched.GetReceipt(0, u"13-99"_s));
    EXPECT_FALSE(untouched.GetReceipt(second + 10, {}));
    EXPECT_FALSE(untouched.GetReceipt(0, {}));
    EXPECT_EQ(untouched.receiptID, 77);
    EXPECT_EQ(untouched.receiptNumber, u"kept"_s);
    EXPECT_EQ(untouched.amountTax, Currency::fromInt(3));
}

TEST_F(ReceiptRecordTest, NullColumnsOfOldRows) {
    const qint32 key = saved(issuedReceipt(u"old"_s, at(2013, 10, 25)));
    db::execute(u"UPDATE tblReceipt SET checkNumber = NULL, accountBalance = NULL, "
                "serviceID = NULL, voidReason = NULL WHERE receiptID = ?"_s,
                {key});

    Receipt receipt;
    receipt.checkNumber = u"stale"_s;
    receipt.accountBalance = Currency::fromInt(5);
    receipt.serviceID = 3;
    receipt.voidReason = u"kept"_s;
    ASSERT_TRUE(receipt.GetReceipt(key, {}));
    EXPECT_EQ(receipt.checkNumber, u""_s);
    EXPECT_EQ(receipt.accountBalance, Currency::fromInt(5));
    EXPECT_EQ(receipt.serviceID, 3);
    EXPECT_EQ(receipt.voidReason, u"kept"_s);

    db::execute(u"UPDATE tblReceipt SET receivedBy = NULL WHERE receiptID = ?"_s, {key});
    Receipt failing;
    const BriskoError error = errorOf([&] { failing.GetReceipt(key, {}); });
    EXPECT_EQ(error.description(), u"Receipt.getReceipt:  Invalid use of Null"_s);
    EXPECT_EQ(error.number(), RuntimeError::InvalidUseOfNull);
    EXPECT_EQ(failing.receiptID, 0);
}

TEST_F(ReceiptRecordTest, LinesDeletesAndReassignment) {
    const qint32 alice = addPayee(u"Alice"_s);
    const qint32 bob = addPayee(u"Bob"_s);
    const qint32 first = saved(issuedReceipt(u"1"_s, at(2013, 10, 25), alice));
    saved(issuedReceipt(u"2"_s, at(2013, 10, 25), alice));
    Receipt receipt;
    receipt.writeReceiptProducts(first, 1, 1, Currency::fromInt(2), u"Line"_s, {});

    EXPECT_EQ(receipt.ReassignReceipts(alice, bob), 2);
    EXPECT_EQ(receipt.ReassignReceipts(alice, bob), 0);
    EXPECT_TRUE(receipt.DeletePayeeReceipts(alice));

    // Deleting a receipt leaves its lines; removing the lines is a step of its own.
    EXPECT_TRUE(receipt.deleteReceipt(first));
    EXPECT_EQ(receipt.getReceiptProducts(first).size(), 1);
    EXPECT_TRUE(receipt.removeReceiptProducts(first));
    EXPECT_TRUE(receipt.getReceiptProducts(first).isEmpty());

    EXPECT_TRUE(receipt.DeletePayeeReceipts(bob));
    EXPECT_EQ(receipt.getLastReceiptID(), 0);
    EXPECT_EQ(receipt.GetReceiptCount(), 0);

    ASSERT_TRUE(receipt.writeReceiptProducts(9, 4, 3, Currency::fromText(u"1.25"_s), u"Nails"_s,
                                             u"Galvanised"_s));
    const auto row = db::readFirst(
        u"SELECT unitTotal, typeof(unitTotal) AS kind FROM tblReceipt_Product WHERE receiptID = 9"_s);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->value(u"kind"_s).toString(), u"integer"_s);
    EXPECT_EQ(row->value(u"unitTotal"_s).toLongLong(), 37500);
}

TEST_F(ReceiptRecordTest, FilterByStatusSortByNameAndKeepTheirKeys) {
    Receipt receipt;
    const qint32 id = receipt.WritePaymentMethod(0, u"Gift Card"_s, Receipt::PayMethodInactive);
    EXPECT_EQ(id, 6);
    EXPECT_EQ(receipt.WritePaymentMethod(id, u"gift card"_s, Receipt::PayMethodActive), id);
    EXPECT_EQ(receipt.GetPaymentMethods(Receipt::PayMethodActive).size(), 6);
    EXPECT_EQ(receipt.GetPaymentMethods(Receipt::PayMethodInactive).size(), 0);
    EXPECT_EQ(receipt.GetPaymentMethods(Receipt::AllPayMethods).at(3).text(u"methodName"_s),
              u"gift card"_s);
    EXPECT_FALSE(receipt.PaymentTypeIsUsed(id));

    db::execute(u"DROP TABLE tblReceipt"_s);
    EXPECT_TRUE(errorOf([&] { receipt.PaymentTypeIsUsed(id); })
                    .description()
                    .startsWith(u"Receipt.DeletePaymentMethod:  "_s));
}

TEST_F(ReceiptRecordTest, NumberFormatsRenderOrWithoutBracketsEndTheProgram) {
    const struct {
        QString format, number, expected;
    } examples[] = {
        {u"yy-[00]"_s, u"7"_s, u"13-07"_s},    {u"mmyy [0000]"_s, u"123"_s, u"1013 0123"_s},
        {u"[00000]"_s, u"42"_s, u"00042"_s},   {u"[000]-yyyy"_s, u"1234"_s, u"1234-2013"_s},
        {u"yy-[00]"_s, u"100"_s, u"13-100"_s}, {u"[00]]"_s, u"5"_s, u"05]"_s},
        {u"[00000]"_s, u"-1"_s, u"-00001"_s},
    };
    for (const auto &example : examples) {
        company().numberFormat = example.format;
        EXPECT_EQ(modMain::formatReceiptNumber(example.number, QDate(2013, 10, 25)),
                  example.expected);
    }
    EXPECT_TRUE(boxes().shown.isEmpty());

    const QStringList formats = {u"00000"_s, u"yy-[00"_s, u"yy-]00["_s};
    QStringList expected;
    for (const QString &format : formats) {
        company().numberFormat = format;
        EXPECT_EQ(modMain::formatReceiptNumber(u"7"_s, QDate(2013, 10, 25)), QString());
        expected.append(u"Error | Invalid receipt number format:  "_s + format +
                        u".  This program can not continue | Critical"_s);
    }
    EXPECT_EQ(boxes().lines(), expected);
    EXPECT_EQ(process().endProgramCalls, 3);
}

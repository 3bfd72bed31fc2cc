#include "receipttestbase.h"
#include "support/testhelpers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using PaymentMethodTest = ReceiptTest;

TEST_F(PaymentMethodTest, FilterByStatusSortByNameAndKeepTheirKeys) {
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

} // namespace

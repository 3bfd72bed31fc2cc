#include "app/runtimeformat.h"
#include "support/testhelpers.h"

#include <gtest/gtest.h>

namespace {

TEST(FormatNumber, TaxProductsRoundHalfUpOnTheSecondDecimal) {
    EXPECT_EQ(Runtime::formatNumber(105 * (6.5 / 100), "0.00"), "6.83");
    const double heldBelowTheHalf = 3 * (7.5 / 100);
    ASSERT_LT(heldBelowTheHalf, 0.225);
    EXPECT_EQ(Runtime::formatNumber(heldBelowTheHalf, "0.00"), "0.23");
    EXPECT_EQ(Runtime::formatNumber(Currency::fromText("6.825"), "0.00"), "6.83");
    EXPECT_EQ(Runtime::formatNumber(Currency::fromText("-6.825"), "0.00"), "-6.83");
}

TEST(FormatNumber, Patterns) {
    struct Case {
        double value;
        const char *pattern;
        const char *expected;
    };
    const Case cases[] = {{1234.5, "#,##0.00", "1,234.50"},
                          {0, "#,##0.00", "0.00"},
                          {-1234.5, "#,##0.00", "-1,234.50"},
                          {999.999, "#,##0.00", "1,000.00"},
                          {0, "#,###.00", ".00"},
                          {1234.5, "#,###.00", "1,234.50"},
                          {-0.001, "0.00", "0.00"},
                          {-6.825, "0.00", "-6.83"},
                          {6.5, "0.000", "6.500"},
                          {42, "00000", "00042"},
                          {123, "00", "123"},
                          {-1, "00", "-01"}};
    for (const Case &c : cases)
        EXPECT_EQ(Runtime::formatNumber(c.value, c.pattern), c.expected)
            << c.value << " with " << c.pattern;
}

TEST(FormatDate, ReceiptNumberQueryShortAndGeneralDates) {
    const QDate date(2013, 10, 25);
    EXPECT_EQ(Runtime::formatDate(date, "mm/dd/yyyy"), "10/25/2013");
    EXPECT_EQ(Runtime::formatDate(date, "yy-"), "13-");
    EXPECT_EQ(Runtime::formatDate(date, "mmyy "), "1013 ");
    EXPECT_EQ(Runtime::formatDate(date, "-YYYY"), "-2013");
    EXPECT_EQ(Runtime::formatDate(QDate(2009, 3, 5), "mm/dd/yy"), "03/05/09");
    EXPECT_EQ(Runtime::formatDate(QDate(2009, 3, 5), "m/d/yyyy"), "3/5/2009");

    EXPECT_EQ(Runtime::shortDate(QDate(2009, 3, 5)), "3/5/2009");
    EXPECT_EQ(Runtime::parseShortDate("03/05/2009"), QDate(2009, 3, 5));
    EXPECT_EQ(Runtime::parseShortDate("2009-03-05"), QDate(2009, 3, 5));
    EXPECT_FALSE(Runtime::parseShortDate("13/45/2009").isValid());
    EXPECT_EQ(Runtime::generalDate(QDateTime(date, QTime(0, 0))), "10/25/2013");
    EXPECT_EQ(Runtime::generalDate(QDateTime(date, QTime(15, 4, 5))), "10/25/2013 3:04:05 PM");
}

TEST(Conversions, WholeNumbersRoundHalfToEvenAndOtherTypes) {
    EXPECT_EQ(Runtime::toInt32("12.5"), 12);
    EXPECT_EQ(Runtime::toInt32("13.5"), 14);
    EXPECT_EQ(Runtime::toInt32("-2.5"), -2);
    EXPECT_EQ(Runtime::toInt32("1,500"), 1500);
    EXPECT_EQ(errorOf([] { Runtime::toInt32("99999999999"); }).number(), RuntimeError::Overflow);
    EXPECT_EQ(errorOf([] { Runtime::toInt16("32768"); }).number(), RuntimeError::Overflow);
    EXPECT_EQ(errorOf([] { Runtime::toInt32("12a"); }).number(), RuntimeError::TypeMismatch);
    EXPECT_TRUE(Runtime::toBoolean("-1"));
    EXPECT_FALSE(Runtime::toBoolean("false"));
    EXPECT_EQ(errorOf([] { Runtime::toBoolean("yes"); }).number(), RuntimeError::TypeMismatch);
    EXPECT_DOUBLE_EQ(Runtime::toDouble("-1,234.5"), -1234.5);
    EXPECT_EQ(Runtime::defaultText(0.1 + 0.2), "0.3");
    EXPECT_EQ(Runtime::defaultText(12.5), "12.5");

    for (const char *text : {"1,234.50", "-3", " 42 ", ".5", "2.5E-2"})
        EXPECT_TRUE(Runtime::isNumeric(text)) << text;
    for (const char *text : {"", " ", "12a", "7.5%", ".", "1.2.3", ",5", "$5"})
        EXPECT_FALSE(Runtime::isNumeric(text)) << text;
}

} // namespace

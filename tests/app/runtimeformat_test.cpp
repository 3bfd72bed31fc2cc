#include "app/briskoerror.h"
#include "app/runtimeformat.h"

#include <QLocale>
#include <gtest/gtest.h>

namespace {

template <typename Body> int errorNumberOf(Body &&body) {
    try {
        body();
    } catch (const BriskoError &error) {
        return error.number();
    }
    return 0;
}

TEST(FormatNumber, TaxProductsRoundHalfUpOnTheSecondDecimal) {
    EXPECT_EQ(Runtime::formatNumber(105 * (6.5 / 100), "0.00"), "6.83");
    const double heldBelowTheHalf = 3 * (7.5 / 100);
    ASSERT_LT(heldBelowTheHalf, 0.225);
    EXPECT_EQ(Runtime::formatNumber(heldBelowTheHalf, "0.00"), "0.23");
}

TEST(FormatNumber, Patterns) {
    struct Case {
        double value;
        const char *pattern;
        const char *expected;
    };
    const Case cases[] = {
        {1234.5, "#,##0.00", "1,234.50"},
        {0, "#,##0.00", "0.00"},
        {1234567.891, "#,##0.00", "1,234,567.89"},
        {-1234.5, "#,##0.00", "-1,234.50"},
        {999.999, "#,##0.00", "1,000.00"},
        {0, "#,###.00", ".00"},
        {0.5, "#,###.00", ".50"},
        {1234.5, "#,###.00", "1,234.50"},
        {-6.825, "0.00", "-6.83"},
        {-2.675, "0.00", "-2.68"},
        {-0.001, "0.00", "0.00"},
        {6.5, "0.000", "6.500"},
        {42, "00000", "00042"},
        {7, "00", "07"},
        {123, "00", "123"},
        {-1, "00", "-01"},
        {2.5, "0", "3"},
        {1.5, "0.0#", "1.5"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(Runtime::formatNumber(c.value, c.pattern), c.expected)
            << c.value << " with " << c.pattern;
}

TEST(FormatNumber, CurrencyIsFormattedFromItsExactDigits) {
    EXPECT_EQ(Runtime::formatNumber(Currency::fromText("6.825"), "0.00"), "6.83");
    EXPECT_EQ(Runtime::formatNumber(Currency::fromText("-6.825"), "0.00"), "-6.83");
    EXPECT_EQ(Runtime::formatNumber(Currency::fromText("922337203685477.5807"), "#,##0.00"),
              "922,337,203,685,477.58");
}

TEST(FormatNumber, NumericTextIsFormattedOtherTextReturned) {
    EXPECT_EQ(Runtime::formatNumber(QString("123"), "0000"), "0123");
    EXPECT_EQ(Runtime::formatNumber(QString("-1"), "00"), "-01");
    EXPECT_EQ(Runtime::formatNumber(QString("abc"), "0000"), "abc");
}

TEST(FormatDate, ReceiptNumberAndQueryPatterns) {
    const QDate date(2013, 10, 25);
    EXPECT_EQ(Runtime::formatDate(date, "mm/dd/yyyy"), "10/25/2013");
    EXPECT_EQ(Runtime::formatDate(date, "yy-"), "13-");
    EXPECT_EQ(Runtime::formatDate(date, "mmyy "), "1013 ");
    EXPECT_EQ(Runtime::formatDate(date, "-yyyy"), "-2013");
    EXPECT_EQ(Runtime::formatDate(date, "MM/DD/YYYY"), "10/25/2013");
    EXPECT_EQ(Runtime::formatDate(QDate(2009, 3, 5), "mm/dd/yy"), "03/05/09");
    EXPECT_EQ(Runtime::formatDate(QDate(2009, 3, 5), "m/d/yyyy"), "3/5/2009");
}

TEST(Conversions, LooseNumericTest) {
    for (const char *text : {"1,234.50", "-3", " 42 ", "+7", "5.", ".5", "1e3", "2.5E-2"})
        EXPECT_TRUE(Runtime::isNumeric(text)) << text;
    for (const char *text : {"", " ", "12a", "7.5%", ".", "-", "1.2.3", ",5", "1e", "$5"})
        EXPECT_FALSE(Runtime::isNumeric(text)) << text;
}

TEST(Conversions, WholeNumbersRoundHalfToEven) {
    EXPECT_EQ(Runtime::toInt32("12.5"), 12);
    EXPECT_EQ(Runtime::toInt32("13.5"), 14);
    EXPECT_EQ(Runtime::toInt32("12.51"), 13);
    EXPECT_EQ(Runtime::toInt32("-2.5"), -2);
    EXPECT_EQ(Runtime::toInt32("-3"), -3);
    EXPECT_EQ(Runtime::toInt32("1,500"), 1500);
    EXPECT_EQ(Runtime::toInt32("-2147483648"), std::numeric_limits<qint32>::min());
    EXPECT_EQ(errorNumberOf([] { Runtime::toInt32("99999999999"); }), RuntimeError::Overflow);
    EXPECT_EQ(errorNumberOf([] { Runtime::toInt32("12a"); }), RuntimeError::TypeMismatch);
    EXPECT_EQ(Runtime::toInt16("32767"), 32767);
    EXPECT_EQ(errorNumberOf([] { Runtime::toInt16("32768"); }), RuntimeError::Overflow);
}

TEST(Conversions, BooleanAndDouble) {
    EXPECT_TRUE(Runtime::toBoolean("TRUE"));
    EXPECT_FALSE(Runtime::toBoolean("false"));
    EXPECT_TRUE(Runtime::toBoolean("-1"));
    EXPECT_FALSE(Runtime::toBoolean("0.0"));
    EXPECT_EQ(errorNumberOf([] { Runtime::toBoolean("yes"); }), RuntimeError::TypeMismatch);
    EXPECT_DOUBLE_EQ(Runtime::toDouble("6.5"), 6.5);
    EXPECT_DOUBLE_EQ(Runtime::toDouble("-1,234.5"), -1234.5);
    EXPECT_EQ(errorNumberOf([] { Runtime::toDouble("7.5%"); }), RuntimeError::TypeMismatch);
}

TEST(Conversions, DefaultTextOfDouble) {
    EXPECT_EQ(Runtime::defaultText(12.5), "12.5");
    EXPECT_EQ(Runtime::defaultText(7.25), "7.25");
    EXPECT_EQ(Runtime::defaultText(3), "3");
    EXPECT_EQ(Runtime::defaultText(0.1 + 0.2), "0.3");
    EXPECT_EQ(Runtime::defaultText(-0.0), "0");
}

class DefaultDateText : public ::testing::Test {
protected:
    void SetUp() override { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void TearDown() override { QLocale::setDefault(m_saved); }

private:
    QLocale m_saved;
};

TEST_F(DefaultDateText, ShortDateHasAFourDigitYearAndReadsBack) {
    EXPECT_EQ(Runtime::shortDate(QDate(2013, 10, 25)), "10/25/2013");
    EXPECT_EQ(Runtime::shortDate(QDate(2009, 3, 5)), "3/5/2009");
    EXPECT_EQ(Runtime::parseShortDate("10/25/2013"), QDate(2013, 10, 25));
    EXPECT_EQ(Runtime::parseShortDate("03/05/2009"), QDate(2009, 3, 5));
    EXPECT_EQ(Runtime::parseShortDate("2009-03-05"), QDate(2009, 3, 5));
    EXPECT_FALSE(Runtime::parseShortDate("13/45/2009").isValid());
    EXPECT_EQ(Runtime::formatDate(QDate(2013, 10, 25), "dddd, mmmm d"), "Friday, October 25");
}

TEST_F(DefaultDateText, GeneralDateShowsTimeOnlyAfterMidnight) {
    const QDate date(2013, 10, 25);
    EXPECT_EQ(Runtime::generalDate(QDateTime(date, QTime(0, 0))), "10/25/2013");
    EXPECT_EQ(Runtime::generalDate(QDateTime(date, QTime(15, 4, 5))), "10/25/2013 3:04:05 PM");
}

} // namespace

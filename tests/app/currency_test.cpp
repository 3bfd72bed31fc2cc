#include "app/briskoerror.h"
#include "app/currency.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

template <typename Body> int errorNumberOf(Body &&body) {
    try {
        body();
    } catch (const BriskoError &error) {
        return error.number();
    }
    return 0;
}

TEST(Currency, ManySmallAmountsAddUpExactly) {
    const Currency cent = Currency::fromText("0.01");
    Currency sum;
    for (int i = 0; i < 10000; ++i)
        sum += cent;
    EXPECT_EQ(sum, Currency::fromInt(100));
    EXPECT_EQ(Currency::fromText("1.25") * 3, Currency::fromText("3.75"));
    EXPECT_EQ(Currency::fromText("0.1") + Currency::fromText("0.2") - Currency::fromText("0.3"),
              Currency());
}

TEST(Currency, ReadsLooseNumericText) {
    EXPECT_EQ(Currency::fromText("1,234.50").units(), 12345000);
    EXPECT_EQ(Currency::fromText("-3").units(), -30000);
    EXPECT_EQ(Currency::fromText(" 12.5 ").units(), 125000);
    EXPECT_EQ(Currency::fromText("1e3").units(), 10000000);
}

TEST(Currency, RoundsHalfAwayFromZeroToFourDecimals) {
    EXPECT_EQ(Currency::fromText("6.825").units(), 68250);
    EXPECT_EQ(Currency::fromText("1.00005").units(), 10001);
    EXPECT_EQ(Currency::fromText("-1.00005").units(), -10001);
    EXPECT_EQ(Currency::fromText("1.00004999").units(), 10000);
    EXPECT_EQ(Currency::fromDouble(6.825).units(), 68250);
    // 0.00015 is held just below the half; its 15 significant digits restore it.
    EXPECT_EQ(Currency::fromDouble(0.00015).units(), 2);
    EXPECT_EQ(Currency::fromDouble(-0.00015).units(), -2);
}

TEST(Currency, DefaultTextDropsTrailingZeros) {
    EXPECT_EQ(Currency::fromText("12.50").toString(), "12.5");
    EXPECT_EQ(Currency::fromInt(3).toString(), "3");
    EXPECT_EQ(Currency::fromText("-0.25").toString(), "-0.25");
    EXPECT_EQ(Currency().toString(), "0");
    EXPECT_EQ(Currency::fromText("1234567.0001").toString(), "1234567.0001");
    EXPECT_EQ(Currency::fromUnits(std::numeric_limits<qint64>::min()).toString(),
              "-922337203685477.5808");
}

TEST(Currency, LeavingTheRangeRaisesOverflow) {
    const Currency largest = Currency::fromUnits(std::numeric_limits<qint64>::max());
    const Currency smallest = Currency::fromUnits(std::numeric_limits<qint64>::min());
    EXPECT_EQ(Currency::fromText("922337203685477.5807"), largest);
    EXPECT_EQ(errorNumberOf([] { Currency::fromText("922337203685477.5808"); }),
              RuntimeError::Overflow);
    EXPECT_EQ(errorNumberOf([] { Currency::fromText("1e20"); }), RuntimeError::Overflow);
    EXPECT_EQ(errorNumberOf([] { Currency::fromDouble(1e300); }), RuntimeError::Overflow);
    EXPECT_EQ(errorNumberOf([] { Currency::fromInt(std::numeric_limits<qint64>::max() / 1000); }),
              RuntimeError::Overflow);
    EXPECT_EQ(errorNumberOf([&] { (void)(largest + Currency::fromUnits(1)); }),
              RuntimeError::Overflow);
    EXPECT_EQ(errorNumberOf([&] { (void)(smallest - Currency::fromUnits(1)); }),
              RuntimeError::Overflow);
    EXPECT_EQ(errorNumberOf([&] { (void)-smallest; }), RuntimeError::Overflow);
    EXPECT_EQ(errorNumberOf([&] { (void)(largest * 2); }), RuntimeError::Overflow);
}

TEST(Currency, TextThatIsNotNumericIsATypeMismatch) {
    for (const char *text : {"12a", "", "7.5%", "."})
        EXPECT_EQ(errorNumberOf([&] { Currency::fromText(text); }), RuntimeError::TypeMismatch)
            << text;
}

} // namespace

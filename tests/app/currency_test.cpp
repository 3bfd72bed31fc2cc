#include "app/currency.h"
#include "support/testhelpers.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>

namespace {

Currency money(const char *text) {
    return Currency::fromText(QString::fromLatin1(text));
}

TEST(Currency, ManySmallAmountsAddUpExactly) {
    Currency sum;
    for (int i = 0; i < 10000; ++i)
        sum += money("0.01");
    EXPECT_EQ(sum, Currency::fromInt(100));
    EXPECT_EQ(money("0.1") + money("0.2") - money("0.3"), Currency());
}

TEST(Currency, ReadsRoundsAndWritesTextOrFailsOutOfRangeOrOnOtherText) {
    EXPECT_EQ(money("1,234.50").units(), 12345000);
    EXPECT_EQ(money("-3").units(), -30000);
    EXPECT_EQ(money("1e3").units(), 10000000);
    // Half away from zero on the fourth decimal, from text and from a double.
    EXPECT_EQ(money("1.00005").units(), 10001);
    EXPECT_EQ(money("-1.00005").units(), -10001);
    EXPECT_EQ(Currency::fromDouble(0.00015).units(), 2); // held just below the half
    EXPECT_EQ(money("12.50").toString(), "12.5");
    EXPECT_EQ(Currency::fromUnits(std::numeric_limits<qint64>::min()).toString(),
              "-922337203685477.5808");

    const Currency largest = Currency::fromUnits(std::numeric_limits<qint64>::max());
    const Currency smallest = Currency::fromUnits(std::numeric_limits<qint64>::min());
    EXPECT_EQ(money("922337203685477.5807"), largest);
    for (const auto &overflowing : std::initializer_list<std::function<void()>>{
             [] { money("922337203685477.5808"); }, [] { Currency::fromDouble(1e300); },
             [&] { (void)(largest + Currency::fromUnits(1)); },
             [&] { (void)(smallest - Currency::fromUnits(1)); }, [&] { (void)-smallest; },
             [&] { (void)(largest * 2); }})
        EXPECT_EQ(errorOf(overflowing).number(), RuntimeError::Overflow);
    for (const char *text : {"12a", "", "7.5%", "."})
        EXPECT_EQ(errorOf([&] { money(text); }).number(), RuntimeError::TypeMismatch) << text;
}

} // namespace

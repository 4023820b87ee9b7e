#include "engine/values/Decimal.h"

#include "engine/ExpectError.h"
#include "engine/values/DecimalOfDigits.h"

#include <gtest/gtest.h>

#include <limits>

namespace engine {
namespace {

TEST(Decimals, OfMoreDigitsAreRefused) {
    EXPECT_EQ(decimal(kBeyond - 1, 0).kept(), 999999999999999.0);
    EXPECT_EQ(decimal(kBeyond - 1, kMostPlaces).kept(), 999999999999999e-22);
    for (const Decimal& number : {decimal(kBeyond, 0), decimal(-kBeyond, 0), decimal(kBeyond + 1, 3),
                                  decimal(1, kMostPlaces + 1), Decimal::of(std::int64_t{kBeyond})}) {
        EXPECT_FALSE(number.exact());
        EXPECT_EQ(errorNumberOf([&] { number.kept(); }), 40517);
    }
    EXPECT_EQ(decimal(kBeyond, 3).kept(), 1e12); // zeros at the end of a fraction are no digits
    for (const double number : {1e15, -1e15, 0.1 + 0.2, 1e-23, 1.0 / 3, std::numeric_limits<double>::infinity()}) {
        EXPECT_FALSE(Decimal::exactly(number)) << number;
        EXPECT_EQ(errorNumberOf([&] { Decimal::of(number); }), 40517) << number;
    }
}

TEST(Decimals, CountWithDigitsThatNoDoubleKeeps) {
    const Decimal wide = decimal(123456789012345, 5).times(decimal(987654321098765, 5));
    EXPECT_EQ(wide.text(), "12193263113702107135.9549253925");
    EXPECT_EQ(wide.rounded(4).text(), "12193263113702107135.9549");
    EXPECT_EQ(wide.over(decimal(3, 0), 10).text(), "4064421037900702378.6516417975");
    EXPECT_EQ(wide.modulo(decimal(7, 1)).text(), "0.6549253925");
    EXPECT_EQ(wide.plus(wide.negated()).text(), "0.0000000000");
    EXPECT_EQ(wide.whole(), std::nullopt);
    EXPECT_EQ(decimal(-19, 1).whole(), -1);
    EXPECT_EQ(decimal(1, 22).over(decimal(1000, 0), 1).text(), "0.0");
    for (const auto& count :
         {+[](const Decimal& n) { return n.times(n); }, +[](const Decimal& n) { return n.plus(decimal(1, 22)); },
          +[](const Decimal& n) { return n.over(decimal(1, 10), 10); },
          +[](const Decimal& n) { return n.modulo(decimal(1, 22)); }}) {
        EXPECT_EQ(errorNumberOf([&] { count(wide); }), 40517);
    }
}

TEST(Decimals, RoundHalfAwayFromZero) {
    EXPECT_EQ(decimal(25, 1).rounded(0).text(), "3");
    EXPECT_EQ(decimal(-25, 1).rounded(0).text(), "-3");
    EXPECT_EQ(decimal(2499, 3).rounded(0).text(), "2");
    EXPECT_EQ(decimal(1550, 0).rounded(-2).text(), "1600");
    EXPECT_EQ(decimal(49, 0).rounded(-2).text(), "0");
    EXPECT_EQ(decimal(5, 0).rounded(-40).text(), "0");
    EXPECT_EQ(decimal(25, 1).rounded(5).text(5), "2.50000");
}

TEST(Decimals, OfAFloatHaveFifteenDigits) {
    EXPECT_EQ(Decimal::ofFloat(0.1 + 0.2, 4).text(4), "0.3000");
    EXPECT_EQ(Decimal::ofFloat(2.675, 2).text(), "2.68");
    EXPECT_EQ(Decimal::ofFloat(0.1, 20).text(), "0.10000000000000000555");
    EXPECT_EQ(Decimal::ofFloat(1e20, 2).text(), "100000000000000000000.00");
    const DataType widest{DataType::Kind::Decimal, 0, 38, 0};
    EXPECT_TRUE(Decimal::ofFloat(1e37, 0).fits(widest));
    for (const double number : {1e38, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_FALSE(Decimal::ofFloat(number, 0).fits(widest)) << number;
    }
}

} // namespace
} // namespace engine

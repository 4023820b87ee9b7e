#include "ado/Conversions.h"

#include "ado/ExpectError.h"

#include <gtest/gtest.h>

#include <limits>

namespace ado {
namespace {

using test::raises;

struct NumberCase {
    const char* text;
    std::optional<double> number;
};

class NumberTexts : public ::testing::TestWithParam<NumberCase> {};

TEST_P(NumberTexts, ReadByItalianSettings) {
    const auto& [text, number] = GetParam();
    EXPECT_EQ(parseNumber(text), number) << text;
    EXPECT_EQ(isNumeric(text), number.has_value()) << text;
    if (number) {
        EXPECT_EQ(toDouble(text), *number) << text;
    } else {
        EXPECT_TRUE(raises(kTypeMismatch, [&, t = text] { toDouble(t); })) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(Table, NumberTexts,
                         ::testing::Values(NumberCase{"1.000", 1000}, NumberCase{"2,5", 2.5}, NumberCase{"2.5", 25},
                                           NumberCase{"-2", -2}, NumberCase{"2-", -2}, NumberCase{"(3)", -3},
                                           NumberCase{"1e3", 1000}, NumberCase{" 12 ", 12}, NumberCase{"€ 5", 5},
                                           NumberCase{"5 €", 5}, NumberCase{"€ -5", -5}, NumberCase{"(€ 5)", -5},
                                           NumberCase{"+7", 7}, NumberCase{"1.234.567,89", 1234567.89},
                                           NumberCase{",5", 0.5}, NumberCase{"5,", 5}, NumberCase{"1E-2", 0.01},
                                           NumberCase{"- 4", -4}, NumberCase{"007", 7}));

INSTANTIATE_TEST_SUITE_P(Refused, NumberTexts,
                         ::testing::Values(NumberCase{"", {}}, NumberCase{" ", {}}, NumberCase{",", {}},
                                           NumberCase{".", {}}, NumberCase{"45 x", {}}, NumberCase{"x45", {}},
                                           NumberCase{"1,2,3", {}}, NumberCase{"1,2.3", {}}, NumberCase{"--2", {}},
                                           NumberCase{"-2-", {}}, NumberCase{"(3", {}}, NumberCase{"3)", {}},
                                           NumberCase{"(-3)", {}}, NumberCase{"€€5", {}}, NumberCase{"1e", {}},
                                           NumberCase{"1e+", {}}, NumberCase{"1 2", {}}, NumberCase{"1e999", {}},
                                           NumberCase{"12/12/2020", {}}, NumberCase{"inf", {}}, NumberCase{"nan", {}}));

TEST(RegionalNumbers, FollowTheSettingsOfTheMachine) {
    const RegionalSettings italian = regionalSettings();
    regionalSettings().decimalSeparator = '.';
    regionalSettings().thousandsSeparator = ',';
    EXPECT_EQ(parseNumber("1,234.5"), 1234.5);
    EXPECT_EQ(toText(2.5), "2.5");
    EXPECT_EQ(formatFixed(1234.5, 2, true), "1,234.50");
    regionalSettings() = italian;
}

TEST(WholeNumbers, RoundHalfToEven) {
    EXPECT_EQ(toLong(0.5), 0);
    EXPECT_EQ(toLong(1.5), 2);
    EXPECT_EQ(toLong(2.5), 2);
    EXPECT_EQ(toLong(-1.5), -2);
    EXPECT_EQ(toLong("2,5"), 2);
    EXPECT_EQ(toInteger(3.5), 4);
}

TEST(WholeNumbers, RefuseWhatTheyCannotHold) {
    EXPECT_EQ(toInteger(32767.4), 32767);
    EXPECT_TRUE(raises(kOverflow, [] { toInteger(32767.5); }));
    EXPECT_TRUE(raises(kOverflow, [] { toInteger(-32769.0); }));
    EXPECT_EQ(toLong(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_TRUE(raises(kOverflow, [] { toLong(2147483648.0); }));
    EXPECT_TRUE(raises(kOverflow, [] { toLong(std::numeric_limits<double>::quiet_NaN()); }));
}

TEST(NullAndEmpty, AreNotTheSame) {
    EXPECT_TRUE(raises(kInvalidUseOfNull, [] { toDouble(Null{}); }));
    EXPECT_TRUE(raises(kInvalidUseOfNull, [] { toLong(Null{}); }));
    EXPECT_TRUE(raises(kInvalidUseOfNull, [] { toText(Null{}); }));
    EXPECT_TRUE(raises(kInvalidUseOfNull, [] { toBoolean(Null{}); }));
    EXPECT_TRUE(raises(kInvalidUseOfNull, [] { toDate(Null{}); }));
    EXPECT_EQ(toDouble(Value()), 0);
    EXPECT_EQ(toText(Value()), "");
    EXPECT_FALSE(toBoolean(Value()));
    EXPECT_FALSE(isNumeric(Null{}));
    EXPECT_FALSE(isDate(Null{}));
    EXPECT_TRUE(isNumeric(Value()));
}

TEST(Truth, IsMinusOneAndAnyNumberButZero) {
    EXPECT_EQ(toDouble(true), -1);
    EXPECT_EQ(toLong(true), -1);
    EXPECT_TRUE(toBoolean(2));
    EXPECT_TRUE(toBoolean(-0.1));
    EXPECT_FALSE(toBoolean(0.0));
    EXPECT_TRUE(toBoolean("Vero"));
    EXPECT_TRUE(toBoolean("TRUE"));
    EXPECT_FALSE(toBoolean("falso"));
    EXPECT_FALSE(toBoolean("False"));
    EXPECT_TRUE(toBoolean("0,5"));
    EXPECT_TRUE(raises(kTypeMismatch, [] { toBoolean("forse"); }));
    EXPECT_EQ(toText(true), "Vero");
    EXPECT_EQ(toText(false), "Falso");
}

TEST(TextOfANumber, HasFifteenDigitsAndTheDecimalComma) {
    EXPECT_EQ(toText(2.5), "2,5");
    EXPECT_EQ(toText(1000000.0), "1000000");
    EXPECT_EQ(toText(-0.0), "0");
    EXPECT_EQ(toText(0.1 + 0.2), "0,3");
    EXPECT_EQ(toText(1.0 / 3), "0,333333333333333");
    EXPECT_EQ(toText(123456789012345.0), "123456789012345");
    EXPECT_EQ(toText(1e15), "1E+15");
    EXPECT_EQ(toText(0.00001), "1E-05");
    EXPECT_EQ(toText(1.5F), "1,5");
    EXPECT_EQ(toText(0.1F), "0,1");
    EXPECT_EQ(toText(std::int32_t{-42}), "-42");
    EXPECT_EQ(toText(std::uint8_t{200}), "200");
    EXPECT_EQ(toText(Currency{12500}), "1,25");
    EXPECT_EQ(toText(Currency{-1}), "-0,0001");
    EXPECT_EQ(toText(Decimal{250, 2}), "2,5");
    EXPECT_EQ(toText(Decimal{-7, 0}), "-7");
}

TEST(PlainNumber, IsWhatTheServerReads) {
    EXPECT_EQ(plainNumber(1234567.5), "1234567.5");
    EXPECT_EQ(plainNumber(-0.25), "-0.25");
    EXPECT_EQ(plainNumber(0.1 + 0.2), "0.3");
    EXPECT_EQ(plainNumber(0), "0");
    EXPECT_EQ(plainNumber(-0.0), "0");
    EXPECT_EQ(plainNumber(1e20), "100000000000000000000");
    EXPECT_EQ(plainNumber(1e-7), "0.0000001");
}

TEST(FixedDecimals, RoundHalfAwayFromZero) {
    EXPECT_EQ(formatFixed(0.5, 0), "1");
    EXPECT_EQ(formatFixed(2.5, 0), "3");
    EXPECT_EQ(formatFixed(-2.5, 0), "-3");
    EXPECT_EQ(formatFixed(1.005, 2), "1,01");
    EXPECT_EQ(formatFixed(2.675, 2), "2,68");
    EXPECT_EQ(formatFixed(-0.001, 2), "0,00");
    EXPECT_EQ(formatFixed(9.995, 2), "10,00");
    EXPECT_EQ(formatFixed(0.05, 1), "0,1");
    EXPECT_EQ(formatFixed(0.04, 1), "0,0");
    EXPECT_EQ(formatFixed(12, 2), "12,00");
    EXPECT_EQ(formatFixed(1234567.891, 2), "1234567,89");
    EXPECT_EQ(formatFixed(1234567.891, 2, true), "1.234.567,89");
    EXPECT_EQ(formatFixed(123, 0, true), "123");
    EXPECT_EQ(formatFixed(-123456, 0, true), "-123.456");
}

} // namespace
} // namespace ado

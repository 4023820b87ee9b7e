#include "kit/IsEmptyValue.h"

#include "ado/Conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using vabo::IsEmptyValue;

namespace {

struct Case {
    const char* what;
    ado::Value value;
    bool empty;
};

TEST(IsEmptyValue, GoesByTheTypeOfTheValue) {
    const std::vector<Case> cases = {
        {"never set", ado::Value(), true},
        {"null", ado::Value(ado::Null{}), true},
        {"false", ado::Value(false), true},
        {"true", ado::Value(true), false},
        {"byte 0", ado::Value(std::uint8_t{0}), true},
        {"byte 1", ado::Value(std::uint8_t{1}), false},
        {"16 bits 0", ado::Value(std::int16_t{0}), true},
        {"16 bits -1", ado::Value(std::int16_t{-1}), false},
        {"32 bits 0", ado::Value(std::int32_t{0}), true},
        {"32 bits 7", ado::Value(std::int32_t{7}), false},
        {"single 0", ado::Value(0.0F), true},
        {"single", ado::Value(0.5F), false},
        {"double 0.0", ado::Value(0.0), true},
        {"double -0.0", ado::Value(-0.0), true},
        {"double -0.01", ado::Value(-0.01), false},
        {"currency 0", ado::Value(ado::Currency{0}), true},
        {"currency 0.0001", ado::Value(ado::Currency{1}), false},
        {"decimal 0.00", ado::Value(ado::Decimal{0, 2}), true},
        {"decimal 0.01", ado::Value(ado::Decimal{1, 2}), false},
        {"a day", ado::Value(ado::Date::of(2004, 3, 7)), false},
        {"a day with a time", ado::Value(ado::Date::of(2004, 3, 7, 12, 30)), false},
        {"the zero date", ado::Value(ado::Date::of(1899, 12, 30)), true},
        {"a time on the zero date", ado::Value(ado::Date::of(1899, 12, 30, 12, 30)), false},
        {"the day behind the zero date", ado::Value(ado::Date::of(1899, 12, 31)), false},
        {"text", ado::Value("x"), false},
        {"no text", ado::Value(""), true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(IsEmptyValue(c.value), c.empty) << c.what;
    }
}

class EmptyText : public testing::TestWithParam<const char*> {};

TEST_P(EmptyText, CountsAsNothing) {
    EXPECT_TRUE(IsEmptyValue(std::string(GetParam())));
    EXPECT_TRUE(IsEmptyValue(ado::Value(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(IsEmptyValue, EmptyText,
                         testing::Values("", " ", "0,00", "0,000", "0,0000", "0,00000", "0,000000", ",00", "0", "00",
                                         "000", "0000", "0:00:00", "00/00/0000", "00/00/0000 0.00.00",
                                         "00/00/0000 12:30", "00/00/0000x"));

class FullText : public testing::TestWithParam<const char*> {};

TEST_P(FullText, CountsAsSomething) {
    EXPECT_FALSE(IsEmptyValue(std::string(GetParam())));
    EXPECT_FALSE(IsEmptyValue(ado::Value(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(IsEmptyValue, FullText,
                         testing::Values("  ", "\t", "0.00", "0,0", "0,0000000", "00000", "00:00:00", " 0", "0 ", "-0",
                                         "0.00.00", "00/00/000", " 00/00/0000", "0/0/0000", "1", "a", "è", "€"));

TEST(IsEmptyValue, TakesPlainNumbers) {
    EXPECT_TRUE(IsEmptyValue(0.0));
    EXPECT_TRUE(IsEmptyValue(0));
    EXPECT_FALSE(IsEmptyValue(-1));
    EXPECT_FALSE(IsEmptyValue(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(IsEmptyValue(std::numeric_limits<double>::denorm_min()));
}

} // namespace

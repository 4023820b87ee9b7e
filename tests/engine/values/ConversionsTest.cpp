#include "engine/values/Conversions.h"

#include "engine/ExpectError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace engine {
namespace {

using Kind = DataType::Kind;

DataType type(Kind kind) {
    DataType made;
    made.kind = kind;
    return made;
}

DataType decimal(int precision, int scale) {
    DataType made = type(Kind::Decimal);
    made.precision = precision;
    made.scale = scale;
    return made;
}

struct IntegerCase {
    const char* text;
    Kind kind;
    std::string result;
};

TEST(IntegerOfText, ReadsOrRefusesAsTheServer) {
    const std::string notInt = "245 Conversion failed when converting the varchar value '";
    const IntegerCase cases[] = {
        {"12", Kind::Int, "12"},
        {"  12  ", Kind::Int, "12"},
        {"-7", Kind::Int, "-7"},
        {"+7", Kind::Int, "7"},
        {"", Kind::Int, "0"},
        {"   ", Kind::Int, "0"},
        {"-", Kind::Int, "0"},
        {"007", Kind::Int, "7"},
        {"2147483647", Kind::Int, "2147483647"},
        {"-2147483648", Kind::Int, "-2147483648"},
        {"1.5", Kind::Int, notInt + "1.5' to data type int."},
        {"1,5", Kind::Int, notInt + "1,5' to data type int."},
        {" x ", Kind::Int, notInt + " x ' to data type int."},
        {"1e3", Kind::Int, notInt + "1e3' to data type int."},
        {"1 2", Kind::Int, notInt + "1 2' to data type int."},
        {"--1", Kind::Int, notInt + "--1' to data type int."},
        {"2147483648", Kind::Int, "248 The conversion of the varchar value '2147483648' overflowed an int column."},
        {"99999999999999999999", Kind::Int,
         "248 The conversion of the varchar value '99999999999999999999' overflowed an int column."},
        {"256", Kind::TinyInt,
         "244 The conversion of the varchar value '256' overflowed an INT1 column. Use a larger integer column."},
        {"-1", Kind::TinyInt,
         "244 The conversion of the varchar value '-1' overflowed an INT1 column. Use a larger integer column."},
        {"40000", Kind::SmallInt,
         "244 The conversion of the varchar value '40000' overflowed an INT2 column. Use a larger integer column."},
        {"9223372036854775807", Kind::BigInt, "9223372036854775807"},
        {"x", Kind::BigInt, "8114 Error converting data type varchar to bigint."},
        {"9223372036854775808", Kind::BigInt,
         "8115 Arithmetic overflow error converting expression to data type bigint."},
        {"x", Kind::SmallInt, notInt + "x' to data type smallint."},
    };
    for (const IntegerCase& c : cases) {
        std::string result;
        const std::string error = errorOf([&] { result = integerText(toInteger(c.text, type(c.kind))); });
        EXPECT_EQ(result.empty() ? error : result, c.result) << '"' << c.text << '"';
    }
}

TEST(IntegerOfText, NamesTheTypeItCameFrom) {
    EXPECT_EQ(errorOf([] { toInteger("abc", type(Kind::Int), "nvarchar"); }),
              "245 Conversion failed when converting the nvarchar value 'abc' to data type int.");
}

TEST(BitOfText, KnowsWordsAndNumbers) {
    EXPECT_EQ(toInteger("TRUE", type(Kind::Bit)), 1);
    EXPECT_EQ(toInteger(" true ", type(Kind::Bit)), 1);
    EXPECT_EQ(toInteger("False", type(Kind::Bit)), 0);
    EXPECT_EQ(toInteger("-1", type(Kind::Bit)), 1);
    EXPECT_EQ(toInteger("99999999999999999999", type(Kind::Bit)), 1);
    EXPECT_EQ(toInteger("000", type(Kind::Bit)), 0);
    EXPECT_EQ(toInteger("", type(Kind::Bit)), 0);
    EXPECT_EQ(errorOf([] { toInteger("vero", type(Kind::Bit)); }),
              "245 Conversion failed when converting the varchar value 'vero' to data type bit.");
    EXPECT_EQ(errorNumberOf([] { toInteger("1.5", type(Kind::Bit)); }), 245);
}

TEST(IntegerOfNumber, IsCutNotRounded) {
    EXPECT_EQ(toInteger(2.9, type(Kind::Int)), 2);
    EXPECT_EQ(toInteger(-2.9, type(Kind::Int)), -2);
    EXPECT_EQ(toInteger(255.9, type(Kind::TinyInt)), 255);
    EXPECT_EQ(toInteger(0.3, type(Kind::Bit)), 1);
    EXPECT_EQ(toInteger(std::int64_t{-5}, type(Kind::Bit)), 1);
    EXPECT_EQ(toInteger(std::int64_t{0}, type(Kind::Bit)), 0);
}

TEST(IntegerOfNumber, OutsideTheRangeIsRefused) {
    const std::string overflow = "8115 Arithmetic overflow error converting expression to data type ";
    EXPECT_EQ(errorOf([] { toInteger(2147483648.5, type(Kind::Int)); }),
              "232 Arithmetic overflow error for type int, value = 2147483648.500000.");
    EXPECT_EQ(errorOf([] { toInteger(-1.0, type(Kind::TinyInt)); }),
              "232 Arithmetic overflow error for type tinyint, value = -1.000000.");
    EXPECT_EQ(errorOf([] { toInteger(0x1p63, type(Kind::BigInt)); }), overflow + "bigint.");
    EXPECT_EQ(errorOf([] { toInteger(std::nan(""), type(Kind::BigInt)); }), overflow + "bigint.");
    EXPECT_EQ(errorOf([] { toInteger(std::int64_t{2147483648}, type(Kind::Int)); }), overflow + "int.");
    EXPECT_EQ(errorOf([] { toInteger(std::int64_t{300}, type(Kind::TinyInt)); }),
              "220 Arithmetic overflow error for data type tinyint, value = 300.");
    EXPECT_EQ(errorOf([] { toInteger(std::int64_t{-32769}, type(Kind::SmallInt)); }),
              "220 Arithmetic overflow error for data type smallint, value = -32769.");
}

struct DecimalCase {
    const char* text;
    int precision, scale;
    const char* result;
};

TEST(DecimalOfText, RoundsHalfAwayFromZero) {
    const std::string notNumeric = "8114 Error converting data type varchar to numeric.";
    const std::string overflow = "8115 Arithmetic overflow error converting varchar to data type numeric.";
    const DecimalCase cases[] = {
        {"2.675", 18, 2, "2.68"},
        {"-2.675", 18, 2, "-2.68"},
        {"1.005", 18, 2, "1.01"},
        {"0.5", 18, 0, "1"},
        {"9.995", 3, 2, overflow.c_str()},
        {" 12 ", 18, 2, "12.00"},
        {".5", 18, 2, "0.50"},
        {"5.", 18, 2, "5.00"},
        {"-0.001", 18, 2, "0.00"},
        {"00012.5", 3, 1, "12.5"},
        {"100", 3, 1, overflow.c_str()},
        {"", 18, 2, notNumeric.c_str()},
        {"  ", 18, 2, notNumeric.c_str()},
        {"1,5", 18, 2, notNumeric.c_str()},
        {"1e3", 18, 2, notNumeric.c_str()},
        {".", 18, 2, notNumeric.c_str()},
        {"1.2.3", 18, 2, notNumeric.c_str()},
    };
    for (const DecimalCase& c : cases) {
        const DataType target = decimal(c.precision, c.scale);
        std::string result;
        const std::string error = errorOf([&] { result = Decimal::of(toDecimal(c.text, target)).text(c.scale); });
        EXPECT_EQ(result.empty() ? error : result, c.result) << '"' << c.text << '"';
    }
}

TEST(DecimalOfNumber, RoundsTheDecimalNotItsBinaryNeighbour) {
    EXPECT_EQ(toDecimal(2.675, decimal(18, 2)), 2.68);
    EXPECT_EQ(toDecimal(1.15 * 0.1, decimal(18, 2)), 0.12);
    EXPECT_EQ(toDecimal(0.1 + 0.2, decimal(18, 2)), 0.3);
    EXPECT_EQ(toDecimal(-0.5, decimal(18, 0)), -1);
    EXPECT_EQ(toDecimal(12345678901.3456, decimal(19, 4)), 12345678901.3456);
    EXPECT_EQ(toDecimal(0.0, decimal(18, 2)), 0);
    EXPECT_EQ(toDecimal(1e-300, decimal(18, 2)), 0);
    EXPECT_EQ(errorNumberOf([] { toDecimal(1000.0, decimal(5, 2)); }), 8115);
    EXPECT_EQ(errorNumberOf([] { toDecimal(999.995, decimal(5, 2)); }), 8115);
    EXPECT_EQ(errorNumberOf([] { toDecimal(1e300, decimal(38, 2)); }), 8115);
    EXPECT_EQ(errorNumberOf([] { toDecimal(std::numeric_limits<double>::infinity(), decimal(38, 2)); }), 8115);
}

TEST(FloatOfText, ReadsOrRefusesAsTheServer) {
    EXPECT_EQ(toFloat(" 2.5 "), 2.5);
    EXPECT_EQ(toFloat("1e3"), 1000);
    EXPECT_EQ(toFloat("+.5"), 0.5);
    EXPECT_EQ(toFloat(""), 0);
    for (const char* text : {"1,5", "abc", "inf", "nan", "1e999", "+-1", "1 2", "0x10", "-", "e5"}) {
        EXPECT_EQ(errorOf([&] { toFloat(text); }), "8114 Error converting data type varchar to float.") << text;
    }
}

TEST(FloatText, HasSixSignificantDigits) {
    EXPECT_EQ(floatText(1.5), "1.5");
    EXPECT_EQ(floatText(1234567), "1.23457e+006");
    EXPECT_EQ(floatText(0.0001), "0.0001");
    EXPECT_EQ(floatText(1e-7), "1e-007");
    EXPECT_EQ(floatText(1e200), "1e+200");
    EXPECT_EQ(floatText(-0.0), "0");
    EXPECT_EQ(floatText(10000001), "1e+007");
}

TEST(Fitting, CutsBlanksAndRefusesTheRest) {
    EXPECT_EQ(fitText("abc", 3), "abc");
    EXPECT_EQ(fitText("abc   ", 3), "abc");
    EXPECT_EQ(fitText("abc   ", 4), "abc ");
    EXPECT_EQ(fitText("citt\u00e0", 5), "citt\u00e0");
    EXPECT_EQ(fitText(std::string(5000, 'x'), -1).size(), 5000U);
    EXPECT_EQ(errorOf([] { fitText("abcd", 3); }), "8152 String or binary data would be truncated.");
    EXPECT_EQ(errorNumberOf([] { fitText("ab d", 3); }), 8152);
    EXPECT_EQ(errorNumberOf([] { fitText("citt\u00e0!", 5); }), 8152);
}

} // namespace
} // namespace engine

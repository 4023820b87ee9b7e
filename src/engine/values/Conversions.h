#pragma once

// Conversions between the dialect's types, with the server's refusals. In storage a bit or an integer is an integer,
// a decimal, real or float a double, a date the text `YYYY-MM-DD hh:mm:ss.mmm`, and a text is a text.

#include "engine/values/DataType.h"
#include "engine/values/DateOrder.h"
#include "engine/values/Decimal.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace engine {

struct IntegerRange {
    std::int64_t first, last;
};
/// Of the values of an integer type.
IntegerRange rangeOf(const DataType& type);

/// Blanks at both ends are ignored, '' is 0; 'TRUE' and 'FALSE' are bits. Throws 245 (8114 for a bigint) for what is no
/// number, 244, 248 or 8115 for one that the target doesn't hold.
std::int64_t toInteger(std::string_view text, const DataType& target, const char* sourceType = "varchar");
/// Throws 232 (8115 for a bigint) where the value leaves the target's range.
std::int64_t toInteger(double number, const DataType& target);
/// Throws 8115.
std::int64_t toInteger(const Decimal& number, const DataType& target);
/// Throws 220 too, as the server does for an int that a smaller type doesn't hold.
std::int64_t toInteger(std::int64_t number, const DataType& target);
/// Throws 8114 ('' and '1,5' too), 8115 where precision is exceeded, 40517 where there are more digits than a double
/// keeps; the result is rounded to the scale.
double toDecimal(std::string_view text, const DataType& target);
double toDecimal(double number, const DataType& target); ///< of a float
double toDecimal(const Decimal& number, const DataType& target);
/// An amount: currency and sign once each, digits with commas, a point; '' and any one of these alone is 0. Throws 235.
double toMoney(std::string_view text, const DataType& target);
/// An amount without its currency and its commas; nothing for any other text.
std::optional<std::string> digitsOfAmount(std::string_view text);
/// Throws 8114.
double toFloat(std::string_view text);
/// Throws 8115 for what left the range of float and real, which have no infinity.
double finiteNumber(double number, const DataType& type);
/// '' is 1900-01-01. Without a style the numbers stand in the session's `order`; `yyyymmdd` always.
/// Style 102 reads year, month, day with any separator; 103 day, month, year; 101 month, day, year; 112 yyyymmdd;
/// 120 and 121 with time. Throws 241, 242.
std::string toDateTime(std::string_view text, std::optional<int> style, DateOrder order = DateOrder::MonthDayYear);
/// The date so many days after 1900-01-01. Throws 242, 8115.
std::string toDateTime(double days);
double daysOf(std::string_view dateTime);

std::string integerText(std::int64_t number);
/// As printf does, whatever the locale of the process.
std::string printed(double number, std::chars_format format, int precision);
/// Six significant digits; style 1 has 8, style 2 has 16, style 3 has 17 with an exponent. Throws 40517 for the styles
/// that are there for their age.
std::string floatText(double number, std::optional<int> style = {});
/// Two places; style 1 with commas, style 2 and 126 with all four places.
std::string moneyText(const Decimal& amount, std::optional<int> style);
std::string dateText(std::string_view dateTime, std::optional<int> style);
/// Whether a style of a date is the wanted one, or the one of two digits of the year where that one has four.
constexpr bool isStyle(int style, int wanted) {
    constexpr int kWithCentury = 100;
    return wanted == style || (style < kWithCentury && wanted == style + kWithCentury);
}

/// A text into a column of `length` characters (-1: any). An excess of trailing blanks is cut in silence; throws 8152.
std::string_view fitText(std::string_view text, int length);

} // namespace engine

#pragma once

// Conversions between the dialect's types, with the server's refusals. In storage a bit or an integer is an integer,
// a decimal, real or float a double, a date the text `YYYY-MM-DD hh:mm:ss.mmm`, and a text is a text.

#include "engine/values/DataType.h"
#include "engine/values/DateOrder.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace engine {

/// Blanks at both ends are ignored, '' is 0. Throws 245 (8114 for a bigint) for what is no number, 244, 248 or 8115 for
/// one that the target doesn't hold.
std::int64_t toInteger(std::string_view text, const DataType& target, const char* sourceType = "varchar");
/// Throws 8115 where the value leaves the target's range.
std::int64_t toInteger(double number, const DataType& target);
std::int64_t toInteger(std::int64_t number, const DataType& target);
/// 'TRUE', 'FALSE' and numbers; throws 245.
bool toBit(std::string_view text);
/// Throws 8114 ('' and '1,5' too), 8115 where precision is exceeded; the result is rounded to the scale.
double toDecimal(std::string_view text, const DataType& target);
double toDecimal(double number, const DataType& target);
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
std::string decimalText(double number, const DataType& type); ///< all digits of the scale
std::string floatText(double number);                         ///< six significant digits, as the server's CONVERT
std::string dateText(std::string_view dateTime, std::optional<int> style);

/// A text into a column of `length` characters (-1: any). An excess of trailing blanks is cut in silence; throws 8152.
std::string_view fitText(std::string_view text, int length);

} // namespace engine

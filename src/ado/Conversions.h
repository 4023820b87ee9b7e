#pragma once

#include "ado/Value.h"

#include <optional>
#include <string>
#include <string_view>

namespace ado {

/// How this machine writes numbers and dates. Italian until the workstation sets its own.
struct RegionalSettings {
    enum class DateOrder { DayMonthYear, MonthDayYear, YearMonthDay };
    char decimalSeparator = ',';
    char thousandsSeparator = '.';
    char monetaryDecimalSeparator = ',';
    char monetaryThousandsSeparator = '.';
    char dateSeparator = '/';
    std::string currencySymbol = "€";
    DateOrder dateOrder = DateOrder::DayMonthYear;
    int decimals = 2; ///< shown where a format doesn't set how many
};

RegionalSettings& regionalSettings();

/// Today, for dates without a year; tests set it.
Date today();
void setToday(std::optional<Date> day);

// The conversions of the program. They throw Error 13 "Type mismatch", 6 "Overflow", 94 "Invalid use of Null".
double toDouble(const Value& value);
std::int32_t toLong(const Value& value);    ///< half to even
std::int16_t toInteger(const Value& value); ///< half to even
std::uint8_t toByte(const Value& value);    ///< half to even
bool toBoolean(const Value& value);         ///< numbers: false for zero; texts: True, False, Vero, Falso
Date toDate(const Value& value);
std::string toText(const Value& value); ///< null raises 94, empty is ""

bool isNumeric(const Value& value);
bool isDate(const Value& value);

/// A number as SQL reads it: 15 significant digits, a decimal point, no grouping, no blank.
std::string plainNumber(double number);
/// A number with that many decimals, rounded half away from zero, in the regional settings; `grouped` adds the
/// separators of the thousands.
std::string formatFixed(double number, int decimals, bool grouped = false);
std::string formatDate(Date date); ///< dd/MM/yyyy, followed by the time unless it is midnight

std::optional<double> parseNumber(std::string_view text);
std::optional<Date> parseDate(std::string_view text);

/// Whether the text matches a pattern of the program's Like: `*`, `?`, `#`, [list]. Case-sensitive.
bool matches(std::string_view text, std::string_view pattern);

} // namespace ado

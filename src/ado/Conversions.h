#pragma once

#include "ado/Value.h"

#include <optional>
#include <string>
#include <string_view>

namespace ado {

/// How this machine writes numbers and dates. Italian until the workstation says otherwise.
struct RegionalSettings {
    enum class DateOrder { DayMonthYear, MonthDayYear, YearMonthDay };
    char decimalSeparator = ',';
    char thousandsSeparator = '.';
    char monetaryDecimalSeparator = ',';
    char monetaryThousandsSeparator = '.';
    char dateSeparator = '/';
    std::string currencySymbol = "€";
    DateOrder dateOrder = DateOrder::DayMonthYear;
    int decimals = 2; ///< of a plain number format
};

RegionalSettings& regionalSettings();

/// Today, for dates without a year; tests set it.
Date today();
void setToday(std::optional<Date> day);

// What the program's own conversions do. They throw Error 13 "Type mismatch", 6 "Overflow", 94 "Invalid use of Null".
double toDouble(const Value& value);
std::int32_t toLong(const Value& value);    ///< half to even
std::int16_t toInteger(const Value& value); ///< half to even
std::uint8_t toByte(const Value& value);    ///< half to even
bool toBoolean(const Value& value);         ///< any number but zero; the texts True, False, Vero, Falso
Date toDate(const Value& value);
std::string toText(const Value& value); ///< null raises 94, empty is ""

bool isNumeric(const Value& value);
bool isDate(const Value& value);

/// A number in plain digits as SQL takes it: 15 significant digits, the decimal point, no grouping, no blank.
std::string plainNumber(double number);
/// Fixed decimals, half away from zero, with the decimal separator and no grouping; `grouped` adds the thousands.
std::string formatFixed(double number, int decimals, bool grouped = false);
std::string formatDate(Date date); ///< dd/MM/yyyy, with the time unless it is midnight

std::optional<double> parseNumber(std::string_view text);
std::optional<Date> parseDate(std::string_view text);

/// Pattern of the language's own Like: `*`, `?`, `#`, [list]. Case counts.
bool matches(std::string_view text, std::string_view pattern);

} // namespace ado

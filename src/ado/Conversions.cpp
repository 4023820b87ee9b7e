#include "ado/Conversions.h"

#include "ado/Error.h"
#include "ado/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace ado {

namespace {

constexpr std::int32_t kZeroDay = -25569; // 1899-12-30, day 0 of dates as numbers
constexpr double kMillisecondsOfDay = 86'400'000;
constexpr double kCurrencyUnit = 10'000;
constexpr double kFirstDay = -657434, kLastDay = 2958465; // years 100 to 9999

template<typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template<typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

std::optional<bool> truthWord(std::string_view text) {
    struct Word {
        std::string_view text;
        bool value;
    };
    static constexpr std::array<Word, 4> kWords = {
        {{"true", true}, {"vero", true}, {"false", false}, {"falso", false}}};
    const auto found = std::ranges::find(kWords, lowered(text), &Word::text);
    return found == kWords.end() ? std::nullopt : std::optional(found->value);
}

double serialNumber(Date date) {
    const double day = date.day - kZeroDay;
    const double time = date.millisecond / kMillisecondsOfDay;
    return day < 0 ? day - time : day + time;
}

Date fromSerialNumber(double number) {
    if (!(number >= kFirstDay && number < kLastDay + 1)) {
        throw Error(kOverflow);
    }
    double day = std::trunc(number);
    double millisecond = std::round(std::fabs(number - day) * kMillisecondsOfDay);
    if (millisecond >= kMillisecondsOfDay) {
        day += 1;
        millisecond = 0;
    }
    return {static_cast<std::int32_t>(day) + kZeroDay, static_cast<std::int32_t>(millisecond)};
}

double numberOfText(const std::string& text) {
    if (const auto number = parseNumber(text)) {
        return *number;
    }
    throw Error(kTypeMismatch);
}

/// nearbyint rounds as the processor is set, which is half to even by default.
template<typename Integer>
Integer toWhole(const Value& value) {
    const double rounded = std::nearbyint(toDouble(value));
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        throw Error(kOverflow);
    }
    return static_cast<Integer>(rounded);
}

std::string significant(double number, int digits) {
    // printf would take the separator of the process's locale, which the window system sets.
    std::array<char, 40> text{};
    char* const end = std::to_chars(text.data(), text.data() + text.size(), number == 0 ? 0.0 : number,
                                    std::chars_format::general, digits)
                          .ptr;
    std::string result(text.data(), end);
    std::ranges::replace(result, 'e', 'E');
    std::ranges::replace(result, '.', regionalSettings().decimalSeparator);
    return result;
}

/// The text of unscaled / 10^scale without zeros at its end.
std::string scaledText(std::int64_t unscaled, int scale) {
    std::string digits = std::to_string(unscaled);
    const bool negative = digits.front() == '-';
    if (negative) {
        digits.erase(0, 1);
    }
    const auto decimals = static_cast<std::size_t>(std::max(scale, 0));
    if (digits.size() <= decimals) {
        digits.insert(0, decimals + 1 - digits.size(), '0');
    }
    std::string fraction = digits.substr(digits.size() - decimals);
    digits.resize(digits.size() - decimals);
    while (!fraction.empty() && fraction.back() == '0') {
        fraction.pop_back();
    }
    if (!fraction.empty()) {
        digits += regionalSettings().decimalSeparator + fraction;
    }
    return (negative ? "-" : "") + digits;
}

} // namespace

RegionalSettings& regionalSettings() {
    static RegionalSettings settings;
    return settings;
}

double toDouble(const Value& value) {
    return std::visit(Overloaded{
                          [](std::monostate) { return 0.0; },
                          [](Null) -> double { throw Error(kInvalidUseOfNull); },
                          [](bool truth) { return truth ? -1.0 : 0.0; },
                          [](Currency amount) { return static_cast<double>(amount.tenThousandths) / kCurrencyUnit; },
                          [](const Decimal& decimal) { return decimal.toDouble(); },
                          [](Date date) { return serialNumber(date); },
                          [](const std::string& text) { return numberOfText(text); },
                          [](auto number) { return static_cast<double>(number); },
                      },
                      value.variant());
}

std::int32_t toLong(const Value& value) {
    return toWhole<std::int32_t>(value);
}
std::int16_t toInteger(const Value& value) {
    return toWhole<std::int16_t>(value);
}
std::uint8_t toByte(const Value& value) {
    return toWhole<std::uint8_t>(value);
}

bool toBoolean(const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value.variant())) {
        if (const auto truth = truthWord(*text)) {
            return *truth;
        }
    }
    return toDouble(value) != 0;
}

Date toDate(const Value& value) {
    if (const auto* date = std::get_if<Date>(&value.variant())) {
        return *date;
    }
    if (const auto* text = std::get_if<std::string>(&value.variant())) {
        if (const auto date = parseDate(*text)) {
            return *date;
        }
        throw Error(kTypeMismatch);
    }
    return fromSerialNumber(toDouble(value));
}

std::string toText(const Value& value) {
    return std::visit(Overloaded{
                          [](std::monostate) { return std::string(); },
                          [](Null) -> std::string { throw Error(kInvalidUseOfNull); },
                          [](bool truth) { return std::string(truth ? "Vero" : "Falso"); },
                          [](float number) { return significant(static_cast<double>(number), 7); },
                          [](double number) { return significant(number, 15); },
                          [](Currency amount) { return scaledText(amount.tenThousandths, 4); },
                          [](const Decimal& decimal) { return scaledText(decimal.unscaled, decimal.scale); },
                          [](Date date) { return formatDate(date); },
                          [](const std::string& text) { return text; },
                          [](auto whole) { return std::to_string(whole); },
                      },
                      value.variant());
}

bool isNumeric(const Value& value) {
    return std::visit(Overloaded{
                          [](Null) { return false; },
                          [](Date) { return false; },
                          [](const std::string& text) { return parseNumber(text).has_value(); },
                          [](const auto&) { return true; },
                      },
                      value.variant());
}

bool isDate(const Value& value) {
    const auto* text = std::get_if<std::string>(&value.variant());
    return text ? parseDate(*text).has_value() : std::holds_alternative<Date>(value.variant());
}

} // namespace ado

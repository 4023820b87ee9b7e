#include "engine/values/Conversions.h"

#include "engine/errors/ValueErrors.h"
#include "engine/values/Ascii.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <limits>

namespace engine {
namespace {

using Kind = DataType::Kind;

struct IntegerKind {
    Kind kind;
    const char* name;
    std::int64_t minimum, maximum;
    const char* stored = ""; ///< as the error of a text calls the small ones
};

constexpr std::array<IntegerKind, 5> kIntegerKinds{{
    {Kind::Bit, "bit", 0, 1},
    {Kind::TinyInt, "tinyint", 0, 255, "INT1"},
    {Kind::SmallInt, "smallint", -32768, 32767, "INT2"},
    {Kind::Int, "int", std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()},
    {Kind::BigInt, "bigint", std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()},
}};

const IntegerKind& kindOf(const DataType& target) {
    for (const IntegerKind& kind : kIntegerKinds) {
        if (kind.kind == target.kind) {
            return kind;
        }
    }
    throw InternalError("a conversion to an integer of a type that is none: " + toText(target));
}

} // namespace

IntegerRange rangeOf(const DataType& type) {
    return {kindOf(type).minimum, kindOf(type).maximum};
}

std::int64_t toInteger(std::string_view text, const DataType& target, const char* sourceType) {
    const IntegerKind& kind = kindOf(target);
    std::string_view digits = trimmed(text);
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    if (!isAllDigits(digits)) {
        if (kind.kind == Kind::Bit) {
            const std::string word = lower(trimmed(text));
            if (word == "true" || word == "false") {
                return word == "true" ? 1 : 0;
            }
        }
        throw kind.kind == Kind::BigInt ? errors::conversionError(sourceType, kind.name)
                                        : errors::intConversion(sourceType, text, kind.name);
    }
    if (kind.kind == Kind::Bit) {
        return digits.find_first_not_of('0') == std::string_view::npos ? 0 : 1;
    }
    const std::string number = (negative ? "-" : "") + std::string(digits.empty() ? "0" : digits);
    std::int64_t value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec != std::errc{} || value < kind.minimum || value > kind.maximum) {
        throw kind.kind == Kind::BigInt ? errors::conversionOverflow("expression", kind.name)
        : kind.kind == Kind::Int        ? errors::textOverflowsInt(sourceType, text)
                                        : errors::textOverflowsSmallInt(sourceType, text, kind.stored);
    }
    return value;
}

std::int64_t toInteger(double number, const DataType& target) {
    const IntegerKind& kind = kindOf(target);
    if (kind.kind == Kind::Bit) {
        return number != 0 ? 1 : 0;
    }
    const double whole = std::trunc(number);
    // The largest bigint has no double of its own; the next one above it is out.
    const bool inside = whole >= static_cast<double>(kind.minimum) &&
                        (kind.kind == Kind::BigInt ? whole < 0x1p63 : whole <= static_cast<double>(kind.maximum));
    if (!inside) {
        throw kind.kind == Kind::BigInt
            ? errors::conversionOverflow("expression", kind.name)
            : errors::floatOverflow(kind.name, printed(number, std::chars_format::fixed, 6));
    }
    return static_cast<std::int64_t>(whole);
}

std::int64_t toInteger(const Decimal& number, const DataType& target) {
    const IntegerKind& kind = kindOf(target);
    const auto whole = number.whole();
    if (!whole || *whole < kind.minimum || *whole > kind.maximum) {
        throw errors::conversionOverflow("expression", kind.name);
    }
    return *whole;
}

std::int64_t toInteger(std::int64_t number, const DataType& target) {
    const IntegerKind& kind = kindOf(target);
    if (kind.kind == Kind::Bit) {
        return number != 0 ? 1 : 0;
    }
    if (number >= kind.minimum && number <= kind.maximum) {
        return number;
    }
    throw kind.kind == Kind::Int ? errors::conversionOverflow("expression", kind.name)
                                 : errors::valueOverflow(kind.name, integerText(number));
}

double toDecimal(std::string_view text, const DataType& target) {
    const auto number = Decimal::parse(trimmed(text), target.scale);
    if (!number) {
        throw errors::conversionError("varchar", "numeric");
    }
    if (!number->fits(target)) {
        throw errors::conversionOverflow("varchar", "numeric");
    }
    return number->kept();
}

double toDecimal(double number, const DataType& target) {
    return toDecimal(Decimal::ofFloat(number, target.scale), target);
}

double toDecimal(const Decimal& number, const DataType& target) {
    const Decimal rounded = number.rounded(target.scale);
    if (!rounded.fits(target)) {
        throw errors::conversionOverflow("numeric", target.isMoney() ? "money" : "numeric");
    }
    return rounded.kept();
}

double toFloat(std::string_view text) {
    std::string_view number = trimmed(text);
    if (number.empty()) {
        return 0;
    }
    const bool doubleSign = number.starts_with("+-");
    if (number.starts_with('+')) {
        number.remove_prefix(1);
    }
    // from_chars would take words such as "inf" too.
    const bool plain = !doubleSign && number.find_first_not_of("0123456789.eE+-") == std::string_view::npos;
    double value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (!plain || read.ec != std::errc{} || read.ptr != number.data() + number.size()) {
        throw errors::conversionError("varchar", "float");
    }
    return value;
}

double finiteNumber(double number, const DataType& type) {
    if (!std::isfinite(number)) {
        throw errors::conversionOverflow("expression", type.kind == Kind::Real ? "real" : "float");
    }
    return number;
}

std::string integerText(std::int64_t number) {
    return std::to_string(number);
}

std::string printed(double number, std::chars_format format, int precision) {
    std::array<char, 512> buffer{};
    return {buffer.data(), std::to_chars(buffer.begin(), buffer.end(), number, format, precision).ptr};
}

std::string floatText(double number, std::optional<int> style) {
    constexpr std::array kLegacyStyles = {126, 128, 129};
    constexpr std::array kDigitsBehindFirst = {7, 15, 16};
    if (std::find(kLegacyStyles.begin(), kLegacyStyles.end(), style) != kLegacyStyles.end()) {
        throw errors::valueNotSupported("style " + std::to_string(*style) + " of float");
    }
    if (number == 0) {
        number = 0; // without a sign
    }
    std::string text = style >= 1 && style <= 3 ? printed(number, std::chars_format::scientific,
                                                          kDigitsBehindFirst[static_cast<std::size_t>(*style) - 1])
                                                : printed(number, std::chars_format::general, 6);
    // The server's exponents have three digits.
    const std::size_t exponent = text.find('e');
    if (exponent != std::string::npos && text.size() - exponent == 4) {
        text.insert(exponent + 2, "0");
    }
    return text;
}

std::string_view fitText(std::string_view text, int length) {
    // A text has at most as many characters as bytes.
    if (length < 0 || text.size() <= static_cast<std::size_t>(length)) {
        return text;
    }
    const std::string_view kept = leftOf(text, static_cast<std::size_t>(length));
    if (text.find_first_not_of(' ', kept.size()) != std::string_view::npos) {
        throw errors::truncated();
    }
    return kept;
}

} // namespace engine

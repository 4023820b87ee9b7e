#include "ado/Assignment.h"

#include "ado/Conversions.h"
#include "ado/Error.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace ado {

namespace {

constexpr int kFirstYear = 1753, kLastYear = 9999;
constexpr int kLargestPrecision = 18; // the digits that 64 bits always hold

double finite(const Value& value) {
    const double number = toDouble(value);
    if (!std::isfinite(number)) {
        throw Error(kOverflow);
    }
    return number;
}

float single(const Value& value) {
    const double number = finite(value);
    if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw Error(kOverflow);
    }
    return static_cast<float>(number);
}

std::int64_t power(int exponent) {
    std::int64_t result = 1;
    for (int i = 0; i < exponent; ++i) {
        result *= 10;
    }
    return result;
}

/// The same number with another count of decimals, rounded half away from zero.
std::int64_t rescaled(std::int64_t unscaled, int from, int to) {
    std::int64_t result = unscaled;
    if (from <= to) {
        if (__builtin_mul_overflow(unscaled, power(std::min(to - from, kLargestPrecision)), &result)) {
            throw Error(kOverflow);
        }
        return result;
    }
    const std::int64_t divisor = power(std::min(from - to, kLargestPrecision));
    const std::int64_t rest = unscaled % divisor;
    result = unscaled / divisor;
    if (std::llabs(rest) >= divisor - std::llabs(rest)) {
        result += unscaled < 0 ? -1 : 1;
    }
    return result;
}

/// A number as unscaled / 10^scale. Exact types are converted exactly, others by the digits of their text.
std::int64_t unscaledOf(const Value& value, int scale) {
    if (const auto* decimal = std::get_if<Decimal>(&value.variant())) {
        return rescaled(decimal->unscaled, decimal->scale, scale);
    }
    if (const auto* amount = std::get_if<Currency>(&value.variant())) {
        return rescaled(amount->tenThousandths, 4, scale);
    }
    std::string digits = formatFixed(finite(value), scale);
    std::erase(digits, regionalSettings().decimalSeparator);
    errno = 0;
    const std::int64_t unscaled = std::strtoll(digits.c_str(), nullptr, 10);
    if (errno == ERANGE) {
        throw Error(kOverflow);
    }
    return unscaled;
}

Decimal decimal(const Value& value, int precision, int scale) {
    const std::int64_t unscaled = unscaledOf(value, scale);
    if (precision > 0 && precision <= kLargestPrecision && std::llabs(unscaled) >= power(precision)) {
        throw Error(kOverflow);
    }
    return {unscaled, scale};
}

Date dateTime(const Value& value) {
    const Date date = toDate(value);
    if (date.year() < kFirstYear || date.year() > kLastYear) {
        throw Error(kOverflow);
    }
    return date;
}

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// The text, which may have at most `length` characters; blanks at its end beyond that are cut.
std::string fitted(std::string text, int length) {
    if (length < 0) {
        return text;
    }
    std::size_t end = 0;
    for (int characters = 0; end < text.size(); ++end) {
        if (!isContinuation(text[end]) && characters++ == length) {
            break;
        }
    }
    if (text.find_first_not_of(' ', end) != std::string::npos) {
        throw Error(kOverflow);
    }
    text.resize(end);
    return text;
}

Value converted(const Value& value, const FieldDescription& column) {
    switch (column.type) {
    case FieldType::Boolean:
        return toBoolean(value);
    case FieldType::Byte:
        return toByte(value);
    case FieldType::SmallInt:
        return toInteger(value);
    case FieldType::Integer:
        return toLong(value);
    case FieldType::BigInt:
        return decimal(value, 0, 0);
    case FieldType::Single:
        return single(value);
    case FieldType::Double:
        return finite(value);
    case FieldType::Currency:
        return Currency{decimal(value, column.precision, 4).unscaled};
    case FieldType::Decimal:
        return decimal(value, column.precision, column.scale);
    case FieldType::DateTime:
        return dateTime(value);
    case FieldType::Char:
    case FieldType::WChar:
        return fitted(toText(value), column.length);
    case FieldType::Binary:
        break;
    }
    throw Error(kTypeMismatch);
}

} // namespace

Value coerced(const Value& value, const FieldDescription& column) {
    if (value.isNull() || value.isEmpty()) {
        return Null{};
    }
    try {
        return converted(value, column);
    } catch (const Error&) {
        throw Error(kMultipleStep).in(column.name);
    }
}

} // namespace ado

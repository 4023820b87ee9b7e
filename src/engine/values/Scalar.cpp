#include "engine/values/Scalar.h"

#include "engine/errors/ValueErrors.h"
#include "engine/values/Collation.h"
#include "engine/values/Conversions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace engine {

namespace {

using Kind = DataType::Kind;

bool isReal(const DataType& type) {
    return type.kind == Kind::Decimal || type.kind == Kind::Real || type.kind == Kind::Float;
}

Scalar toInteger(const Scalar& value, const ConversionRequest& request) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (request.from.kind == Kind::DateTime) {
            return engine::toInteger(std::floor(daysOf(*text) + 0.5), request.to);
        }
        return engine::toInteger(*text, request.to, typeName(request.from).c_str());
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return engine::toInteger(*number, request.to);
    }
    return engine::toInteger(std::get<std::int64_t>(value), request.to);
}

Scalar toBitValue(const Scalar& value, const ConversionRequest& request) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (request.from.kind == Kind::DateTime) {
            return std::int64_t{daysOf(*text) != 0.0};
        }
        return std::int64_t{toBit(*text)};
    }
    return std::int64_t{numberOf(value) != 0.0};
}

/// Infinite outside the range of a float.
double realOf(double number) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    if (std::fabs(number) > kLargest) {
        return std::numeric_limits<double>::infinity();
    }
    return static_cast<double>(static_cast<float>(number));
}

Scalar toRealValue(const Scalar& value, const ConversionRequest& request) {
    const bool decimal = request.to.kind == Kind::Decimal;
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (request.from.kind == Kind::DateTime) {
            const double days = daysOf(*text);
            return decimal ? toDecimal(days, request.to) : days;
        }
        if (decimal) {
            return toDecimal(*text, request.to);
        }
        return finiteNumber(request.to.kind == Kind::Real ? realOf(toFloat(*text)) : toFloat(*text), request.to);
    }
    const double number = numberOf(value);
    if (decimal) {
        return toDecimal(number, request.to);
    }
    return finiteNumber(request.to.kind == Kind::Real ? realOf(number) : number, request.to);
}

Scalar toDateValue(const Scalar& value, const ConversionRequest& request) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return toDateTime(*text, request.style, request.dateOrder);
    }
    return toDateTime(numberOf(value));
}

std::string textOf(const Scalar& value, const ConversionRequest& request) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return request.from.kind == Kind::DateTime ? dateText(*text, request.style) : *text;
    }
    if (request.from.kind == Kind::Decimal) {
        return decimalText(numberOf(value), request.from);
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return integerText(*integer);
    }
    return floatText(std::get<double>(value));
}

std::string fit(std::string text, const ConversionRequest& request) {
    const int length = request.to.length;
    if (length < 0) {
        return text;
    }
    if (request.from.isNumber() && characters(text) > static_cast<std::size_t>(length)) {
        throw errors::overflow("expression", typeName(request.to));
    }
    if (request.purpose == Purpose::Assignment) {
        text = std::string(fitText(text, length));
    } else {
        text = std::string(leftOf(text, static_cast<std::size_t>(length)));
    }
    if (request.to.kind == Kind::Char || request.to.kind == Kind::NChar) {
        const std::size_t has = characters(text);
        text.append(static_cast<std::size_t>(length) - std::min(has, static_cast<std::size_t>(length)), ' ');
    }
    return text;
}

/// That of the type of a constant, the same for all that fit, so that they share a plan.
int lengthOf(const std::string& text, int longest) {
    const auto most = static_cast<std::size_t>(longest);
    return text.size() > most && characters(text) > most ? -1 : longest;
}

} // namespace

Scalar convert(Scalar value, const ConversionRequest& request) {
    if (isNull(value)) {
        return value;
    }
    switch (request.to.kind) {
    case Kind::Unknown:
        return value;
    case Kind::Bit:
        return toBitValue(value, request);
    case Kind::TinyInt:
    case Kind::SmallInt:
    case Kind::Int:
    case Kind::BigInt:
        return toInteger(value, request);
    case Kind::Decimal:
    case Kind::Real:
    case Kind::Float:
        return toRealValue(value, request);
    case Kind::DateTime:
        return toDateValue(value, request);
    case Kind::Char:
    case Kind::VarChar:
    case Kind::NChar:
    case Kind::NVarChar:
    case Kind::VarBinary:
        return fit(textOf(value, request), request);
    }
    return value;
}

bool needsConversion(const DataType& from, const DataType& to, Purpose purpose) {
    if (from.kind == Kind::Unknown || to.kind == Kind::Unknown) {
        return false;
    }
    if (to.isText()) {
        const bool padded = to.kind == Kind::Char || to.kind == Kind::NChar;
        if (!from.isText() || (padded && from != to)) {
            return true;
        }
        const bool fits = to.length < 0 || (from.length >= 0 && from.length <= to.length);
        return !fits && (purpose == Purpose::Assignment || purpose == Purpose::Cast);
    }
    if (to.kind == Kind::Bit || to.isInteger()) {
        return !(from.isInteger() && from.kind <= to.kind);
    }
    if (isReal(to)) {
        return from != to;
    }
    return from.kind != to.kind;
}

Scalar scalarOf(const Literal& literal, bool negated) {
    switch (literal.kind) {
    case Literal::Kind::Null:
        return {};
    case Literal::Kind::Integer:
    case Literal::Kind::Decimal: {
        const std::string digits = (negated ? "-" : "") + literal.text;
        std::int64_t number = 0;
        const auto end = digits.data() + digits.size();
        const auto [stop, problem] = std::from_chars(digits.data(), end, number);
        if (problem == std::errc{} && stop == end) {
            return number;
        }
        return std::strtod(digits.c_str(), nullptr);
    }
    case Literal::Kind::Float: {
        const double number = std::strtod(literal.text.c_str(), nullptr);
        return negated ? -number : number;
    }
    case Literal::Kind::Text:
    case Literal::Kind::NationalText:
        return literal.text;
    }
    return {};
}

DataType decimalOf(const Literal& literal) {
    const std::size_t point = literal.text.find('.');
    const int scale = point == std::string::npos ? 0 : static_cast<int>(literal.text.size() - point - 1);
    const int digits = static_cast<int>(literal.text.size()) - (point == std::string::npos ? 0 : 1);
    return {Kind::Decimal, 0, std::clamp(digits, 1, kWidestDecimal), std::min(scale, kWidestDecimal)};
}

DataType typeOf(const Literal& literal) {
    DataType type;
    switch (literal.kind) {
    case Literal::Kind::Null:
        break;
    case Literal::Kind::Integer:
    case Literal::Kind::Decimal: {
        const Scalar value = scalarOf(literal, false);
        if (const auto* number = std::get_if<std::int64_t>(&value)) {
            type.kind = *number <= std::numeric_limits<std::int32_t>::max() ? Kind::Int : Kind::BigInt;
            break;
        }
        type = decimalOf(literal);
        break;
    }
    case Literal::Kind::Float:
        type.kind = Kind::Float;
        break;
    case Literal::Kind::Text:
        type = {Kind::VarChar, lengthOf(literal.text, kLongestText), 0, 0};
        break;
    case Literal::Kind::NationalText:
        type = {Kind::NVarChar, lengthOf(literal.text, kLongestNationalText), 0, 0};
        break;
    }
    return type;
}

std::int64_t encodeType(const DataType& type) {
    return static_cast<std::int64_t>(type.kind) | static_cast<std::int64_t>(type.precision) << 8 |
           static_cast<std::int64_t>(type.scale) << 16 | static_cast<std::int64_t>(type.length + 1) << 24;
}

DataType decodeType(std::int64_t code) {
    DataType type;
    type.kind = static_cast<Kind>(code & 0xff);
    type.precision = static_cast<int>(code >> 8 & 0xff);
    type.scale = static_cast<int>(code >> 16 & 0xff);
    type.length = static_cast<int>(code >> 24) - 1;
    return type;
}

std::string typeName(const DataType& type) {
    const std::string full = toText(type);
    const std::string bare = full.substr(0, full.find('('));
    return bare == "decimal" ? "numeric" : bare;
}

} // namespace engine

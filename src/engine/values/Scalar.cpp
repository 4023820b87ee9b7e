#include "engine/values/Scalar.h"

#include "engine/errors/ValueErrors.h"
#include "engine/values/CodePage.h"
#include "engine/values/Collation.h"
#include "engine/values/Conversions.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace engine {

namespace {

using Kind = DataType::Kind;

bool isReal(const DataType& type) {
    return type.kind == Kind::Decimal || type.kind == Kind::Real || type.kind == Kind::Float;
}

/// Whether each double of a decimal type stands in another as it is.
bool holdsAll(const DataType& wide, const DataType& narrow) {
    constexpr int kDigitsOfDouble = 15;
    constexpr int kSureDigitsOfMoney = 18;
    const int precision = wide.isMoney() ? kSureDigitsOfMoney : wide.precision;
    return narrow.kind == Kind::Decimal && narrow.precision <= kDigitsOfDouble && narrow.scale <= wide.scale &&
           narrow.precision - narrow.scale <= precision - wide.scale;
}

Scalar toInteger(const Scalar& value, const ConversionRequest& request) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (request.from.kind == Kind::DateTime) {
            return engine::toInteger(Decimal::of(static_cast<std::int64_t>(std::floor(daysOf(*text) + 0.5))),
                                     request.to);
        }
        return engine::toInteger(*text, request.to, typeName(request.from).c_str());
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return engine::toInteger(*number, request.to);
    }
    const std::int64_t number = std::get<std::int64_t>(value);
    return request.from.kind == Kind::BigInt ? engine::toInteger(Decimal::of(number), request.to)
                                             : engine::toInteger(number, request.to);
}

Scalar toBitValue(const Scalar& value, const ConversionRequest& request) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (request.from.kind == Kind::DateTime) {
            return std::int64_t{daysOf(*text) != 0.0};
        }
        return engine::toInteger(*text, request.to);
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

Scalar toFloatValue(double number, const DataType& target) {
    return finiteNumber(target.kind == Kind::Real ? realOf(number) : number, target);
}

Scalar toRealValue(const Scalar& value, const ConversionRequest& request) {
    const bool decimal = request.to.kind == Kind::Decimal;
    if (const auto* text = std::get_if<std::string>(&value); text != nullptr && request.from.kind != Kind::DateTime) {
        return request.to.isMoney() ? toMoney(*text, request.to)
               : decimal            ? toDecimal(*text, request.to)
                                    : toFloatValue(toFloat(*text), request.to);
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value); integer != nullptr && decimal) {
        return toDecimal(Decimal::of(*integer), request.to);
    }
    const auto* date = std::get_if<std::string>(&value);
    const double number = date != nullptr ? daysOf(*date) : numberOf(value);
    return decimal ? toDecimal(number, request.to) : toFloatValue(number, request.to);
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
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return integerText(*integer);
    }
    return floatText(std::get<double>(value), request.style);
}

/// What a text that is too short for a number shows of it: of the smaller integers an asterisk.
std::string shownShort(const Scalar& value, const ConversionRequest& request) {
    if (request.from.kind == Kind::Real || request.from.kind == Kind::Float) {
        throw errors::floatOverflow(typeName(request.to),
                                    printed(std::get<double>(value), std::chars_format::fixed, 6));
    }
    if (request.from.kind > Kind::Int || request.to.isNational()) {
        throw errors::overflow("expression", typeName(request.to));
    }
    return "*";
}

std::string fit(std::string text, const Scalar& value, const ConversionRequest& request) {
    const int length = request.to.length;
    if (request.from.isNational() && !request.to.isNational()) {
        text = inCodePage(std::move(text));
    }
    if (length < 0) {
        return text;
    }
    if (request.from.isNumber() && characters(text) > static_cast<std::size_t>(length)) {
        text = shownShort(value, request);
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

Scalar convertDecimal(const Scalar& value, const ConversionRequest& request) {
    const DataType& target = request.to;
    if (target.kind == Kind::Real || target.kind == Kind::Float || target.kind == Kind::DateTime) {
        const auto* digits = std::get_if<std::string>(&value);
        const double number = digits != nullptr ? toFloat(*digits) : numberOf(value);
        return target.kind == Kind::DateTime ? toDateTime(number) : toFloatValue(number, target);
    }
    const Decimal number = decimalOf(value);
    if (target.kind == Kind::Decimal) {
        return toDecimal(number, target);
    }
    if (target.kind == Kind::Bit) {
        return std::int64_t{!number.isZero()};
    }
    if (target.isInteger()) {
        return engine::toInteger(request.from.isMoney() ? number.rounded(0) : number, target);
    }
    return fit(request.from.isMoney() ? moneyText(number, request.style) : number.text(request.from.scale), value,
               request);
}

} // namespace

Decimal decimalOf(const Scalar& value) {
    if (const auto* digits = std::get_if<std::string>(&value)) {
        return *Decimal::parse(*digits, kWidestDecimal);
    }
    const auto* integer = std::get_if<std::int64_t>(&value);
    return integer != nullptr ? Decimal::of(*integer) : Decimal::of(std::get<double>(value));
}

Scalar scalarOf(const Decimal& number) {
    const auto exact = number.exact();
    return exact ? Scalar(*exact) : Scalar(number.shortest().text());
}

Scalar kept(Scalar decimal) {
    if (std::holds_alternative<std::string>(decimal)) {
        throw errors::digitsNotKept();
    }
    return decimal;
}

Scalar convert(Scalar value, const ConversionRequest& request) {
    if (isNull(value) || request.to.kind == Kind::Unknown) {
        return value;
    }
    if (request.from.kind == Kind::Decimal) {
        return convertDecimal(value, request);
    }
    switch (request.to.kind) {
    case Kind::Unknown:
        break;
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
        return fit(textOf(value, request), value, request);
    case Kind::VarBinary:
        throw request.from.isText() && request.purpose == Purpose::Assignment
            ? errors::implicitConversion(typeName(request.from), typeName(request.to))
            : errors::valueNotSupported("a conversion to varbinary");
    }
    return value;
}

bool needsConversion(const DataType& from, const DataType& to, Purpose purpose) {
    if (from.kind == Kind::Unknown || to.kind == Kind::Unknown) {
        return false;
    }
    if (to.isText()) {
        const bool padded = to.kind == Kind::Char || to.kind == Kind::NChar;
        if (!from.isText() || (padded && from != to) || (from.isNational() && !to.isNational())) {
            return true;
        }
        const bool fits = to.length < 0 || (from.length >= 0 && from.length <= to.length);
        return !fits && (purpose == Purpose::Assignment || purpose == Purpose::Cast);
    }
    if (to.kind == Kind::Bit || to.isInteger()) {
        return !(from.isInteger() && from.kind <= to.kind);
    }
    if (to.kind == Kind::Decimal && (from.kind == Kind::Decimal || from.isInteger())) {
        // A whole number of many digits may be an integer still.
        return to != kAnyDecimal && !(from == to && to.scale > 0) && !holdsAll(to, from);
    }
    if (isReal(to)) {
        return from != to;
    }
    return from.kind != to.kind;
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

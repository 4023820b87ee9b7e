#pragma once

// One value of the dialect, as literals, expressions and the storage exchange it, and its conversion from type to type.

#include "engine/values/DataType.h"
#include "engine/values/DateOrder.h"
#include "engine/values/Decimal.h"
#include "engine/values/Literal.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace engine {

/// Null, an integer (bits too), a double (decimals too), or a text (dates too, see Conversions.h). On its way to a
/// conversion or to arithmetic a decimal that a double doesn't keep is the text of its digits.
using Scalar = std::variant<std::monostate, std::int64_t, double, std::string>;

inline bool isNull(const Scalar& value) {
    return std::holds_alternative<std::monostate>(value);
}

/// Of an integer or a double.
inline double numberOf(const Scalar& value) {
    const auto* integer = std::get_if<std::int64_t>(&value);
    return integer != nullptr ? static_cast<double>(*integer) : std::get<double>(value);
}

/// Of a decimal by whatever stands for it.
Decimal decimalOf(const Scalar& value);
Scalar scalarOf(const Decimal& number);
/// Throws 40517 for a decimal that no double keeps.
Scalar kept(Scalar decimal);

/// What a conversion is for: CAST cuts a text that is too long, an assignment refuses it with 8152.
enum class Purpose { Cast, Assignment };

struct ConversionRequest {
    DataType from, to;
    std::optional<int> style;
    Purpose purpose = Purpose::Cast;
    DateOrder dateOrder = DateOrder::MonthDayYear;
};

/// Throws 235, 241, 242, 245, 8114, 8115, 8152, 40517.
Scalar convert(Scalar value, const ConversionRequest& request);

/// Whether a value of one type has to be changed to stand in the other as far as the storage is concerned.
bool needsConversion(const DataType& from, const DataType& to, Purpose purpose);

/// The value of a literal; `negated` for the minus before it.
Scalar scalarOf(const Literal& literal, bool negated);
DataType typeOf(const Literal& literal);
/// The decimal of just the digits that a number is written with.
DataType decimalOf(const Literal& literal);

/// A type in one number, so that it can be an argument of a function of the storage.
std::int64_t encodeType(const DataType& type);
DataType decodeType(std::int64_t code);

/// The bare name of a type, as the server's messages have it: `nvarchar`, `int`.
std::string typeName(const DataType& type);

} // namespace engine

#include "engine/bind/Binder.h"
#include "engine/bind/BoundMakers.h"
#include "engine/functions/Operators.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

using Kind = DataType::Kind;

/// The server's precedence of types. Money goes behind the other decimals.
int rank(const DataType& type) {
    constexpr std::array kFromLowest = {Kind::Unknown,  Kind::VarBinary, Kind::Char,    Kind::VarChar,  Kind::NChar,
                                        Kind::NVarChar, Kind::Bit,       Kind::TinyInt, Kind::SmallInt, Kind::Int,
                                        Kind::BigInt,   Kind::Decimal,   Kind::Real,    Kind::Float,    Kind::DateTime};
    const auto place = std::find(kFromLowest.begin(), kFromLowest.end(), type.kind) - kFromLowest.begin();
    return static_cast<int>(2 * place) - (type.isMoney() ? 1 : 0);
}

bound::ExpressionPtr number(std::int64_t value) {
    return bound::constant(std::to_string(value), DataType{Kind::BigInt});
}

} // namespace

DataType commonType(const DataType& left, const DataType& right) {
    const DataType& winner = rank(left) >= rank(right) ? left : right;
    const DataType& loser = &winner == &left ? right : left;
    DataType result = winner;
    if (winner.isText() && loser.isText()) {
        result.length = left.length < 0 || right.length < 0 ? -1 : std::max(left.length, right.length);
        if (result.length != winner.length || result.length != loser.length) {
            result.kind = result.kind == Kind::Char    ? Kind::VarChar
                          : result.kind == Kind::NChar ? Kind::NVarChar
                                                       : result.kind;
        }
    } else if (winner.kind == Kind::Decimal && loser.kind == Kind::Decimal) {
        result.scale = std::max(left.scale, right.scale);
        result.precision = std::min(
            kWidestDecimal, std::max(left.precision - left.scale, right.precision - right.scale) + result.scale);
    } else if (winner.kind == Kind::Decimal && !winner.isMoney() && loser.isInteger()) {
        constexpr int kDigitsOfBigInt = 19;
        constexpr int kDigitsOfInt = 10;
        const int digits = loser.kind == Kind::BigInt ? kDigitsOfBigInt : kDigitsOfInt;
        result.precision = std::min(kWidestDecimal, std::max(winner.precision, digits + winner.scale));
    }
    return result;
}

bound::ExpressionPtr Binder::convertTo(bound::ExpressionPtr value, const DataType& type, Purpose purpose,
                                       std::optional<int> style) {
    if (!needsConversion(value->type, type, purpose) && !(style && value->type.isText())) {
        if (value->type.kind == Kind::Unknown || value->type.isText() == type.isText()) {
            value->type = type;
        }
        return value;
    }
    // A literal is converted before it is bound, so that one text of the statement serves all literals.
    if (const auto* use = std::get_if<bound::ParameterUse>(&value->node)) {
        auto& conversion = parameters_[static_cast<std::size_t>(use->place)].conversion;
        if (conversion.to.kind == Kind::Unknown) {
            conversion = {value->type, type, style, purpose, {}};
            value->type = type;
            return value;
        }
    }
    bound::giveAllDigits(*value);
    const DataType from = value->type;
    const bool nullable = value->nullable;
    auto result =
        bound::call(operators::kConvert, type, std::move(value), number(encodeType(from)), number(encodeType(type)),
                    number(style.value_or(-1)), number(purpose == Purpose::Assignment ? 1 : 0));
    result->nullable = nullable;
    return result;
}

/// The literal that an expression is, nullptr where it is anything else or a literal that is to be converted.
bound::Parameter* Binder::bareLiteral(const bound::Expression& value) {
    const auto* use = std::get_if<bound::ParameterUse>(&value.node);
    bound::Parameter* parameter = use == nullptr ? nullptr : &parameters_[static_cast<std::size_t>(use->place)];
    return parameter != nullptr && parameter->conversion.to.kind == Kind::Unknown ? parameter : nullptr;
}

/// Called where no type depends on the number of the digits of a value.
void Binder::freeDigits(const bound::Expression& value) {
    if (bound::Parameter* literal = bareLiteral(value)) {
        literal->digitsMatter = false;
    }
}

/// Converts to a type that is written in the statement or the table. A decimal literal is converted even where it has
/// that type, since the next literal of the same plan may have other digits.
bound::ExpressionPtr Binder::convertWritten(bound::ExpressionPtr value, const DataType& type, Purpose purpose,
                                            std::optional<int> style) {
    bound::Parameter* literal = bareLiteral(*value);
    if (literal == nullptr || value->type.kind != Kind::Decimal) {
        return convertTo(std::move(value), type, purpose, style);
    }
    literal->digitsMatter = false;
    literal->conversion = {value->type, type, style, purpose, {}};
    value->type = type;
    return value;
}

bound::ExpressionPtr Binder::collated(bound::ExpressionPtr value) const {
    if (!value->type.isText()) {
        return value;
    }
    const DataType type = value->type;
    const bool nullable = value->nullable;
    const std::string name = value->name;
    auto result = bound::postfix("COLLATE TSQL", std::move(value), type);
    result->nullable = nullable;
    result->name = name;
    return result;
}

} // namespace engine

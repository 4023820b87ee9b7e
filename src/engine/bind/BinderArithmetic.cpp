#include "engine/bind/Binder.h"
#include "engine/bind/BoundMakers.h"
#include "engine/errors/BindErrors.h"
#include "engine/functions/Operators.h"

namespace engine {

namespace {

using Kind = DataType::Kind;

const char* nameOf(Binary::Operator op) {
    static constexpr const char* kNames[] = {"add", "subtract", "multiply", "divide", "modulo"};
    return kNames[static_cast<int>(op)];
}

} // namespace

bound::ExpressionPtr Binder::negated(bound::ExpressionPtr operand) {
    DataType type = operand->type;
    if ((!type.isNumber() && type.kind != Kind::Unknown) || type.kind == Kind::Bit) {
        throw errors::aggregateOfText(typeName(type), "minus");
    }
    if (type.kind == Kind::TinyInt) {
        type = DataType{Kind::SmallInt};
    }
    auto result = bound::prefix("-", std::move(operand), type);
    if (!type.isInteger()) {
        return result;
    }
    // Minus the smallest integer of a type is outside of the type.
    result = bound::call(operators::kBigInt, DataType{Kind::BigInt}, std::move(result));
    return convertTo(std::move(result), type, Purpose::Cast);
}

/// Next to a decimal, an integer literal counts as a decimal with as many digits as it has.
DataType Binder::digitsOf(const bound::Expression& number) {
    bound::Parameter* literal = number.type.isInteger() ? bareLiteral(number) : nullptr;
    if (literal == nullptr) {
        return number.type;
    }
    literal->digitsMatter = true;
    return decimalOf(literal->constant);
}

bound::ExpressionPtr Binder::arithmetic(Binary::Operator op, bound::ExpressionPtr left, bound::ExpressionPtr right) {
    DataType common = commonType(left->type, right->type);
    if (common.isText()) {
        if (op != Binary::Operator::Add) {
            throw errors::incompatibleTypes(typeName(left->type), typeName(right->type), nameOf(op));
        }
        const bool long_ = left->type.length < 0 || right->type.length < 0;
        const int length = left->type.length + right->type.length;
        common.length = long_ ? -1 : length;
        auto joined = bound::infix("||", std::move(left), std::move(right), common);
        if (length <= longestText(common) || long_) {
            return joined;
        }
        common.length = longestText(common);
        return convertTo(std::move(joined), common, Purpose::Cast);
    }
    const bool untyped = left->type.kind == Kind::Unknown || right->type.kind == Kind::Unknown;
    if (common.kind == Kind::Bit && !untyped) {
        throw errors::incompatibleTypes(typeName(left->type), typeName(right->type), nameOf(op));
    }
    if (common.kind == Kind::Unknown || common.kind == Kind::Bit) {
        common = DataType{Kind::Int};
    }
    if (common.kind == Kind::DateTime) {
        if (op != Binary::Operator::Add && op != Binary::Operator::Subtract) {
            throw errors::aggregateOfText("datetime", nameOf(op));
        }
        const auto days = [&](bound::ExpressionPtr side) {
            side = side->type.isText() ? convertTo(std::move(side), common, Purpose::Cast) : std::move(side);
            return convertTo(std::move(side), DataType{Kind::Float}, Purpose::Cast);
        };
        left = days(std::move(left));
        return convertTo(arithmetic(op, std::move(left), days(std::move(right))), common, Purpose::Cast);
    }
    if (op == Binary::Operator::Modulo && (common.kind == Kind::Float || common.kind == Kind::Real)) {
        throw errors::incompatibleTypes(typeName(left->type), typeName(right->type), nameOf(op));
    }
    const bool decimal = common.kind == Kind::Decimal && !common.isMoney();
    const DataType leftType = left->type.isNumber() ? decimal ? digitsOf(*left) : left->type : common;
    const DataType rightType = right->type.isNumber() ? decimal ? digitsOf(*right) : right->type : common;
    const auto meet = [&](bound::ExpressionPtr side) {
        const bool literal = side->type.kind == Kind::Decimal && common.kind != Kind::Decimal && bareLiteral(*side);
        return side->type.isNumber() && !literal ? std::move(side)
                                                 : convertWritten(std::move(side), common, Purpose::Cast);
    };
    left = meet(std::move(left));
    right = meet(std::move(right));
    if (common.kind == Kind::Decimal) {
        return decimals(op, std::move(left), std::move(right),
                        decimal ? decimalResult(op, leftType, rightType) : common);
    }
    bound::ExpressionPtr result;
    const DataType wide{common.isInteger() ? Kind::BigInt : Kind::Float};
    if (op == Binary::Operator::Divide) {
        result = bound::call(operators::kDivide, wide, std::move(left), std::move(right),
                             bound::constant(common.isInteger() ? "1" : "0", DataType{Kind::Int}));
    } else if (op == Binary::Operator::Modulo) {
        result = bound::call(operators::kModulo, wide, std::move(left), std::move(right));
    } else {
        result = bound::infix(operatorText(op), std::move(left), std::move(right), wide);
    }
    if (common.kind == Kind::Float) {
        return bound::call(operators::kFloat, common, std::move(result));
    }
    if (common.kind == Kind::BigInt) {
        result->type = DataType{Kind::Unknown};
        return bound::call(operators::kBigInt, common, std::move(result));
    }
    return convertTo(std::move(result), common, Purpose::Cast);
}

bound::ExpressionPtr Binder::decimals(Binary::Operator op, bound::ExpressionPtr left, bound::ExpressionPtr right,
                                      const DataType& type) {
    const auto number = [](std::int64_t value) {
        return bound::constant(std::to_string(value), DataType{Kind::BigInt});
    };
    bound::giveAllDigits(*left);
    bound::giveAllDigits(*right);
    return bound::call(operators::kDecimal, type, std::move(left), std::move(right), number(static_cast<int>(op)),
                       number(encodeType(type)), number(0));
}

} // namespace engine

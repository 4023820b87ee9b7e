#include "engine/functions/Operators.h"

#include "engine/errors/FunctionErrors.h"
#include "engine/errors/ValueErrors.h"
#include "engine/functions/FunctionRows.h"
#include "engine/text/Tree.h"
#include "engine/values/Conversions.h"

#include <limits>

namespace engine {

namespace {

constexpr DataType kFloatType{DataType::Kind::Float, 0, 0, 0};

/// Division that refuses zero and stays among integers when both sides are.
Scalar divide(FunctionContext& /*context*/, Arguments arguments) {
    if (numberAt(arguments, 1) == 0.0) {
        throw errors::divideByZero();
    }
    const auto* left = std::get_if<std::int64_t>(&arguments[0]);
    const auto* right = std::get_if<std::int64_t>(&arguments[1]);
    const bool integers = left != nullptr && right != nullptr && integerAt(arguments, 2) != 0;
    if (!integers) {
        return finiteNumber(numberAt(arguments, 0) / numberAt(arguments, 1), kFloatType);
    }
    if (*right == -1 && *left == std::numeric_limits<std::int64_t>::min()) {
        throw errors::overflow("expression", "bigint");
    }
    return *left / *right;
}

Scalar modulo(FunctionContext& /*context*/, Arguments arguments) {
    if (integerAt(arguments, 1) == 0) {
        throw errors::divideByZero();
    }
    const std::int64_t divisor = integerAt(arguments, 1);
    return divisor == -1 ? std::int64_t{0} : integerAt(arguments, 0) % divisor;
}

Decimal calculated(Binary::Operator op, const Decimal& left, const Decimal& right, int places) {
    switch (op) {
    case Binary::Operator::Add:
        return left.plus(right);
    case Binary::Operator::Subtract:
        return left.plus(right.negated());
    case Binary::Operator::Multiply:
        return left.times(right);
    default:
        break;
    }
    if (right.isZero()) {
        throw errors::divideByZero();
    }
    return op == Binary::Operator::Divide ? left.over(right, places) : left.modulo(right);
}

Scalar decimal(FunctionContext& /*context*/, Arguments arguments) {
    const auto op = static_cast<Binary::Operator>(integerAt(arguments, 2));
    const DataType type = decodeType(integerAt(arguments, 3));
    const Decimal result =
        calculated(op, decimalOf(arguments[0]), decimalOf(arguments[1]), type.scale).rounded(type.scale);
    if (!result.fits(type)) {
        throw errors::overflow("expression", typeName(type));
    }
    const Scalar value = scalarOf(result);
    return integerAt(arguments, 4) != 0 ? value : kept(value);
}

/// value, type it has, type it gets, style or -1, 1 where it is an assignment
Scalar convertValue(FunctionContext& context, Arguments arguments) {
    ConversionRequest request;
    request.from = decodeType(integerAt(arguments, 1));
    request.to = decodeType(integerAt(arguments, 2));
    if (integerAt(arguments, 3) >= 0) {
        request.style = static_cast<int>(integerAt(arguments, 3));
    }
    request.purpose = integerAt(arguments, 4) != 0 ? Purpose::Assignment : Purpose::Cast;
    request.dateOrder = context.dateOrder;
    return convert(arguments[0], request);
}

/// A sum or product of floats: the storage lets it become infinite.
Scalar floatNumber(FunctionContext& /*context*/, Arguments arguments) {
    return finiteNumber(numberAt(arguments, 0), kFloatType);
}

/// A sum or product of bigints: the storage goes over to floating numbers where it leaves their range.
Scalar bigInteger(FunctionContext& /*context*/, Arguments arguments) {
    if (!std::holds_alternative<std::int64_t>(arguments[0])) {
        throw errors::overflow("expression", "bigint");
    }
    return arguments[0];
}

/// Raised by the translation of a subselect that may give one row at most.
Scalar tooManyRows(FunctionContext& /*context*/, Arguments /*arguments*/) {
    throw errors::moreThanOneValue();
}

constexpr OperatorRow kOperators[] = {
    {operators::kBigInt, 1, bigInteger},       {operators::kConvert, 5, convertValue},
    {operators::kDecimal, 5, decimal},         {operators::kDivide, 3, divide},
    {operators::kFloat, 1, floatNumber},       {operators::kModulo, 2, modulo},
    {operators::kTooManyRows, 0, tooManyRows},
};

} // namespace

std::span<const OperatorRow> operatorRows() {
    return kOperators;
}

} // namespace engine

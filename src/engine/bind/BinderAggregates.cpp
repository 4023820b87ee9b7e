#include "engine/bind/Binder.h"
#include "engine/bind/BoundMakers.h"
#include "engine/errors/BindErrors.h"
#include "engine/errors/TextErrors.h"
#include "engine/functions/Operators.h"
#include "engine/values/Ascii.h"

#include <algorithm>

namespace engine {

namespace {

using Kind = DataType::Kind;

/// SUM of the small integers is an int, of decimals a wide decimal.
DataType sumType(const DataType& type) {
    if (type.kind == Kind::BigInt || type.isMoney()) {
        return type;
    }
    if (type.kind == Kind::Decimal) {
        return {Kind::Decimal, 0, kWidestDecimal, type.scale};
    }
    return type.isInteger() ? DataType{Kind::Int, 0, 0, 0} : DataType{Kind::Float, 0, 0, 0};
}

} // namespace

bound::ExpressionPtr Binder::aggregate(const Call& call, const std::string& name) {
    if (insideAggregate_) {
        throw errors::aggregateOfAggregate();
    }
    if (scope_ == nullptr) {
        throw errors::aggregateMisplaced();
    }
    if (insideGroupBy_) {
        throw errors::groupedByAggregate();
    }
    bound::Call made;
    made.aggregate = true;
    made.distinct = call.distinct;
    made.star = call.star;
    auto result = std::make_unique<bound::Expression>();
    const bool counts = name == "COUNT" || name == "COUNT_BIG";
    if (call.star && !counts) {
        throw errors::syntaxNear("*", -1);
    }
    if (!call.star) {
        if (call.arguments.size() != 1) {
            throw errors::argumentCount(call.function, 1);
        }
        insideAggregate_ = true;
        made.arguments.push_back(collated(expression(*call.arguments.front())));
        insideAggregate_ = false;
    }
    Scope& owner = ownerOf(made, *scope_);
    if (!owner.aggregates) {
        throw errors::aggregateMisplaced();
    }
    owner.sawAggregate = true;
    const DataType type = call.star ? DataType{Kind::Int} : made.arguments.front()->type;
    const bool compares = name == "MIN" || name == "MAX";
    if (type.kind == Kind::Unknown || (!counts && type.kind == Kind::Bit) ||
        (!counts && !compares && !type.isNumber())) {
        throw errors::aggregateOfText(typeName(type), smallLetters(name));
    }
    if (counts) {
        made.function = "count";
        result->nullable = false;
        result->type = {name == "COUNT" ? Kind::Int : Kind::BigInt, 0, 0, 0};
        result->node = std::move(made);
        return result;
    }
    if (compares) {
        made.function = smallLetters(name);
        result->type = type;
        result->node = std::move(made);
        return result;
    }
    const DataType wanted = sumType(type);
    if (name == "AVG" && wanted.kind != Kind::Float) {
        return average(call, wanted);
    }
    const bool decimal = wanted.kind == Kind::Decimal;
    made.function = name == "AVG" ? "avg" : decimal ? operators::kDecimalSum : "sum";
    bound::giveAllDigits(*made.arguments.front());
    result->node = std::move(made);
    result->type = wanted.kind == Kind::Float ? wanted : decimal ? kAnyDecimal : DataType{Kind::BigInt};
    return wanted.kind == Kind::Float ? bound::call(operators::kFloat, wanted, std::move(result))
                                      : convertTo(std::move(result), wanted, Purpose::Cast);
}

/// The sum in its type, divided by the count. Without rows the sum is NULL, and so is the average.
bound::ExpressionPtr Binder::average(const Call& call, const DataType& sumType) {
    auto sum = aggregate(call, "SUM");
    auto count = aggregate(call, "COUNT_BIG");
    if (sumType.isInteger()) {
        return bound::infix("/", std::move(sum), std::move(count), sumType);
    }
    constexpr int kLeastScale = 6;
    DataType type = sumType;
    type.scale = type.isMoney() ? type.scale : std::max(type.scale, kLeastScale);
    return decimals(Binary::Operator::Divide, std::move(sum), std::move(count), type);
}

} // namespace engine

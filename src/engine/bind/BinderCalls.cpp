#include "engine/bind/Binder.h"
#include "engine/bind/BoundMakers.h"
#include "engine/errors/BindErrors.h"
#include "engine/errors/TextErrors.h"
#include "engine/functions/Functions.h"
#include "engine/functions/Operators.h"
#include "engine/values/Ascii.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

using Kind = DataType::Kind;
using Result = FunctionRow::Result;
using Parameter = FunctionParameter::Kind;

constexpr std::array kAggregates = {"COUNT", "COUNT_BIG", "SUM", "AVG", "MIN", "MAX"};

DataType resultType(Result result, const std::vector<bound::ExpressionPtr>& arguments) {
    switch (result) {
    case Result::Int:
        return {Kind::Int, 0, 0, 0};
    case Result::Numeric:
        return {Kind::Decimal, 0, kWidestDecimal, 0};
    case Result::DateTime:
        return {Kind::DateTime, 0, 0, 0};
    case Result::SystemName:
        return {Kind::NVarChar, kSystemNameLength, 0, 0};
    case Result::LongText: {
        DataType type{Kind::VarChar, 0, 0, 0};
        for (const bound::ExpressionPtr& argument : arguments) {
            type.kind = argument->type.isNational() ? Kind::NVarChar : type.kind;
        }
        const DataType& first = arguments.front()->type;
        type.length = first.isText() && first.length < 0 ? -1 : longestText(type);
        return type;
    }
    case Result::TextAsFirst: {
        DataType type = arguments.front()->type;
        type.kind = type.isNational() ? Kind::NVarChar : Kind::VarChar; // its blanks may be gone
        return type;
    }
    case Result::AsFirstBeyond:
        return arguments.front()->type;
    case Result::Rounded:
    case Result::Whole:
        break;
    }
    DataType type = arguments.front()->type;
    if (type.kind == Kind::TinyInt || type.kind == Kind::SmallInt) {
        type.kind = Kind::Int;
    } else if (type.kind == Kind::Real) {
        type.kind = Kind::Float;
    } else if (type.kind == Kind::Decimal && !type.isMoney() && result == Result::Whole) {
        type.scale = 0;
    }
    return type;
}

} // namespace

bound::ExpressionPtr Binder::node(const Call& call) {
    const std::string name = capitals(call.function);
    if (std::find(kAggregates.begin(), kAggregates.end(), name) != kAggregates.end()) {
        return aggregate(call, name);
    }
    const auto want = [&](std::size_t count) {
        if (call.arguments.size() != count) {
            throw errors::argumentCount(call.function, static_cast<int>(count));
        }
    };
    if (name == "ISNULL") {
        want(2);
        auto first = expression(*call.arguments[0]);
        auto second = expression(*call.arguments[1]);
        const DataType type = first->type.kind == Kind::Unknown ? second->type : first->type;
        const bool nullable = second->nullable;
        second = convertTo(std::move(second), type, Purpose::Cast);
        auto result = bound::call("ifnull", type, std::move(first), std::move(second));
        result->nullable = nullable;
        return result;
    }
    if (name == "NULLIF") {
        want(2);
        auto first = expression(*call.arguments[0]);
        const DataType type = first->type;
        if (type.kind == Kind::Unknown) {
            throw errors::nullIfOfNull();
        }
        bound::Case choice;
        choice.branches.push_back(
            {compare("=", std::move(first), expression(*call.arguments[1])), bound::constant("NULL", DataType{})});
        choice.otherwise = expression(*call.arguments[0]);
        return bound::expressionOf(std::move(choice), type);
    }
    if (name == "COALESCE") {
        if (call.arguments.size() < 2) {
            throw errors::argumentCount("coalesce", 2);
        }
        std::vector<bound::ExpressionPtr> arguments;
        DataType common;
        for (const ExpressionPtr& argument : call.arguments) {
            arguments.push_back(expression(*argument));
            common = commonType(common, arguments.back()->type);
        }
        if (common.kind == Kind::Unknown) {
            throw errors::coalesceOfNulls();
        }
        for (bound::ExpressionPtr& argument : arguments) {
            argument = convertTo(std::move(argument), common, Purpose::Cast);
        }
        return bound::callOf("coalesce", common, std::move(arguments));
    }
    return builtIn(call);
}

bound::ExpressionPtr Binder::argument(const Call& call, std::size_t place, FunctionParameter::Kind kind) {
    const Expression& written = *call.arguments[place];
    if (kind == Parameter::DatePart) {
        const auto* part = std::get_if<ColumnReference>(&written.node);
        if (part == nullptr) {
            throw errors::invalidParameter(static_cast<int>(place) + 1, call.function, written.position);
        }
        return bound::constant(bound::quotedText(part->name.last()), DataType{Kind::VarChar, kSystemNameLength, 0, 0});
    }
    auto value = expression(written);
    const bool needsNumber = kind == Parameter::Float || kind == Parameter::Number;
    if ((needsNumber && (value->type.kind == Kind::DateTime || value->type.kind == Kind::VarBinary)) ||
        (kind == Parameter::Written && !value->type.isText())) {
        throw errors::argumentType(typeName(value->type), static_cast<int>(place) + 1, smallLetters(call.function));
    }
    const bool text = value->type.isText();
    DataType wanted; // Unknown: as it is
    if (kind == Parameter::Text && !text) {
        wanted = {Kind::VarChar, kLongestText, 0, 0};
    } else if (kind == Parameter::Int) {
        wanted.kind = Kind::Int;
    } else if ((kind == Parameter::Float && !value->type.isNumber()) || (kind == Parameter::Number && text)) {
        wanted.kind = Kind::Float;
    } else if (kind == Parameter::Date) {
        wanted.kind = Kind::DateTime;
    }
    return wanted.kind == Kind::Unknown ? std::move(value) : convertTo(std::move(value), wanted, Purpose::Cast);
}

bound::ExpressionPtr Binder::builtIn(const Call& call) {
    const FunctionRow* row = findFunction(call.function);
    if (row == nullptr) {
        throw errors::unknownFunction(call.function);
    }
    const FunctionParameters& parameters = row->parameters;
    const std::size_t given = call.arguments.size();
    if (given < parameters.least() || given > parameters.most()) {
        throw errors::argumentCount(call.function, static_cast<int>(parameters.most()));
    }
    std::vector<bound::ExpressionPtr> arguments;
    for (std::size_t i = 0; i < given; ++i) {
        arguments.push_back(argument(call, i, parameters[i].kind));
        if (parameters[i].kind == Parameter::Typed) {
            const std::string type = std::to_string(encodeType(arguments.back()->type));
            arguments.push_back(bound::constant(type, DataType{Kind::BigInt, 0, 0, 0}));
        }
    }
    if (row->result == Result::Rounded) {
        bound::giveAllDigits(*arguments.front());
    }
    const DataType type = resultType(row->result, arguments);
    auto result = bound::callOf(storageName(*row), type, std::move(arguments));
    if (row->result == Result::LongText) {
        if (type.length < 0 && row->name == std::string_view("REPLICATE")) {
            throw errors::argumentType(typeName(type) + "(max)", 1, "replicate"); // it could be of any length
        }
        result->type.length = -1;
        return convertTo(std::move(result), type, Purpose::Cast);
    }
    const bool beyond = row->result == Result::AsFirstBeyond || row->result == Result::Rounded;
    if (beyond && type.kind != Kind::Float) {
        result->type = type.isInteger()             ? DataType{Kind::BigInt}
                       : type.kind == Kind::Decimal ? kAnyDecimal
                                                    : DataType{Kind::Float};
        return convertTo(std::move(result), type, Purpose::Cast);
    }
    return result;
}

bound::ExpressionPtr Binder::node(const ServerVariable& variable) {
    const std::string spelt = variable.name.starts_with("@@") ? variable.name : "@@" + variable.name;
    const FunctionRow* row = findServerVariable(spelt);
    if (row == nullptr) {
        throw errors::undeclaredVariable(spelt, -1);
    }
    return bound::callOf(storageName(*row), resultType(row->result, {}), {});
}

} // namespace engine

#include "engine/bind/BoundMakers.h"

#include "engine/functions/Operators.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

using Kind = DataType::Kind;

constexpr int kLeastQuotientScale = 6;

} // namespace

namespace bound {

std::string quotedText(std::string_view text) {
    std::string result = "'";
    for (const char c : text) {
        result += c == '\'' ? "''" : std::string(1, c);
    }
    return result + "'";
}

ExpressionPtr constant(std::string text, const DataType& type) {
    auto result = expressionOf(Constant{std::move(text)}, type);
    result->nullable = false;
    return result;
}

namespace {

template<class... Operands>
ExpressionPtr operation(std::string op, bool postfix, const DataType& type, Operands... operands) {
    Operation made{std::move(op), {}, postfix};
    (made.operands.push_back(std::move(operands)), ...);
    return expressionOf(std::move(made), type);
}

} // namespace

ExpressionPtr prefix(std::string op, ExpressionPtr operand, const DataType& type) {
    return operation(std::move(op), false, type, std::move(operand));
}

ExpressionPtr postfix(std::string op, ExpressionPtr operand, const DataType& type) {
    return operation(std::move(op), true, type, std::move(operand));
}

ExpressionPtr infix(std::string op, ExpressionPtr left, ExpressionPtr right, const DataType& type) {
    return operation(std::move(op), false, type, std::move(left), std::move(right));
}

ExpressionPtr callOf(std::string function, const DataType& type, std::vector<ExpressionPtr> arguments) {
    Call call;
    call.function = std::move(function);
    call.arguments = std::move(arguments);
    return expressionOf(std::move(call), type);
}

std::vector<const Expression*> partsOf(const Expression& whole) {
    std::vector<const Expression*> parts;
    const auto add = [&](const ExpressionPtr& part) {
        if (part) {
            parts.push_back(part.get());
        }
    };
    if (const auto* operation = std::get_if<Operation>(&whole.node)) {
        std::for_each(operation->operands.begin(), operation->operands.end(), add);
    } else if (const auto* call = std::get_if<Call>(&whole.node)) {
        std::for_each(call->arguments.begin(), call->arguments.end(), add);
    } else if (const auto* choice = std::get_if<Case>(&whole.node)) {
        for (const Case::Branch& branch : choice->branches) {
            add(branch.when);
            add(branch.then);
        }
        add(choice->otherwise);
    } else if (const auto* in = std::get_if<InList>(&whole.node)) {
        add(in->operand);
        std::for_each(in->list.begin(), in->list.end(), add);
    } else if (const auto* subselect = std::get_if<Subselect>(&whole.node)) {
        add(subselect->operand);
    }
    return parts;
}

bool isConstant(const Expression& expression) {
    if (std::holds_alternative<ParameterUse>(expression.node) || std::holds_alternative<Constant>(expression.node)) {
        return true;
    }
    const auto* call = std::get_if<Call>(&expression.node);
    const bool opaque = std::holds_alternative<Subselect>(expression.node) || (call && call->aggregate);
    const auto parts = partsOf(expression);
    return !opaque && !parts.empty() &&
           std::all_of(parts.begin(), parts.end(), [](const auto* part) { return isConstant(*part); });
}

void giveAllDigits(Expression& value) {
    auto* call = std::get_if<Call>(&value.node);
    if (call != nullptr && call->function == operators::kDecimal) {
        call->arguments.back() = constant("1", DataType{Kind::Int});
    }
}

} // namespace bound

DataType asDecimal(const DataType& type) {
    constexpr std::array kDigits = {10, 1, 3, 5, 10, 19}; // in the order of DataType::Kind
    if (type.kind == Kind::Decimal) {
        return type;
    }
    return {Kind::Decimal, 0, kDigits[type.isInteger() ? static_cast<std::size_t>(type.kind) : 0], 0};
}

const char* operatorText(Binary::Operator op) {
    static constexpr const char* kTexts[] = {"+", "-", "*", "/", "%", "=", "<>", "<", "<=", ">", ">=", "AND", "OR"};
    return kTexts[static_cast<int>(op)];
}

DataType comparable(const DataType& type) {
    if (type.isText()) {
        return {type.kind == Kind::Char || type.kind == Kind::VarChar ? Kind::VarChar : Kind::NVarChar, -1, 0, 0};
    }
    return type.kind == Kind::Decimal && !type.isMoney() ? kAnyDecimal : type;
}

int longestText(const DataType& type) {
    return type.isNational() ? kLongestNationalText : kLongestText;
}

DataType decimalResult(Binary::Operator op, const DataType& leftType, const DataType& rightType) {
    const DataType left = asDecimal(leftType);
    const DataType right = asDecimal(rightType);
    DataType result{Kind::Decimal, 0, 0, 0};
    const bool quotient = op == Binary::Operator::Divide || op == Binary::Operator::Multiply;
    const int leftWhole = left.precision - left.scale;
    const int rightWhole = right.precision - right.scale;
    if (op == Binary::Operator::Divide) {
        result.scale = std::max(kLeastQuotientScale, left.scale + right.precision + 1);
        result.precision = leftWhole + right.scale + result.scale;
    } else if (op == Binary::Operator::Multiply) {
        result.scale = left.scale + right.scale;
        result.precision = left.precision + right.precision + 1;
    } else {
        result.scale = std::max(left.scale, right.scale);
        result.precision = op == Binary::Operator::Modulo ? std::min(leftWhole, rightWhole) + result.scale
                                                          : std::max(leftWhole, rightWhole) + result.scale + 1;
    }
    if (result.precision > kWidestDecimal) {
        const int whole = result.precision - result.scale;
        result.scale = quotient ? std::max(kWidestDecimal - whole, std::min(result.scale, kLeastQuotientScale))
                                : std::min(kWidestDecimal - std::max(leftWhole, rightWhole), result.scale);
        result.precision = kWidestDecimal;
    }
    return result;
}

} // namespace engine

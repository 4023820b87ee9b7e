#pragma once

// Short ways to make the nodes of a bound tree, and the arithmetic of types that goes with them.

#include "engine/bind/BoundTree.h"

#include <utility>

namespace engine {

namespace bound {

template<class Node>
ExpressionPtr expressionOf(Node node, const DataType& type) {
    auto result = std::make_unique<Expression>();
    result->node = std::move(node);
    result->type = type;
    return result;
}

/// A text as a literal of SQLite.
std::string quotedText(std::string_view text);
ExpressionPtr constant(std::string text, const DataType& type);
ExpressionPtr prefix(std::string op, ExpressionPtr operand, const DataType& type);
ExpressionPtr postfix(std::string op, ExpressionPtr operand, const DataType& type);
ExpressionPtr infix(std::string op, ExpressionPtr left, ExpressionPtr right, const DataType& type);
ExpressionPtr callOf(std::string function, const DataType& type, std::vector<ExpressionPtr> arguments);

template<class... Pointers>
ExpressionPtr call(std::string function, const DataType& type, Pointers... arguments) {
    std::vector<ExpressionPtr> list;
    list.reserve(sizeof...(arguments));
    (list.push_back(std::move(arguments)), ...);
    return callOf(std::move(function), type, std::move(list));
}

/// What an expression is made of, but for what is inside of a SELECT.
std::vector<const Expression*> partsOf(const Expression& whole);
/// Whether it is made of literals alone.
bool isConstant(const Expression& expression);

/// For who takes a result of decimals by all its digits: without this it is refused where a double doesn't keep it.
void giveAllDigits(Expression& value);

} // namespace bound

/// An integer as the decimal that holds all its values; 10 digits for what is no number.
DataType asDecimal(const DataType& type);
/// As SQLite writes it.
const char* operatorText(Binary::Operator op);
/// The type in which values are compared: no length cuts a text, no scale rounds a number.
DataType comparable(const DataType& type);
/// The longest text of a kind that is not `max`.
int longestText(const DataType& type);
/// Precision and scale of a sum, product or quotient of decimals, as the server computes them.
DataType decimalResult(Binary::Operator op, const DataType& left, const DataType& right);

} // namespace engine

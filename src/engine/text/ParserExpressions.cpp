#include "engine/errors/TextErrors.h"
#include "engine/text/ParserGrammar.h"

#include <array>

namespace engine {

namespace {

enum Precedence { kOr = 1, kAnd, kNot, kComparison, kSum, kProduct };

struct OperatorRow {
    std::string_view symbol;
    Binary::Operator op;
    int precedence;
};

using Op = Binary::Operator;

constexpr std::array<OperatorRow, 14> kOperators = {{{"+", Op::Add, kSum},
                                                     {"-", Op::Subtract, kSum},
                                                     {"*", Op::Multiply, kProduct},
                                                     {"/", Op::Divide, kProduct},
                                                     {"%", Op::Modulo, kProduct},
                                                     {"=", Op::Equal, kComparison},
                                                     {"<>", Op::NotEqual, kComparison},
                                                     {"!=", Op::NotEqual, kComparison},
                                                     {"<", Op::Less, kComparison},
                                                     {"<=", Op::LessEqual, kComparison},
                                                     {"!>", Op::LessEqual, kComparison},
                                                     {">", Op::Greater, kComparison},
                                                     {">=", Op::GreaterEqual, kComparison},
                                                     {"!<", Op::GreaterEqual, kComparison}}};

constexpr OperatorRow kConjunction = {"", Op::And, kAnd};
constexpr OperatorRow kDisjunction = {"", Op::Or, kOr};

const OperatorRow* operatorOf(const Token& token) {
    if (token.is(Keyword::And)) {
        return &kConjunction;
    }
    if (token.is(Keyword::Or)) {
        return &kDisjunction;
    }
    if (token.kind == Token::Kind::Symbol) {
        for (const OperatorRow& row : kOperators) {
            if (row.symbol == token.text) {
                return &row;
            }
        }
    }
    return nullptr;
}

bool startsPredicate(const Token& token) {
    return token.is(Keyword::Like) || token.is(Keyword::Between) || token.is(Keyword::In);
}

bool isCondition(const Expression& expression) {
    const auto& node = expression.node;
    if (const auto* unary = std::get_if<Unary>(&node)) {
        return unary->op != Unary::Operator::Minus && unary->op != Unary::Operator::Plus;
    }
    if (const auto* binary = std::get_if<Binary>(&node)) {
        return binary->op >= Op::Equal;
    }
    return std::holds_alternative<Like>(node) || std::holds_alternative<Between>(node) ||
           std::holds_alternative<In>(node) || std::holds_alternative<Exists>(node);
}

} // namespace

ExpressionPtr Grammar::expressionAlone() {
    structural_ = true; // it will stand in statements whose literals are not its own
    auto expression = value();
    if (!atEnd()) {
        refuse();
    }
    return expression;
}

ExpressionPtr Grammar::value() {
    auto expression = climb(kSum);
    requireValue(*expression);
    return expression;
}

ExpressionPtr Grammar::condition() {
    auto expression = climb(kOr);
    requireCondition(*expression);
    return expression;
}

/// Operators of at least that precedence, by precedence climbing: a chain of them is a loop, only brackets recurse.
ExpressionPtr Grammar::climb(int least) {
    const Measure measure(*this);
    auto left = operand(least);
    for (;;) {
        const bool condition = isCondition(*left);
        const auto* row = operatorOf(now());
        if (row != nullptr && row->precedence >= least && (row->precedence <= kAnd || !condition)) {
            left = binary(std::move(left), row->op, row->precedence);
        } else if (least <= kComparison && !condition &&
                   (at(Keyword::Is) || startsPredicate(now()) || (at(Keyword::Not) && startsPredicate(ahead(1))))) {
            left = predicate(std::move(left));
        } else {
            return left;
        }
        grow();
    }
}

ExpressionPtr Grammar::operand(int least) {
    if (!at(Keyword::Not) || least > kNot) {
        return primary();
    }
    const Level level(*this);
    const int position = consume().position;
    auto operand = at(Keyword::Not) ? this->operand(kNot) : climb(kComparison);
    requireCondition(*operand);
    return makeExpression(position, Unary{Unary::Operator::Not, std::move(operand)});
}

ExpressionPtr Grammar::binary(ExpressionPtr left, Binary::Operator op, int precedence) {
    const bool joinsConditions = precedence <= kAnd;
    if (joinsConditions) {
        requireCondition(*left);
    }
    const int position = consume().position;
    if (precedence == kComparison) {
        for (const char* word : {"ALL", "ANY", "SOME"}) {
            refuseWord(word, std::string(word) + " (SELECT …)");
        }
    }
    auto right = climb(precedence + 1);
    if (joinsConditions) {
        requireCondition(*right);
    } else {
        requireValue(*right);
    }
    return makeExpression(position, Binary{op, std::move(left), std::move(right)});
}

ExpressionPtr Grammar::predicate(ExpressionPtr left) {
    if (at(Keyword::Is)) {
        return isNull(std::move(left));
    }
    const bool negated = consumeIf(Keyword::Not);
    if (at(Keyword::Like)) {
        return like(std::move(left), negated);
    }
    return at(Keyword::Between) ? between(std::move(left), negated) : in(std::move(left), negated);
}

ExpressionPtr Grammar::isNull(ExpressionPtr left) {
    const int position = consume().position;
    const bool negated = consumeIf(Keyword::Not);
    expect(Keyword::Null);
    const auto op = negated ? Unary::Operator::IsNotNull : Unary::Operator::IsNull;
    return makeExpression(position, Unary{op, std::move(left)});
}

ExpressionPtr Grammar::like(ExpressionPtr left, bool negated) {
    const int position = consume().position;
    auto pattern = value();
    auto escape = consumeIf(Keyword::Escape) ? value() : nullptr;
    return makeExpression(position, Like{std::move(left), std::move(pattern), std::move(escape), negated});
}

ExpressionPtr Grammar::between(ExpressionPtr left, bool negated) {
    const int position = consume().position;
    auto low = value();
    expect(Keyword::And);
    auto high = value();
    return makeExpression(position, Between{std::move(left), std::move(low), std::move(high), negated});
}

ExpressionPtr Grammar::in(ExpressionPtr left, bool negated) {
    const int position = consume().position;
    In in{std::move(left), {}, nullptr, negated};
    if (at("(") && ahead(1).is(Keyword::Select)) {
        in.select = selectInBrackets();
    } else {
        expect("(");
        in.list = values();
        expect(")");
    }
    return makeExpression(position, std::move(in));
}

void Grammar::requireCondition(const Expression& expression) const {
    if (!isCondition(expression)) {
        throw errors::conditionExpected(valueOf(nearest()), nearest().position);
    }
}

void Grammar::requireValue(const Expression& expression) const {
    if (isCondition(expression)) {
        refuse();
    }
}

} // namespace engine

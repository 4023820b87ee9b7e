#include "engine/errors/TextErrors.h"
#include "engine/text/ParserGrammar.h"
#include "engine/text/Shape.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

/// Reserved words that are functions where a bracket follows.
constexpr std::array kFunctions = {Keyword::Left, Keyword::Right, Keyword::Coalesce, Keyword::Nullif};
/// Reserved words that are functions without brackets.
constexpr std::array kBareFunctions = {Keyword::CurrentTimestamp, Keyword::CurrentUser, Keyword::SessionUser,
                                       Keyword::SystemUser, Keyword::User};
constexpr std::array<std::string_view, 2> kCounts = {"COUNT", "COUNT_BIG"};

constexpr std::size_t kMostPieces = 4;

} // namespace

ExpressionPtr Grammar::primary() {
    const Token& token = now();
    if (token.isLiteral()) {
        return literal();
    }
    if (token.kind == Token::Kind::Keyword) {
        return keywordExpression();
    }
    if (token.isName()) {
        return wordExpression();
    }
    if (token.kind == Token::Kind::ServerVariable) {
        return makeExpression(token.position, ServerVariable{valueOf(consume()).substr(2)});
    }
    if (token.kind == Token::Kind::Variable) {
        throw errors::undeclaredVariable(valueOf(token), token.position);
    }
    if (at("(")) {
        return brackets();
    }
    if (at("-") || at("+")) {
        return sign();
    }
    refuse();
}

ExpressionPtr Grammar::literal() {
    const Token& token = consume();
    return makeExpression(token.position, literalOf(token, structural_ ? -1 : token.literal - firstLiteral_));
}

ExpressionPtr Grammar::sign() {
    const Level level(*this);
    const Token& token = consume();
    const auto op = token.is("-") ? Unary::Operator::Minus : Unary::Operator::Plus;
    auto operand = primary();
    requireValue(*operand);
    return makeExpression(token.position, Unary{op, std::move(operand)});
}

ExpressionPtr Grammar::brackets() {
    if (ahead(1).is(Keyword::Select)) {
        return makeExpression(now().position, ScalarSelect{selectInBrackets()});
    }
    const Level level(*this);
    expect("(");
    constexpr int kAnything = 0;
    auto inside = climb(kAnything);
    expect(")");
    return inside;
}

ExpressionPtr Grammar::keywordExpression() {
    const Token& token = now();
    const auto isOneOf = [&](const auto& keywords) {
        return std::find(keywords.begin(), keywords.end(), token.keyword) != keywords.end();
    };
    if (token.is(Keyword::Null)) {
        consume();
        return makeExpression(token.position, Literal{});
    }
    if (token.is(Keyword::Case)) {
        return caseExpression();
    }
    if (token.is(Keyword::Exists)) {
        return exists();
    }
    if (token.is(Keyword::Convert)) {
        return convert();
    }
    if (isOneOf(kFunctions) && ahead(1).is("(")) {
        return call(valueOf(consume()));
    }
    if (isOneOf(kBareFunctions)) {
        return makeExpression(token.position, Call{valueOf(consume()), {}, false, false});
    }
    refuse();
}

ExpressionPtr Grammar::wordExpression() {
    const int position = now().position;
    if (atWord("CAST") && ahead(1).is("(")) {
        return cast();
    }
    if (now().kind == Token::Kind::Identifier && ahead(1).is("(")) {
        return call(valueOf(consume()));
    }
    return makeExpression(position, ColumnReference{name()});
}

ExpressionPtr Grammar::exists() {
    const int position = consume().position;
    return makeExpression(position, Exists{selectInBrackets()});
}

ExpressionPtr Grammar::caseExpression() {
    const Level level(*this);
    Case node;
    const int position = consume().position;
    if (!at(Keyword::When)) {
        node.operand = value();
    }
    do {
        expect(Keyword::When);
        Case::Branch branch;
        branch.when = node.operand ? value() : condition();
        expect(Keyword::Then);
        branch.then = value();
        node.branches.push_back(std::move(branch));
    } while (at(Keyword::When));
    if (consumeIf(Keyword::Else)) {
        node.otherwise = value();
    }
    expect(Keyword::End);
    return makeExpression(position, std::move(node));
}

ExpressionPtr Grammar::convert() {
    const Level level(*this);
    Conversion node;
    const int position = consume().position;
    expect("(");
    node.type = conversionType();
    expect(",");
    node.operand = value();
    if (consumeIf(",")) {
        node.style = static_cast<int>(expectInteger());
    }
    expect(")");
    return makeExpression(position, std::move(node));
}

ExpressionPtr Grammar::cast() {
    const Level level(*this);
    Conversion node;
    node.isCast = true;
    const int position = consume().position;
    expect("(");
    node.operand = value();
    expect(Keyword::As);
    node.type = conversionType();
    expect(")");
    return makeExpression(position, std::move(node));
}

ExpressionPtr Grammar::call(std::string function) {
    const Level level(*this);
    const int position = last().position;
    const bool counts =
        std::any_of(kCounts.begin(), kCounts.end(), [&](std::string_view count) { return sameWord(count, function); });
    Call node{std::move(function), {}, false, false};
    expect("(");
    node.star = counts && consumeIf("*");
    if (!node.star && !at(")")) {
        node.distinct = consumeIf(Keyword::Distinct);
        if (!node.distinct) {
            consumeIf(Keyword::All);
        }
        node.arguments = values();
    }
    expect(")");
    return makeExpression(position, std::move(node));
}

std::vector<ExpressionPtr> Grammar::values() {
    std::vector<ExpressionPtr> values;
    do {
        values.push_back(value());
    } while (consumeIf(","));
    return values;
}

Name Grammar::name() {
    Name name;
    name.position = now().position;
    name.pieces.push_back(expectName());
    while (consumeIf(".")) {
        name.pieces.push_back(at(".") ? std::string() : expectName());
    }
    if (name.pieces.size() > kMostPieces) {
        throw errors::tooManyPrefixes(textBetween(name.position, last().end()), name.position);
    }
    return name;
}

} // namespace engine

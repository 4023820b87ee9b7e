#include "engine/text/Shape.h"

#include "engine/text/Lexer.h"
#include "engine/values/Ascii.h"
#include "engine/values/CodePage.h"
#include "engine/values/Scalar.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace engine {

namespace {

std::string_view markerOf(const Literal& literal) {
    constexpr std::array kMarkers{"", "?i", "?d", "?f", "?t", "?n"}; // in the order of Literal::Kind
    const bool text = literal.kind == Literal::Kind::Text || literal.kind == Literal::Kind::NationalText;
    if (!text || typeOf(literal).length >= 0) {
        return kMarkers[static_cast<std::size_t>(literal.kind)];
    }
    return literal.kind == Literal::Kind::Text ? "?T" : "?N";
}

} // namespace

Literal literalOf(const Token& token, int index) {
    switch (token.kind) {
    case Token::Kind::Integer:
        return {Literal::Kind::Integer, valueOf(token), index};
    case Token::Kind::Decimal:
        return {Literal::Kind::Decimal, valueOf(token), index};
    case Token::Kind::Float:
        return {Literal::Kind::Float, valueOf(token), index};
    case Token::Kind::Text:
        return {Literal::Kind::Text, inCodePage(valueOf(token)), index};
    case Token::Kind::NationalText:
        return {Literal::Kind::NationalText, valueOf(token), index};
    default:
        return {};
    }
}

Shape shapeOf(std::span<const Token> tokens) {
    constexpr std::size_t kUsualLength = 8;
    Shape shape;
    shape.key.reserve(tokens.size() * kUsualLength);
    for (const Token& token : tokens) {
        if (token.kind == Token::Kind::End) {
            break;
        }
        if (!shape.key.empty()) {
            shape.key += ' ';
        }
        if (token.isLiteral()) {
            shape.literals.push_back(literalOf(token, static_cast<int>(shape.literals.size())));
            shape.key += markerOf(shape.literals.back());
        } else if (token.keyword != Keyword::None) {
            std::transform(token.text.begin(), token.text.end(), std::back_inserter(shape.key), capital);
        } else {
            shape.key += token.text;
        }
    }
    return shape;
}

Shape shapeOf(std::string_view statement) {
    return shapeOf(tokenize(statement));
}

} // namespace engine

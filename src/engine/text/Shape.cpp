#include "engine/text/Shape.h"

#include "engine/text/Lexer.h"
#include "engine/values/Ascii.h"
#include "engine/values/Scalar.h"

#include <algorithm>
#include <iterator>

namespace engine {

namespace {

std::string_view markerOf(const LiteralToken& literal) {
    switch (literal.kind) {
    case Literal::Kind::Null:
        return "";
    case Literal::Kind::Integer:
        return "?i";
    case Literal::Kind::Decimal:
        return "?d";
    case Literal::Kind::Float:
        return "?f";
    case Literal::Kind::Text:
        return typeOf({literal.kind, literal.text}).length < 0 ? "?T" : "?t";
    case Literal::Kind::NationalText:
        return typeOf({literal.kind, literal.text}).length < 0 ? "?N" : "?n";
    }
    return "";
}

} // namespace

Literal::Kind literalKind(const Token& token) {
    switch (token.kind) {
    case Token::Kind::Integer:
        return Literal::Kind::Integer;
    case Token::Kind::Decimal:
        return Literal::Kind::Decimal;
    case Token::Kind::Float:
        return Literal::Kind::Float;
    case Token::Kind::Text:
        return Literal::Kind::Text;
    case Token::Kind::NationalText:
        return Literal::Kind::NationalText;
    default:
        return Literal::Kind::Null;
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
            shape.literals.push_back({literalKind(token), valueOf(token)});
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

#pragma once

#include "engine/text/Token.h"
#include "engine/text/Tree.h"

#include <span>
#include <string>
#include <vector>

namespace engine {

struct LiteralToken {
    Literal::Kind kind = Literal::Kind::Null;
    std::string text; ///< digits as written, or the text without its quotes
};

/// What a statement is but for its literals. Statements with the same key differ in nothing else, and their literals
/// correspond one to one; `Literal::index` in the tree is the place in `literals`. A literal that no tree node carries
/// an index for shapes the statement: two statements are interchangeable only where those are equal too.
struct Shape {
    /// Tokens joined by blanks, keywords in capitals, a literal as ?i ?b ?d ?f ?t ?n: the kind of its type, where ?b is
    /// a whole number that only a bigint holds.
    std::string key;
    std::vector<LiteralToken> literals;
};

Shape shapeOf(std::span<const Token> tokens);
/// Throws as tokenize does.
Shape shapeOf(std::string_view statement);

/// The kind of literal that a token is; Null for any other token.
Literal::Kind literalKind(const Token& token);

} // namespace engine

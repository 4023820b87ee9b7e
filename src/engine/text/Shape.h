#pragma once

#include "engine/text/Token.h"
#include "engine/text/Tree.h"

#include <span>
#include <string>
#include <vector>

namespace engine {

/// A statement without its literals, and the literals. Statements with the same key differ in literals alone, which
/// correspond one to one; `Literal::index` in the tree is the place in `literals`. A literal without an index in the
/// tree is part of the plan: statements share a plan only where such literals are equal too.
struct Shape {
    /// Tokens joined by blanks, keywords in capitals, a literal as ?i ?d ?f ?t ?n: the kind of its type; ?T and ?N are
    /// texts that only a max type holds.
    std::string key;
    std::vector<Literal> literals;
};

Shape shapeOf(std::span<const Token> tokens);
/// Throws as tokenize does.
Shape shapeOf(std::string_view statement);

/// The literal that a token is, with the characters that its kind of text keeps.
Literal literalOf(const Token& token, int index);

} // namespace engine

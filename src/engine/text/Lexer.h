#pragma once

#include "engine/text/Token.h"

#include <vector>

namespace engine {

/// Longest name in characters.
inline constexpr std::size_t kLongestName = 128;

/// The tokens of a batch, an End token last; comments and blanks are dropped. Quoted identifiers are on: a text in
/// double quotes is a name. Throws Error 102 at a character that starts nothing, 103 at a name too long, 105 at a quote
/// and 113 at a comment that nothing closes, 1038 at an empty name.
std::vector<Token> tokenize(std::string_view batch);

} // namespace engine

#pragma once

#include "engine/text/Tree.h"

#include <string_view>

namespace engine {

/// Deepest nesting of expressions, selects and brackets that the parser follows; deeper is error 191.
inline constexpr int kDeepestNesting = 200;
/// Tallest tree of one expression; a longer chain of operators is error 191, so that every stage may recurse.
inline constexpr int kTallestTree = 900;
/// Longest batch in bytes.
inline constexpr std::size_t kLongestBatch = 65536 * 4096ULL;

/// The tree of a batch. Throws Error 102, 105, 156 or 191 with the place; nothing of a refused batch runs.
BatchTree parse(std::string_view batch);

/// The tree of one expression alone, for stored defaults; its literals have no index.
ExpressionPtr parseExpression(std::string_view text);

} // namespace engine

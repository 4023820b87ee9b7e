#pragma once

#include <string>

namespace engine {

/// A constant as a batch writes it.
struct Literal {
    enum class Kind { Null, Integer, Decimal, Float, Text, NationalText };
    Kind kind = Kind::Null;
    std::string text; ///< digits as written, or the text without its quotes
    /// Place among the literals of its statement, -1 where the literal shapes the statement (TOP, a style, a length)
    /// and so may not vary inside a shape.
    int index = -1;
};

} // namespace engine

#pragma once

#include "ado/Driver.h"
#include "ado/RowStore.h"

#include <string_view>
#include <vector>

namespace ado {

/// A filter as it was understood: groups of comparisons, of which one group must hold as a whole.
///
///     filter     = group { OR group }
///     group      = part { AND part }
///     part       = comparison | "(" filter ")"        a filter with OR inside can't stand in an AND
///     comparison = field operator value
///     field      = name | "[" name "]"
///     operator   = "<" | ">" | "<=" | ">=" | "<>" | "=" | LIKE
///     value      = number | 'text', quotes doubled | #date#
///
/// `%` and `*` are wild in a text behind LIKE. Texts compare as on the server: case ignored, accents told apart.
class FilterExpression {
public:
    /// Error 3001 for everything that the grammar doesn't know, and for a value that its column can't be compared with.
    FilterExpression(std::string_view text, const std::vector<FieldDescription>& fields);

    bool admits(const RowStore& rows, std::size_t row) const;

    enum class Operator { Less, Greater, LessOrEqual, GreaterOrEqual, Different, Equal, Like };
    struct Comparison {
        int column = 0;
        Operator op = Operator::Equal;
        enum class Kind { Number, Text, Date } kind = Kind::Number;
        double number = 0;
        std::string text; ///< behind LIKE a pattern of the server's language
        Date date;
    };
    using Group = std::vector<Comparison>;

private:
    std::vector<Group> groups_;
};

} // namespace ado

#pragma once

#include "ado/Driver.h"
#include "ado/RowStore.h"

#include <string_view>
#include <vector>

namespace ado {

/// A parsed filter: groups of comparisons. A row is shown where all comparisons of one group are true.
///
///     filter     = group { OR group }
///     group      = part { AND part }
///     part       = comparison | "(" filter ")"        a filter with OR inside can't stand in an AND
///     comparison = field operator value
///     field      = name | "[" name "]"
///     operator   = "<" | ">" | "<=" | ">=" | "<>" | "=" | LIKE
///     value      = number | 'text', quotes doubled | #date#
///
/// `%` and `*` are wildcards in a text after LIKE. Texts compare as on the server: case is ignored, accents aren't.
class FilterExpression {
public:
    /// Raises error 3001 for a text outside the grammar, and for a value that can't be compared with its column.
    FilterExpression(std::string_view text, const std::vector<FieldDescription>& fields);

    bool admits(const RowStore& rows, std::size_t row) const;

    enum class Operator { Less, Greater, LessOrEqual, GreaterOrEqual, Different, Equal, Like };
    struct Comparison {
        int column = 0;
        Operator op = Operator::Equal;
        enum class Kind { Number, Text, Date } kind = Kind::Number;
        double number = 0;
        std::string text; ///< after LIKE a pattern of the server's language
        Date date;
    };
    using Group = std::vector<Comparison>;

private:
    std::vector<Group> groups_;
};

} // namespace ado

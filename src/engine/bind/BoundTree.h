#pragma once

// A statement after its names were looked up: every expression has a type, every conversion stands where it happens,
// and literals have become parameters. The translators decide nothing more.

#include "engine/store/Catalog.h"
#include "engine/text/Tree.h"
#include "engine/values/DataType.h"
#include "engine/values/ResultColumn.h"
#include "engine/values/Scalar.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace engine::bound {

struct Expression;
struct Select;
using ExpressionPtr = std::unique_ptr<Expression>;
using SelectPtr = std::unique_ptr<Select>;

/// What is bound to one `?` before a run.
struct Parameter {
    enum class Source {
        Literal,  ///< a literal of the statement, by its ordinal
        Constant, ///< a literal that belongs to the plan itself, as one of a stored default
        Identity, ///< the next identity value
        Row       ///< a value of the row that INSERT … SELECT is at
    };
    Source source = Source::Literal;
    int ordinal = -1;         ///< of the literal, or place in the row
    engine::Literal constant; ///< the literal as it stood when the statement was bound
    bool negated = false;
    ConversionRequest conversion;
    /// Its number of digits decides the type of an expression around it: other digits need another plan.
    bool digitsMatter = false;
    /// It was compared with another one: a run in which they differ needs another plan.
    bool valueMatters = false;
    bool trimmed = false; ///< of the blanks at its end
};

/// A parameter by its place in the binder's list, counted from 0.
struct ParameterUse {
    int place;
};

struct Column {
    int source;         ///< number of the table source
    std::string column; ///< the storage's name of it
};

/// SQLite text that is written as it stands, such as NULL.
struct Constant {
    std::string text;
};

/// `op x`, `x op y`.
struct Operation {
    std::string op;
    std::vector<ExpressionPtr> operands;
    bool postfix = false;
};

struct Call {
    std::string function;
    std::vector<ExpressionPtr> arguments;
    bool distinct = false;
    bool star = false;
    bool aggregate = false;
};

struct Case {
    struct Branch {
        ExpressionPtr when, then;
    };
    std::vector<Branch> branches;
    ExpressionPtr otherwise;
};

struct InList {
    ExpressionPtr operand;
    std::vector<ExpressionPtr> list;
};

/// EXISTS (select), x IN (select), or a select that stands for one value.
struct Subselect {
    enum class Kind { Exists, In, Scalar };
    Kind kind;
    ExpressionPtr operand; ///< of In
    SelectPtr select;
};

struct Expression {
    using Node = std::variant<ParameterUse, Column, Constant, Operation, Call, Case, InList, Subselect>;
    Node node;
    DataType type;
    bool nullable = true;
    std::string name; ///< of a plain column, for the result
};

struct Source;
using SourcePtr = std::unique_ptr<Source>;

struct Table {
    int number;
    std::string schema; ///< the storage's schema: main, temp or that of an attached database
    const TableInfo* info;
};

struct Derived {
    int number;
    SelectPtr select;
};

struct Join {
    engine::Join::Kind kind;
    SourcePtr left, right;
    ExpressionPtr condition;
};

struct Source {
    std::variant<Table, Derived, Join> node;
};

struct Core {
    bool distinct = false;
    std::optional<long long> top;
    std::vector<ExpressionPtr> items;
    std::vector<SourcePtr> from;
    ExpressionPtr where;
    std::vector<ExpressionPtr> groupBy;
    ExpressionPtr having;
    bool aggregated = false;      ///< its rows are groups; without GROUP BY all of it is one
    bool hiddenAggregate = false; ///< nothing in its items tells that it is aggregated
};

/// Whether a part of a SELECT gives one row at most.
inline bool isOneRow(const Core& core) {
    return core.from.empty() || (core.aggregated && core.groupBy.empty());
}

struct Order {
    int ordinal = 0; ///< from 1; 0 where an expression stands
    ExpressionPtr expression;
    bool text = false; ///< ordered by the collation
    bool descending = false;
};

struct Select {
    std::vector<Core> cores;
    std::vector<bool> unionAll;
    std::vector<Order> orderBy;
    std::vector<ResultColumn> columns;
};

struct Insert {
    Table table;
    std::vector<const ColumnInfo*> columns;
    std::vector<std::vector<ExpressionPtr>> rows;
    SelectPtr select;                     ///< its values are read first, then written row by row through `rows[0]`
    int identityPlace = -1;               ///< place among `columns` of an identity value given by the statement
    const ColumnInfo* identity = nullptr; ///< the identity column, where the table has one
};

struct Update {
    Table table;
    struct Assignment {
        const ColumnInfo* column;
        ExpressionPtr value;
    };
    std::vector<Assignment> assignments;
    std::vector<SourcePtr> from;
    /// Number of the source in `from` that is the target again, -1 where the target isn't among them.
    int targetInFrom = -1;
    ExpressionPtr where;
    bool selects = false; ///< a SELECT inside of it must see no row that it has written
};

struct Delete {
    Table table;
    ExpressionPtr where;
    bool selects = false; ///< as of Update
};

using Statement = std::variant<Select, Insert, Update, Delete>;

} // namespace engine::bound

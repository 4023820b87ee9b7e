#pragma once

// The tree of one batch, as the parser leaves it: names as written, nothing looked up.

#include "engine/values/DataType.h"
#include "engine/values/Literal.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace engine {

struct Expression;
struct Select;
using ExpressionPtr = std::unique_ptr<Expression>;
using SelectPtr = std::unique_ptr<Select>;

/// A name of one to four pieces, the last one last: server.database.schema.object.
struct Name {
    std::vector<std::string> pieces;
    int position = -1;
    const std::string& last() const { return pieces.back(); }
    /// A piece counted from the right, the last one being 0; empty where there are fewer.
    std::string piece(std::size_t fromRight) const {
        return fromRight < pieces.size() ? pieces[pieces.size() - 1 - fromRight] : std::string();
    }
    std::string text() const {
        std::string joined;
        for (const std::string& piece : pieces) {
            joined += (&piece == &pieces.front() ? "" : ".") + piece;
        }
        return joined;
    }
};

/// A column, perhaps behind an alias or a table: `T.id`, `id`.
struct ColumnReference {
    Name name;
};

struct Unary {
    enum class Operator { Minus, Plus, Not, IsNull, IsNotNull };
    Operator op;
    ExpressionPtr operand;
};

struct Binary {
    enum class Operator {
        Add,
        Subtract,
        Multiply,
        Divide,
        Modulo,
        Equal,
        NotEqual,
        Less,
        LessEqual,
        Greater,
        GreaterEqual,
        And,
        Or
    };
    Operator op;
    ExpressionPtr left, right;
};

struct Like {
    ExpressionPtr operand, pattern, escape; ///< escape may be empty
    bool negated = false;
};

struct Between {
    ExpressionPtr operand, low, high;
    bool negated = false;
};

struct In {
    ExpressionPtr operand;
    std::vector<ExpressionPtr> list; ///< empty where `select` stands
    SelectPtr select;
    bool negated = false;
};

struct Exists {
    SelectPtr select;
};

struct ScalarSelect {
    SelectPtr select;
};

struct Case {
    ExpressionPtr operand; ///< empty for CASE WHEN condition
    struct Branch {
        ExpressionPtr when, then;
    };
    std::vector<Branch> branches;
    ExpressionPtr otherwise;
};

/// A call of a function, aggregates included. `COUNT(*)` has `star`.
struct Call {
    std::string function; ///< as written
    std::vector<ExpressionPtr> arguments;
    bool star = false;
    bool distinct = false;
};

/// CAST(x AS type) and CONVERT(type, x [, style]).
struct Conversion {
    DataType type;
    ExpressionPtr operand;
    std::optional<int> style;
    bool isCast = false;
};

/// @@name
struct ServerVariable {
    std::string name; ///< without the @@
};

struct Expression {
    using Node = std::variant<Literal, ColumnReference, Unary, Binary, Like, Between, In, Exists, ScalarSelect, Case,
                              Call, Conversion, ServerVariable>;
    Node node;
    int position = -1; ///< byte offset in the batch
};

struct TableSource;
using TableSourcePtr = std::unique_ptr<TableSource>;

struct NamedTable {
    Name name;
    std::string alias; ///< empty where none
    std::vector<std::string> hints;
};

struct DerivedTable {
    SelectPtr select;
    std::string alias;
};

struct Join {
    enum class Kind { Inner, Left, Right, Full, Cross };
    Kind kind;
    TableSourcePtr left, right;
    ExpressionPtr condition; ///< empty for Cross
};

struct TableSource {
    std::variant<NamedTable, DerivedTable, Join> node;
};

struct SelectItem {
    ExpressionPtr expression;   ///< empty for a star
    std::string alias;          ///< empty where none
    std::optional<Name> starOf; ///< `*` with no pieces, `T.*` with one
};

struct OrderItem {
    ExpressionPtr expression;
    bool descending = false;
};

/// One SELECT … FROM … WHERE …, before UNION and ORDER BY.
struct SelectCore {
    bool distinct = false;
    std::optional<long long> top;
    std::vector<SelectItem> items;
    std::vector<TableSourcePtr> from; ///< several are a cross product
    ExpressionPtr where;
    std::vector<ExpressionPtr> groupBy;
    ExpressionPtr having;
};

struct Select {
    std::vector<SelectCore> cores; ///< joined by UNION
    std::vector<bool> unionAll;    ///< one fewer than cores
    std::vector<OrderItem> orderBy;
};

struct Insert {
    Name table;
    std::vector<std::string> columns; ///< empty where none are named
    /// Rows of VALUES; an empty pointer stands for DEFAULT. Both empty: DEFAULT VALUES.
    std::vector<std::vector<ExpressionPtr>> rows;
    SelectPtr select;
};

struct Update {
    Name table;
    struct Assignment {
        Name column;
        ExpressionPtr value; ///< empty for DEFAULT
    };
    std::vector<Assignment> assignments;
    std::vector<TableSourcePtr> from;
    ExpressionPtr where;
};

struct Delete {
    Name table;
    ExpressionPtr where;
};

struct ColumnDefinition {
    std::string name;
    DataType type;
    std::optional<bool> nullable; ///< as written, nothing where neither NULL nor NOT NULL stands
    ExpressionPtr defaultValue;
    std::string defaultText; ///< the default as the script wrote it
    std::string defaultName; ///< of CONSTRAINT name DEFAULT, may be empty
    bool identity = false;
    long long identitySeed = 1, identityIncrement = 1;
    int position = -1;
};

struct KeyDefinition {
    enum class Kind { Primary, Unique };
    Kind kind;
    std::string name; ///< of CONSTRAINT name, may be empty
    std::vector<std::string> columns;
};

struct CreateTable {
    Name table;
    std::vector<ColumnDefinition> columns;
    std::vector<KeyDefinition> keys;
};

struct AlterTable {
    Name table;
    std::vector<ColumnDefinition> added;
    std::vector<KeyDefinition> keys;
};

struct CreateIndex {
    std::string name;
    Name table;
    std::vector<OrderItem> columns; ///< column references
    bool unique = false;
};

struct Drop {
    enum class Kind { Table, Database, Index };
    Kind kind;
    std::vector<Name> names;
    bool ifExists = false;
};

struct Truncate {
    Name table;
};

struct DatabaseFile {
    std::string logicalName;
    std::string fileName;
    bool log = false;
};

struct CreateDatabase {
    std::string name;
    std::vector<DatabaseFile> files;
};

/// ALTER DATABASE name SET: `AUTO_CLOSE ON`, `RECOVERY SIMPLE`, `READ_WRITE`.
struct AlterDatabase {
    std::string name;
    struct Setting {
        std::string option;
        std::string value; ///< empty where the option is a word alone
    };
    std::vector<Setting> settings;
};

struct Use {
    std::string database;
};

/// SET option value: `SET QUOTED_IDENTIFIER ON`, `SET LOCK_TIMEOUT 0`, `SET IDENTITY_INSERT t ON`.
struct SetOption {
    std::vector<std::string> options;
    Name table; ///< of IDENTITY_INSERT
    std::string value;
};

struct Execute {
    Name procedure;
    struct Argument {
        std::string name; ///< of @name = value, may be empty
        ExpressionPtr value;
    };
    std::vector<Argument> arguments;
};

struct Reconfigure {
    bool withOverride = false;
};

struct Transaction {
    enum class Kind { Begin, Commit, Rollback };
    Kind kind;
    std::string name; ///< may be empty
};

struct Statement;
using StatementPtr = std::unique_ptr<Statement>;

struct If {
    ExpressionPtr condition;
    StatementPtr then, otherwise;
};

struct Block {
    std::vector<StatementPtr> statements;
};

struct Print {
    ExpressionPtr text;
};

struct Statement {
    std::variant<Select, Insert, Update, Delete, CreateTable, AlterTable, CreateIndex, Drop, Truncate, CreateDatabase,
                 AlterDatabase, Use, SetOption, Execute, Reconfigure, Transaction, If, Block, Print>
        node;
};

struct BatchTree {
    std::vector<StatementPtr> statements;
};

} // namespace engine

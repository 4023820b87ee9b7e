#pragma once

#include "engine/bind/BoundTree.h"
#include "engine/functions/Functions.h"

#include <string>
#include <string_view>
#include <vector>

namespace engine {

/// Where the binder finds tables. The storage's schema of a table is `main` for the current database.
class TableFinder {
public:
    virtual ~TableFinder() = default;
    struct Found {
        std::string schema;
        const TableInfo* info;
        bool system = false; ///< one of the server's own tables, not to be written
    };
    /// Throws 208 for a name that no table has.
    virtual Found find(const Name& name) = 0;
    /// Whether SET IDENTITY_INSERT is on for the table: a statement may then give its identity values.
    virtual bool takesIdentity(const TableInfo& table) = 0;
};

/// Looks up the names of one statement, gives every expression its type and puts the conversions in.
/// Throws 207, 208, 209, 4104 and the other errors that a statement has before it runs.
class Binder {
public:
    explicit Binder(TableFinder& finder) : finder_(finder) {}

    bound::Statement bind(const Select& select) { return this->select(select, nullptr); }
    bound::Statement bind(const Insert& insert);
    bound::Statement bind(const Update& update);
    bound::Statement bind(const Delete& remove);
    /// A condition or value alone, without tables.
    bound::ExpressionPtr bindAlone(const Expression& expression);
    /// The default of a column on its way into it; NULL where there is none.
    bound::ExpressionPtr bindDefault(const ColumnInfo& column);

    /// What the uses of parameters in the bound tree stand for, by their places.
    const std::vector<bound::Parameter>& parameters() const { return parameters_; }

private:
    /// A table that the statement's names may refer to.
    struct Visible {
        std::string qualifier; ///< alias, or the table's name
        bool aliased = false;
        int number = 0;
        const TableInfo* table = nullptr;
        std::vector<ResultColumn> derived; ///< where `table` is null
        bool outer = false;                ///< its columns may be null through an outer join
    };
    struct Scope {
        std::vector<Visible> tables;
        Scope* parent = nullptr;
        bool aggregates = false; ///< aggregates may stand here
        bool sawAggregate = false;
    };
    /// A table of a scope and a column's place in it.
    struct Resolved {
        const Visible* table = nullptr;
        int column = -1;
    };
    enum class Mode { Statement, Default };

    // BinderNames.cpp
    Resolved resolve(const Name& name) const;
    static int columnOf(const Visible& table, std::string_view name);
    static ResultColumn describe(const Visible& table, int column);
    bound::ExpressionPtr column(const Visible& table, int column) const;
    static void expose(Scope& scope, Visible visible);
    bound::SourcePtr source(const TableSource& source, Scope& scope, bool outer);
    bound::SourcePtr namedTable(const NamedTable& named, Scope& scope, bool outer);
    bound::SourcePtr derivedTable(const DerivedTable& derived, Scope& scope, bool outer);
    bound::SourcePtr join(const Join& join, Scope& scope, bool outer);

    // BinderSelect.cpp
    bound::Select select(const Select& select, Scope* parent);
    /// A SELECT inside of another statement.
    bound::Select inner(const Select& select, Scope* parent);
    bound::Core core(const SelectCore& core, Scope& scope, std::vector<ResultColumn>& columns);
    void items(const SelectCore& core, Scope& scope, bound::Core& result, std::vector<ResultColumn>& columns);
    void starItems(const Name& starOf, Scope& scope, bound::Core& result, std::vector<ResultColumn>& columns);
    bound::Order order(const OrderItem& item, const bound::Select& result, bool single);
    void unify(bound::Select& result, bound::Core& core, const std::vector<ResultColumn>& columns);

    // BinderGrouping.cpp
    void checkGrouping(const bound::Core& core, const std::vector<bound::Order>& orderBy);
    bool refersTo(const Scope& scope, const bound::Expression& expression) const;
    Scope& ownerOf(const bound::Call& aggregate, Scope& here) const;

    // BinderExpressions.cpp
    bound::ExpressionPtr expression(const Expression& expression);
    bound::ExpressionPtr node(const Literal& literal);
    bound::ExpressionPtr node(const ColumnReference& reference);
    bound::ExpressionPtr node(const Unary& unary);
    bound::ExpressionPtr node(const Binary& binary);
    bound::ExpressionPtr node(const Like& like);
    bound::ExpressionPtr escape(const Expression& written);
    bound::ExpressionPtr node(const Between& between);
    bound::ExpressionPtr node(const In& in);
    bound::ExpressionPtr node(const Exists& exists);
    bound::ExpressionPtr node(const ScalarSelect& scalar);
    bound::ExpressionPtr node(const Case& choice);
    bound::ExpressionPtr node(const Call& call);
    bound::ExpressionPtr node(const Conversion& conversion);
    bound::ExpressionPtr node(const ServerVariable& variable);
    bound::ExpressionPtr literal(const Literal& literal, bool negated);
    bound::ExpressionPtr use(bound::Parameter parameter, const DataType& type);
    bound::ExpressionPtr compare(const char* op, bound::ExpressionPtr left, bound::ExpressionPtr right);

    // BinderArithmetic.cpp
    bound::ExpressionPtr negated(bound::ExpressionPtr operand);
    bound::ExpressionPtr arithmetic(Binary::Operator op, bound::ExpressionPtr left, bound::ExpressionPtr right);
    static bound::ExpressionPtr decimals(Binary::Operator op, bound::ExpressionPtr left, bound::ExpressionPtr right,
                                         const DataType& type);
    DataType digitsOf(const bound::Expression& number);

    // BinderAggregates.cpp
    bound::ExpressionPtr aggregate(const Call& call, const std::string& name);
    bound::ExpressionPtr average(const Call& call, const DataType& sumType);

    // BinderCalls.cpp
    bound::ExpressionPtr builtIn(const Call& call);
    bound::ExpressionPtr argument(const Call& call, std::size_t place, FunctionParameter::Kind kind);

    // BinderConversions.cpp
    bound::ExpressionPtr convertTo(bound::ExpressionPtr value, const DataType& type, Purpose purpose,
                                   std::optional<int> style = std::nullopt);
    bound::ExpressionPtr convertWritten(bound::ExpressionPtr value, const DataType& type, Purpose purpose,
                                        std::optional<int> style = std::nullopt);
    bound::Parameter* bareLiteral(const bound::Expression& value);
    void freeDigits(const bound::Expression& value);
    bound::ExpressionPtr collated(bound::ExpressionPtr value) const;

    // BinderWrites.cpp
    bound::Table target(const Name& name);
    static void expose(Scope& scope, const bound::Table& target);
    std::vector<const ColumnInfo*> insertColumns(const Insert& insert, const bound::Table& table,
                                                 bool& explicitIdentity);
    bound::ExpressionPtr assigned(const Expression* value, const ColumnInfo& column);
    void completeRow(const bound::Insert& insert, std::size_t given, std::vector<bound::ExpressionPtr>& row);

    TableFinder& finder_;
    std::vector<bound::Parameter> parameters_;
    Scope* scope_ = nullptr;
    Mode mode_ = Mode::Statement;
    int tables_ = 0;
    int depth_ = 0;
    bool insideAggregate_ = false;
    bool insideGroupBy_ = false;
    bool selects_ = false; ///< the statement has a SELECT inside
};

/// Whether two expressions are written alike, but for the values of their literals.
bool sameExpression(const bound::Expression& left, const bound::Expression& right,
                    std::vector<bound::Parameter>& parameters);
/// The type of the result where two types meet, by the server's precedence.
DataType commonType(const DataType& left, const DataType& right);

} // namespace engine

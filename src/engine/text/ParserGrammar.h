#pragma once

#include "engine/text/ParserTokens.h"
#include "engine/text/Tree.h"

namespace engine {

/// The grammar of the dialect, one function a production. A function starts at the first token of what it is named
/// after and ends behind the last one; it throws an Error at a token that doesn't fit.
class Grammar : private TokenStream {
public:
    explicit Grammar(std::string_view batch) : TokenStream(batch) {}

    BatchTree batch();
    ExpressionPtr expressionAlone();

private:
    using Node = decltype(Statement::node);

    // Expressions.
    ExpressionPtr value();
    ExpressionPtr condition();
    ExpressionPtr climb(int least);
    ExpressionPtr operand(int least);
    ExpressionPtr binary(ExpressionPtr left, Binary::Operator op, int precedence);
    ExpressionPtr predicate(ExpressionPtr left);
    ExpressionPtr isNull(ExpressionPtr left);
    ExpressionPtr like(ExpressionPtr left, bool negated);
    ExpressionPtr between(ExpressionPtr left, bool negated);
    ExpressionPtr in(ExpressionPtr left, bool negated);
    void requireCondition(const Expression& expression) const;
    void requireValue(const Expression& expression) const;

    // Primary expressions.
    ExpressionPtr primary();
    ExpressionPtr literal();
    ExpressionPtr sign();
    ExpressionPtr brackets();
    ExpressionPtr exists();
    ExpressionPtr caseExpression();
    ExpressionPtr convert();
    ExpressionPtr cast();
    ExpressionPtr call(std::string function);
    ExpressionPtr wordExpression();
    ExpressionPtr keywordExpression();
    std::vector<ExpressionPtr> values();
    Name name();

    // SELECT.
    SelectPtr select();
    SelectPtr selectInBrackets();
    SelectCore selectCore();
    std::optional<long long> top();
    SelectItem selectItem();
    std::optional<Name> star();
    std::string itemAlias();
    OrderItem orderItem();
    std::vector<TableSourcePtr> tableSources();
    TableSourcePtr tableSource();
    TableSourcePtr primarySource();
    Join::Kind joinKind();
    bool atJoin() const;
    TableSourcePtr join(TableSourcePtr left);
    std::string tableAlias();
    std::vector<std::string> hints();

    // Statements that write rows.
    Node selectStatement();
    Node insert();
    Node update();
    Node deleteRows();
    std::vector<std::string> nameList();
    std::vector<ExpressionPtr> row();

    // Definitions.
    Node create();
    Node createTable();
    Node createIndex(bool unique);
    Node alter();
    Node drop();
    Node truncate();
    struct TableElements {
        std::vector<ColumnDefinition> columns;
        std::vector<KeyDefinition> keys;
    };
    void tableElement(TableElements& elements);
    bool atKey() const { return at(Keyword::Primary) || at(Keyword::Unique); }
    KeyDefinition tableKey(std::string name);
    KeyDefinition::Kind keyKind();
    void column(TableElements& elements);
    bool columnOption(TableElements& elements, ColumnDefinition& column);
    bool columnConstraint(TableElements& elements, ColumnDefinition& column, std::string name);
    void nullability(ColumnDefinition& column, bool nullable);
    void identity(ColumnDefinition& column);
    void defaultOf(ColumnDefinition& column, std::string name);
    void collation();
    void filegroup();
    void clustering();
    OrderItem indexColumn();

    // Databases.
    Node createDatabase();
    Node alterDatabase();
    AlterDatabase::Setting databaseSetting();
    void termination();
    std::vector<DatabaseFile> databaseFiles(bool log);
    DatabaseFile databaseFile(bool log);
    void fileSize();

    // Types.
    struct TypeUse {
        const char* kind; ///< what an error calls the thing: column or type
        std::string name; ///< empty: the type's own
        int ordinal;
        int defaultLength;
    };
    DataType type(const TypeUse& use);
    DataType columnType(const std::string& column, int ordinal);
    DataType conversionType();
    int size(int largest);
    int length(const TypeUse& use, int largest);
    void precision(DataType& type, const TypeUse& use);

    // The other statements.
    StatementPtr bareCall();
    StatementPtr statement();
    Node statementNode();
    Node execute();
    Execute procedureCall();
    Execute::Argument argument();
    ExpressionPtr argumentValue();
    bool atArgument() const;
    Node reconfigure();
    Node setOption();
    SetOption identityInsert();
    SetOption isolationLevel();
    std::string optionName();
    std::string optionValue();
    Node begin();
    Node transaction(Transaction::Kind kind);
    Node commit() { return transaction(Transaction::Kind::Commit); }
    Node rollback() { return transaction(Transaction::Kind::Rollback); }
    Node ifStatement();
    Node print();
    Node use();

    int firstLiteral_ = 0;    ///< ordinal in the batch of the present statement's first literal
    bool structural_ = false; ///< literals here shape the statement
};

/// Makes an expression of any node.
template<class NodeType>
ExpressionPtr makeExpression(int position, NodeType node) {
    auto expression = std::make_unique<Expression>();
    expression->node = std::move(node);
    expression->position = position;
    return expression;
}

} // namespace engine

#include "engine/text/ParserGrammar.h"

#include <array>

namespace engine {

BatchTree Grammar::batch() {
    BatchTree tree;
    while (consumeIf(";")) {
    }
    while (!atEnd()) {
        firstLiteral_ = literalsConsumed();
        if (tree.statements.empty() && now().isName()) {
            tree.statements.push_back(bareCall());
        } else {
            tree.statements.push_back(statement());
        }
        while (consumeIf(";")) {
        }
    }
    return tree;
}

/// The first statement of a batch may name a procedure without EXECUTE.
StatementPtr Grammar::bareCall() {
    auto call = std::make_unique<Statement>();
    call->node = procedureCall();
    return call;
}

StatementPtr Grammar::statement() {
    const Level level(*this);
    structural_ = false;
    auto statement = std::make_unique<Statement>();
    statement->node = statementNode();
    return statement;
}

Grammar::Node Grammar::statementNode() {
    struct Row {
        std::string_view first; ///< a reserved word
        Node (Grammar::*parse)();
    };
    static constexpr auto kStatements = std::to_array<Row>({{"SELECT", &Grammar::selectStatement},
                                                            {"INSERT", &Grammar::insert},
                                                            {"UPDATE", &Grammar::update},
                                                            {"DELETE", &Grammar::deleteRows},
                                                            {"CREATE", &Grammar::create},
                                                            {"ALTER", &Grammar::alter},
                                                            {"DROP", &Grammar::drop},
                                                            {"TRUNCATE", &Grammar::truncate},
                                                            {"USE", &Grammar::use},
                                                            {"SET", &Grammar::setOption},
                                                            {"EXEC", &Grammar::execute},
                                                            {"EXECUTE", &Grammar::execute},
                                                            {"RECONFIGURE", &Grammar::reconfigure},
                                                            {"BEGIN", &Grammar::begin},
                                                            {"COMMIT", &Grammar::commit},
                                                            {"ROLLBACK", &Grammar::rollback},
                                                            {"IF", &Grammar::ifStatement},
                                                            {"PRINT", &Grammar::print}});
    for (const Row& row : kStatements) {
        if (now().keyword != Keyword::None && sameWord(now().text, row.first)) {
            return (this->*row.parse)();
        }
    }
    refuse();
}

Grammar::Node Grammar::execute() {
    consume();
    return procedureCall();
}

Execute Grammar::procedureCall() {
    Execute node;
    node.procedure = name();
    if (!atArgument()) {
        return node;
    }
    do {
        node.arguments.push_back(argument());
    } while (consumeIf(","));
    return node;
}

bool Grammar::atArgument() const {
    const Token& token = now();
    return token.isLiteral() || token.isName() || token.kind == Token::Kind::Variable ||
           token.kind == Token::Kind::ServerVariable || at("-") || at("+") || at(Keyword::Null);
}

Execute::Argument Grammar::argument() {
    Execute::Argument argument;
    if (now().kind == Token::Kind::Variable && ahead(1).is("=")) {
        argument.name = valueOf(consume());
        consume();
    }
    argument.value = argumentValue();
    return argument;
}

/// Constants alone; a bare word is a text.
ExpressionPtr Grammar::argumentValue() {
    const Token& token = now();
    if (token.isName()) {
        return makeExpression(token.position, Literal{Literal::Kind::NationalText, expectName(), -1});
    }
    const bool isSigned = at("-") || at("+");
    if (!atArgument() || (isSigned && !ahead(1).isNumber())) {
        refuse();
    }
    return primary();
}

Grammar::Node Grammar::reconfigure() {
    expect(Keyword::Reconfigure);
    Reconfigure node;
    node.withOverride = consumeIf(Keyword::With);
    if (node.withOverride) {
        expectWord("OVERRIDE");
    }
    return node;
}

Grammar::Node Grammar::begin() {
    expect(Keyword::Begin);
    if (at(Keyword::Tran) || at(Keyword::Transaction)) {
        return transaction(Transaction::Kind::Begin);
    }
    Block node;
    do {
        node.statements.push_back(statement());
        while (consumeIf(";")) {
        }
    } while (!consumeIf(Keyword::End));
    return node;
}

Grammar::Node Grammar::ifStatement() {
    If node;
    expect(Keyword::If);
    node.condition = condition();
    node.then = statement();
    if (at(";") && ahead(1).is(Keyword::Else)) {
        consume();
    }
    if (consumeIf(Keyword::Else)) {
        node.otherwise = statement();
    }
    return node;
}

Grammar::Node Grammar::print() {
    expect(Keyword::Print);
    return Print{value()};
}

Grammar::Node Grammar::use() {
    expect(Keyword::Use);
    return Use{expectName()};
}

} // namespace engine

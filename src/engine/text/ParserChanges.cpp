#include "engine/text/ParserGrammar.h"

namespace engine {

Grammar::Node Grammar::selectStatement() {
    return std::move(*select());
}

Grammar::Node Grammar::insert() {
    Insert node;
    expect(Keyword::Insert);
    consumeIf(Keyword::Into);
    node.table = name();
    if (at("(") && !ahead(1).is(Keyword::Select)) {
        node.columns = nameList();
    }
    if (consumeIf(Keyword::Default)) {
        expect(Keyword::Values);
    } else if (consumeIf(Keyword::Values)) {
        do {
            node.rows.push_back(row());
        } while (consumeIf(","));
    } else {
        node.select = at("(") ? selectInBrackets() : select();
    }
    return node;
}

std::vector<std::string> Grammar::nameList() {
    std::vector<std::string> names;
    expect("(");
    do {
        names.push_back(expectName());
    } while (consumeIf(","));
    expect(")");
    return names;
}

std::vector<ExpressionPtr> Grammar::row() {
    std::vector<ExpressionPtr> row;
    expect("(");
    do {
        row.push_back(consumeIf(Keyword::Default) ? nullptr : value());
    } while (consumeIf(","));
    expect(")");
    return row;
}

Grammar::Node Grammar::update() {
    Update node;
    expect(Keyword::Update);
    node.table = name();
    expect(Keyword::Set);
    do {
        Update::Assignment assignment;
        assignment.column = name();
        expect("=");
        if (!consumeIf(Keyword::Default)) {
            assignment.value = value();
        }
        node.assignments.push_back(std::move(assignment));
    } while (consumeIf(","));
    if (consumeIf(Keyword::From)) {
        node.from = tableSources();
    }
    if (consumeIf(Keyword::Where)) {
        node.where = condition();
    }
    return node;
}

Grammar::Node Grammar::deleteRows() {
    Delete node;
    expect(Keyword::Delete);
    consumeIf(Keyword::From);
    node.table = name();
    refuseWord("FROM", "DELETE … FROM");
    if (consumeIf(Keyword::Where)) {
        node.where = condition();
    }
    return node;
}

} // namespace engine

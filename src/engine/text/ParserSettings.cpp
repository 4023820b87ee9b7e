#include "engine/errors/TextErrors.h"
#include "engine/text/ParserGrammar.h"

#include <algorithm>
#include <array>

namespace engine {

Grammar::Node Grammar::setOption() {
    expect(Keyword::Set);
    if (now().kind == Token::Kind::Variable) {
        throw errors::undeclaredVariable(valueOf(now()), now().position);
    }
    if (at(Keyword::IdentityInsert)) {
        return identityInsert();
    }
    if (at(Keyword::Transaction) || at(Keyword::Tran)) {
        return isolationLevel();
    }
    SetOption node;
    do {
        node.options.push_back(optionName());
    } while (consumeIf(","));
    node.value = optionValue();
    return node;
}

SetOption Grammar::identityInsert() {
    SetOption node;
    node.options.push_back(valueOf(consume()));
    node.table = name();
    if (!at(Keyword::On) && !at(Keyword::Off)) {
        refuse();
    }
    node.value = valueOf(consume());
    return node;
}

SetOption Grammar::isolationLevel() {
    constexpr std::array<std::array<std::string_view, 2>, 5> kLevels = {{{"READ", "UNCOMMITTED"},
                                                                         {"READ", "COMMITTED"},
                                                                         {"REPEATABLE", "READ"},
                                                                         {"SNAPSHOT", ""},
                                                                         {"SERIALIZABLE", ""}}};
    consume();
    expectWord("ISOLATION");
    expectWord("LEVEL");
    for (const auto& [first, second] : kLevels) {
        if (!sameWord(now().text, first) || !(second.empty() || sameWord(ahead(1).text, second))) {
            continue;
        }
        consume();
        std::string level(first);
        if (!second.empty()) {
            consume();
            level.append(" ").append(second);
        }
        return SetOption{{"TRANSACTION ISOLATION LEVEL"}, {}, std::move(level)};
    }
    refuse();
}

std::string Grammar::optionName() {
    constexpr std::array kReserved = {Keyword::Rowcount, Keyword::Statistics, Keyword::Textsize};
    const bool reserved = std::any_of(kReserved.begin(), kReserved.end(), [this](Keyword word) { return at(word); });
    if (!reserved) {
        return expectName();
    }
    std::string name = valueOf(consume());
    if (sameWord(name, "STATISTICS")) {
        name += " " + expectName();
    }
    return name;
}

std::string Grammar::optionValue() {
    if (at(Keyword::On) || at(Keyword::Off) || now().isName() || now().isText()) {
        return valueOf(consume());
    }
    return std::to_string(expectInteger());
}

/// BEGIN, COMMIT and ROLLBACK of a transaction.
Grammar::Node Grammar::transaction(Transaction::Kind kind) {
    if (kind != Transaction::Kind::Begin) {
        consume();
    }
    const bool named = consumeIf(Keyword::Tran) || consumeIf(Keyword::Transaction);
    Transaction node{kind, {}};
    if (named && now().isName()) {
        node.name = valueOf(consume());
    } else if (!named) {
        consumeIfWord("WORK");
    }
    return node;
}

} // namespace engine

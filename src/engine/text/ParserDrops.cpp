#include "engine/text/ParserGrammar.h"

namespace engine {

Grammar::Node Grammar::drop() {
    Drop node;
    expect(Keyword::Drop);
    if (consumeIf(Keyword::Database)) {
        node.kind = Drop::Kind::Database;
    } else if (consumeIf(Keyword::Index)) {
        node.kind = Drop::Kind::Index;
    } else {
        expect(Keyword::Table);
        node.kind = Drop::Kind::Table;
    }
    node.ifExists = consumeIf(Keyword::If);
    if (node.ifExists) {
        expect(Keyword::Exists);
    }
    do {
        Name dropped = name();
        if (node.kind == Drop::Kind::Index && consumeIf(Keyword::On)) {
            Name table = name();
            table.pieces.push_back(dropped.last());
            dropped = std::move(table);
        }
        node.names.push_back(std::move(dropped));
    } while (consumeIf(","));
    return node;
}

Grammar::Node Grammar::truncate() {
    expect(Keyword::Truncate);
    expect(Keyword::Table);
    return Truncate{name()};
}

} // namespace engine

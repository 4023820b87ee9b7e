#include "engine/text/ParserGrammar.h"

#include <array>

namespace engine {

SelectPtr Grammar::select() {
    const Level level(*this);
    auto select = std::make_unique<Select>();
    select->cores.push_back(selectCore());
    while (consumeIf(Keyword::Union)) {
        select->unionAll.push_back(consumeIf(Keyword::All));
        select->cores.push_back(selectCore());
    }
    if (consumeIf(Keyword::Order)) {
        expect(Keyword::By);
        do {
            select->orderBy.push_back(orderItem());
        } while (consumeIf(","));
    }
    return select;
}

SelectPtr Grammar::selectInBrackets() {
    expect("(");
    auto inside = select();
    expect(")");
    return inside;
}

SelectCore Grammar::selectCore() {
    SelectCore core;
    expect(Keyword::Select);
    core.distinct = consumeIf(Keyword::Distinct);
    if (!core.distinct) {
        consumeIf(Keyword::All);
    }
    core.top = top();
    do {
        core.items.push_back(selectItem());
    } while (consumeIf(","));
    if (consumeIf(Keyword::From)) {
        core.from = tableSources();
    }
    if (consumeIf(Keyword::Where)) {
        core.where = condition();
    }
    if (consumeIf(Keyword::Group)) {
        expect(Keyword::By);
        core.groupBy = values();
    }
    if (consumeIf(Keyword::Having)) {
        core.having = condition();
    }
    return core;
}

std::optional<long long> Grammar::top() {
    if (!consumeIf(Keyword::Top)) {
        return std::nullopt;
    }
    const bool bracketed = consumeIf("(");
    if (!now().isNumber()) {
        refuse();
    }
    const long long count = expectInteger();
    if (bracketed) {
        expect(")");
    }
    refuseWord("PERCENT", "SELECT TOP … PERCENT");
    refuseWord("WITH", "SELECT TOP … WITH TIES");
    return count;
}

SelectItem Grammar::selectItem() {
    SelectItem item;
    item.starOf = star();
    if (item.starOf) {
        return item;
    }
    const bool aliasFirst = (now().isName() || now().isText()) && ahead(1).is("=");
    if (aliasFirst) {
        item.alias = valueOf(consume());
        consume();
    }
    item.expression = value();
    if (!aliasFirst) {
        item.alias = itemAlias();
    }
    return item;
}

/// `*`, `T.*`
std::optional<Name> Grammar::star() {
    std::size_t pieces = 0;
    while (ahead(2 * pieces).isName() && ahead(2 * pieces + 1).is(".")) {
        ++pieces;
    }
    if (!ahead(2 * pieces).is("*")) {
        return std::nullopt;
    }
    Name of;
    of.position = now().position;
    for (; pieces > 0; --pieces) {
        of.pieces.push_back(expectName());
        expect(".");
    }
    expect("*");
    return of;
}

std::string Grammar::itemAlias() {
    const bool announced = consumeIf(Keyword::As);
    if (now().isName() || now().isText()) {
        return valueOf(consume());
    }
    if (announced) {
        refuse();
    }
    return {};
}

OrderItem Grammar::orderItem() {
    OrderItem item;
    const bool isPlace = now().isNumber(); // ORDER BY 2 names a column by its place
    const bool outer = std::exchange(structural_, structural_ || isPlace);
    item.expression = value();
    structural_ = outer;
    item.descending = consumeIf(Keyword::Desc);
    if (!item.descending) {
        consumeIf(Keyword::Asc);
    }
    return item;
}

std::vector<TableSourcePtr> Grammar::tableSources() {
    std::vector<TableSourcePtr> sources;
    do {
        sources.push_back(tableSource());
    } while (consumeIf(","));
    return sources;
}

TableSourcePtr Grammar::tableSource() {
    const Measure measure(*this);
    auto source = primarySource();
    while (atJoin()) {
        source = join(std::move(source));
        grow();
    }
    return source;
}

TableSourcePtr Grammar::primarySource() {
    auto source = std::make_unique<TableSource>();
    if (at("(") && ahead(1).is(Keyword::Select)) {
        DerivedTable derived;
        derived.select = selectInBrackets();
        consumeIf(Keyword::As);
        derived.alias = expectName();
        source->node = std::move(derived);
    } else if (at("(")) {
        const Level level(*this);
        consume();
        source = tableSource();
        if (!std::holds_alternative<Join>(source->node)) {
            refuse(); // only a join may stand in brackets
        }
        expect(")");
    } else {
        NamedTable table;
        table.name = name();
        table.alias = tableAlias();
        table.hints = hints();
        source->node = std::move(table);
    }
    return source;
}

bool Grammar::atJoin() const {
    constexpr std::array kStarts = {Keyword::Join,  Keyword::Inner, Keyword::Left,
                                    Keyword::Right, Keyword::Full,  Keyword::Cross};
    for (const Keyword start : kStarts) {
        if (at(start)) {
            return true;
        }
    }
    return false;
}

Join::Kind Grammar::joinKind() {
    struct Row {
        Keyword word;
        Join::Kind kind;
        bool outer;
    };
    constexpr std::array<Row, 5> kKinds = {{{Keyword::Inner, Join::Kind::Inner, false},
                                            {Keyword::Left, Join::Kind::Left, true},
                                            {Keyword::Right, Join::Kind::Right, true},
                                            {Keyword::Full, Join::Kind::Full, true},
                                            {Keyword::Cross, Join::Kind::Cross, false}}};
    for (const Row& row : kKinds) {
        if (consumeIf(row.word)) {
            if (row.outer) {
                consumeIf(Keyword::Outer);
            }
            expect(Keyword::Join);
            return row.kind;
        }
    }
    expect(Keyword::Join);
    return Join::Kind::Inner;
}

/// One join behind a source; the conditions of `a JOIN b JOIN c ON … ON …` belong to the joins from the inside out.
TableSourcePtr Grammar::join(TableSourcePtr left) {
    const Level level(*this);
    auto source = std::make_unique<TableSource>();
    Join join{joinKind(), std::move(left), primarySource(), nullptr};
    if (join.kind != Join::Kind::Cross) {
        while (atJoin()) {
            join.right = this->join(std::move(join.right));
            grow();
        }
        expect(Keyword::On);
        join.condition = condition();
    }
    source->node = std::move(join);
    return source;
}

std::string Grammar::tableAlias() {
    if (consumeIf(Keyword::As) || now().isName()) {
        return expectName();
    }
    return {};
}

std::vector<std::string> Grammar::hints() {
    std::vector<std::string> hints;
    const bool announced = at(Keyword::With) && ahead(1).is("(");
    if (announced) {
        consume();
    }
    if (!consumeIf("(")) {
        return hints;
    }
    do {
        hints.push_back(at(Keyword::Holdlock) ? valueOf(consume()) : expectName());
    } while (consumeIf(","));
    expect(")");
    return hints;
}

} // namespace engine

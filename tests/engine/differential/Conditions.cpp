#include "engine/differential/StatementMaker.h"

#include <utility>

namespace engine::differential {

template<class Items>
void StatementMaker::inner(Items items, int depth) {
    const std::string alias = "s" + std::to_string(++inners_);
    visible_.push_back(alias);
    items();
    word(dice_.oneOf(" from t as ", " from u as ", " from u as ") + alias);
    if (!once(3)) {
        word(" where ");
        if (visible_.size() > 1 && once(2)) {
            const std::string name = dice_.oneOf("i", "v", "d", "q", "id", "c", "b");
            word(alias + "." + name + " = " + visible_[visible_.size() - 2] + "." + name);
        } else {
            condition(depth);
        }
    }
    visible_.pop_back();
}

void StatementMaker::scalarSelect(int depth) {
    word("(select ");
    const auto item = [&] {
        if (wild() && once(2)) {
            return number(depth - 1);
        }
        // An aggregate over columns of an outer SELECT would belong to that one.
        const auto all = std::exchange(visible_, {visible_.back()});
        aggregate();
        visible_ = all;
    };
    inner(item, depth - 1);
    word(")");
}

std::string StatementMaker::condition(std::vector<std::string> sources) {
    visible_ = std::move(sources);
    condition(2);
    return finished().spelled(dice_);
}

std::string StatementMaker::groupCondition(const std::string& column) {
    visible_ = {"a1"};
    having({column}, 1);
    return finished().spelled(dice_);
}

void StatementMaker::condition(int depth) {
    switch (below(depth <= 0 ? 5 : 12)) {
    case 0:
    case 1:
    case 2:
        return comparison(depth);
    case 3:
        once(8) && !visible_.empty() ? word(visible_.back() + ".y") : value(depth - 1);
        return anyWord(" is null", " is not null");
    case 4:
        text(depth - 1);
        anyWord(" like ", " like ", " not like ");
        slot(Slot::Pattern);
        if (once(5)) {
            word(" escape '_'");
        }
        return;
    case 5:
        return inList(depth);
    case 6:
        return aggregated_ ? comparison(depth) : subselect(depth);
    case 7: {
        const bool dates = once(4);
        const auto bound = [&] { dates ? date(depth - 1) : number(depth - 1); };
        bound();
        anyWord(" between ", " not between ");
        bound();
        word(" and ");
        return bound();
    }
    case 8:
        word("not (");
        condition(depth - 1);
        return word(")");
    default:
        word("(");
        condition(depth - 1);
        anyWord(" and ", " or ");
        condition(depth - 1);
        return word(")");
    }
}

void StatementMaker::comparison(int depth) {
    const auto compared = [&] { anyWord(" = ", " = ", " = ", " < ", " <= ", " > ", " >= ", " <> "); };
    if (wild() && once(3)) {
        value(depth - 1);
        compared();
        return value(depth - 1);
    }
    switch (below(9)) {
    case 0:
    case 1:
    case 2:
        number(depth - 1);
        compared();
        return once(2) ? plainNumber() : number(depth - 1);
    case 3:
    case 4:
    case 5:
        text(depth - 1);
        compared();
        return once(2) ? plainText() : text(depth - 1);
    case 6:
        // A text that is a number: the number's type rules.
        visible_.empty() ? slot(Slot::NumberText) : word(visible_.back() + ".w");
        compared();
        return slot(Slot::Integer);
    case 7:
        date(depth - 1);
        compared();
        return once(2) || visible_.empty() ? slot(Slot::DateText) : word(visible_.back() + ".z");
    default:
        date(depth - 1);
        compared();
        return date(depth - 1);
    }
}

void StatementMaker::inList(int depth) {
    const int kind = below(3);
    const auto one = [&](int deep) { kind == 0 ? number(deep) : kind == 1 ? text(deep) : date(deep); };
    one(depth - 1);
    anyWord(" in (", " in (", " not in (");
    list(1 + below(3), [&] {
        once(3) ? one(depth - 1) : slot(kind == 0 ? Slot::Integer : kind == 1 ? Slot::Text : Slot::DateText);
    });
    if (once(6)) {
        word(", null");
    }
    word(")");
}

void StatementMaker::subselect(int depth) {
    if (once(2)) {
        anyWord("exists (select ", "not exists (select ");
        inner([&] { value(0); }, depth - 1);
        return word(")");
    }
    const int kind = below(3);
    const auto one = [&](int deep) { kind == 0 ? number(deep) : kind == 1 ? text(deep) : date(deep); };
    one(depth - 1);
    anyWord(" in (select ", " not in (select ");
    inner([&] { one(0); }, depth - 1);
    word(")");
}

void StatementMaker::having(const std::vector<std::string>& columns, int depth) {
    if (depth > 0 && once(2)) {
        word(dice_.oneOf("(", "not ("));
        having(columns, depth - 1);
        anyWord(" and ", " or ");
        having(columns, depth - 1);
        return word(")");
    }
    switch (below(3)) {
    case 0:
        word(dice_.from(columns));
        return anyWord(" is null", " is not null");
    case 1:
        word("count(*)");
        anyWord(" > ", " = ", " <> ");
        return slot(Slot::Place);
    default:
        aggregate();
        anyWord(" > ", " = ", " <= ");
        return slot(once(3) ? Slot::Decimal : Slot::Integer);
    }
}

} // namespace engine::differential

#include "engine/differential/StatementMaker.h"

#include <utility>

namespace engine::differential {

namespace {

constexpr StatementMaker::Negatable kCompared[] = {{" = ", " <> "}, {" = ", " <> "}, {" <> ", " = "}, {" < ", " >= "},
                                                   {" <= ", " > "}, {" > ", " <= "}, {" >= ", " < "}, {" = ", " <> "}};
constexpr StatementMaker::Negatable kLike{" like ", " not like "};
constexpr StatementMaker::Negatable kNotLike{" not like ", " like "};
constexpr StatementMaker::Negatable kIn{" in (", " not in ("};
constexpr StatementMaker::Negatable kNotIn{" not in (", " in ("};
constexpr StatementMaker::Negatable kBetween{" between ", " not between "};
constexpr StatementMaker::Negatable kNotBetween{" not between ", " between "};

} // namespace

template<class Items>
void StatementMaker::inner(Items items, int depth) {
    const std::string alias = "s" + std::to_string(++inners_);
    visible_.push_back(alias);
    items();
    word(dice_.oneOf(" from t as ", " from u as ") + alias);
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

std::string StatementMaker::lateSelect() {
    visible_ = {"t"};
    word("(t.id <= ");
    slot(Slot::Place);
    word(" or ");
    const std::string kinds = dice_.oneOf("ii", "gd", "dm", "tt", "is");
    switch (below(3)) {
    case 0:
        word(std::string("t.") + kinds[0]);
        anyWord(" < ", " = ", " > ");
        anyWord("(select min(", "(select max(", "(select avg(", "(select sum(");
        word(std::string("s.") + kinds[1] + ") from t as s)");
        break;
    case 1:
        anyWord("exists", "not exists");
        word(" (select 1 from t as s where s.id <= ");
        slot(Slot::Place);
        word(")");
        break;
    default:
        word(std::string("t.") + kinds[0] + dice_.oneOf(" in ", " not in ") + "(select s." + kinds[1] +
             " from t as s where s.id > 0)");
    }
    word(")");
    return finished().spelled(dice_);
}

std::pair<std::string, std::string> StatementMaker::inTwoWords(std::vector<std::string> sources) {
    const Dice same = dice_;
    std::string usual = condition(sources);
    const Dice behind = std::exchange(dice_, same);
    otherWords_ = true;
    std::string other = condition(std::move(sources));
    otherWords_ = false;
    dice_ = behind;
    return {std::move(usual), std::move(other)};
}

/// A condition that may be put in other words: `x <> 1` as `not (x = 1)`.
template<class Operand, class Rest>
void StatementMaker::negatable(const Negatable& words, Operand operand, Rest rest) {
    word(otherWords_ ? "not (" : "");
    operand();
    word(otherWords_ ? words.opposite : words.usual);
    rest();
    word(otherWords_ ? ")" : "");
}

void StatementMaker::condition(int depth) {
    switch (below(depth <= 0 ? 5 : 12)) {
    case 0:
    case 1:
    case 2:
        return comparison(depth);
    case 3: {
        const auto operand = [&] { value(depth - 1); };
        return once(2) ? negatable({" is null", " is not null"}, operand, [] {})
                       : negatable({" is not null", " is null"}, operand, [] {});
    }
    case 4: {
        const auto rest = [&] {
            slot(Slot::Pattern);
            word(once(5) ? " escape '_'" : "");
        };
        return negatable(
            once(2) ? kLike : kNotLike, [&] { text(depth - 1); }, rest);
    }
    case 5:
        return inList(depth);
    case 6:
        return aggregated_ ? comparison(depth) : subselect(depth);
    case 7: {
        const bool dates = once(4);
        const auto bound = [&] { dates ? date(depth - 1) : number(depth - 1); };
        return negatable(once(2) ? kBetween : kNotBetween, bound, [&] {
            bound();
            word(" and ");
            bound();
        });
    }
    case 8:
        word("not (");
        condition(depth - 1);
        return word(")");
    default: {
        const bool both = once(2);
        word(otherWords_ ? "not (not (" : "(");
        condition(depth - 1);
        word(otherWords_ ? both ? ") or not (" : ") and not (" : both ? " and " : " or ");
        condition(depth - 1);
        return word(otherWords_ ? "))" : ")");
    }
    }
}

void StatementMaker::comparison(int depth) {
    const Negatable words = kCompared[static_cast<std::size_t>(below(static_cast<int>(std::size(kCompared))))];
    if (wild() && once(3)) {
        return negatable(
            words, [&] { value(depth - 1); }, [&] { value(depth - 1); });
    }
    switch (below(9)) {
    case 0:
    case 1:
    case 2:
        return negatable(
            words, [&] { number(depth - 1); }, [&] { once(2) ? plainNumber() : number(depth - 1); });
    case 3:
    case 4:
    case 5:
        return negatable(
            words, [&] { text(depth - 1); }, [&] { once(2) ? plainText() : text(depth - 1); });
    case 6:
        // A text that is a number: the number's type rules.
        return negatable(
            words, [&] { visible_.empty() ? slot(Slot::NumberText) : word(visible_.back() + ".w"); },
            [&] { slot(Slot::Integer); });
    case 7:
        return negatable(
            words, [&] { date(depth - 1); },
            [&] { once(2) || visible_.empty() ? slot(Slot::DateText) : word(visible_.back() + ".z"); });
    default:
        return negatable(
            words, [&] { date(depth - 1); }, [&] { date(depth - 1); });
    }
}

void StatementMaker::inList(int depth) {
    const int kind = below(3);
    const auto one = [&](int deep) { kind == 0 ? number(deep) : kind == 1 ? text(deep) : date(deep); };
    const Slot literal = kind == 0 ? Slot::Integer : kind == 1 ? Slot::Text : Slot::DateText;
    negatable(
        once(2) ? kIn : kNotIn, [&] { one(depth - 1); },
        [&] {
            list(1 + below(3), [&] { once(3) ? one(depth - 1) : slot(literal); });
            word(once(6) ? ", null)" : ")");
        });
}

void StatementMaker::subselect(int depth) {
    if (once(2)) {
        anyWord("exists (select ", "not exists (select ");
        inner([&] { value(0); }, depth - 1);
        return word(")");
    }
    const Negatable words = once(2) ? kIn : kNotIn;
    if (once(2) && !visible_.empty()) {
        // Nothing but a column on both sides: an index may answer this.
        const std::string column(1, "itgdvcnq"[below(8)]);
        return negatable(
            words, [&] { word(visible_.back() + "." + column); },
            [&] { word("select " + column + dice_.oneOf(" from t)", " from u)")); });
    }
    const int kind = below(3);
    const auto one = [&](int deep) { kind == 0 ? number(deep) : kind == 1 ? text(deep) : date(deep); };
    negatable(
        words, [&] { one(depth - 1); },
        [&] {
            word("select ");
            inner([&] { one(0); }, depth - 1);
            word(")");
        });
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

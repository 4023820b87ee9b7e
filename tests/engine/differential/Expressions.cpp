#include "engine/differential/StatementMaker.h"

#include <utility>

namespace engine::differential {

namespace {

constexpr std::string_view kExactColumns = "itsgdembw";
constexpr std::string_view kNumberColumns = "itsgdembwfr";

} // namespace

/// One of the columns, each named by a letter, of one of the sources, mostly the nearest.
void StatementMaker::column(std::string_view names) {
    const std::string& source =
        once(3) ? visible_[static_cast<std::size_t>(below(static_cast<int>(visible_.size())))] : visible_.back();
    const char name = names[static_cast<std::size_t>(below(static_cast<int>(names.size())))];
    word(source + "." + std::string(1, name));
}

void StatementMaker::plainNumber() {
    if (!visible_.empty() && !once(3)) {
        return once(8) ? word(visible_.back() + ".id") : column(exact_ ? kExactColumns : kNumberColumns);
    }
    switch (below(9)) {
    case 0:
    case 1:
    case 2:
        return slot(Slot::Integer);
    case 3:
    case 4:
        return slot(Slot::Decimal);
    case 5:
        word("-");
        return slot(once(2) ? Slot::Decimal : Slot::Integer);
    case 6:
        return exact_ ? slot(Slot::Decimal) : slot(Slot::Float);
    case 7:
        return slot(once(2) || !wild() ? Slot::Integer : Slot::NumberText);
    default:
        return word("null");
    }
}

void StatementMaker::number(int depth) {
    if (depth <= 0 || once(4)) {
        return plainNumber();
    }
    const auto inside = [&] { number(depth - 1); };
    switch (below(11)) {
    case 0:
    case 1:
        word("(");
        inside();
        anyWord(" + ", " - ", " * ");
        inside();
        return word(")");
    case 2:
        word("(");
        inside();
        anyWord(" / ", exact_ ? " % " : " / ");
        wild() && once(3) ? inside() : slot(Slot::Divisor);
        return word(")");
    case 3:
        word("case when ");
        condition(depth - 1);
        word(" then ");
        inside();
        if (once(2)) {
            word(" when ");
            condition(depth - 1);
            word(" then ");
            inside();
        }
        word(" else ");
        once(4) ? word("null") : slot(once(2) ? Slot::Integer : Slot::Decimal);
        return word(" end");
    case 4:
        word("case ");
        inside();
        word(" when ");
        inside();
        word(" then ");
        inside();
        word(" else ");
        slot(Slot::Integer);
        return word(" end");
    case 5:
        word("coalesce(");
        list(2 + below(2), inside);
        return word(")");
    case 6:
        anyWord("isnull(", "nullif(");
        list(2, inside);
        return word(")");
    case 7:
        word("cast(");
        wild() ? value(depth - 1) : inside();
        word(" as ");
        type();
        return word(")");
    case 8:
        return aggregated_ ? plainNumber() : scalarSelect(depth);
    default:
        return numberCall(depth);
    }
}

void StatementMaker::numberCall(int depth) {
    switch (below(6)) {
    case 0:
        word("round(");
        number(depth - 1);
        word(", ");
        slot(Slot::Small);
        return word(")");
    case 1:
        anyWord("abs(", "floor(", "ceiling(", "-(");
        number(depth - 1);
        return word(")");
    case 2:
        anyWord("len(", "datalength(");
        wild() ? value(depth - 1) : text(depth - 1);
        return word(")");
    case 3:
        word("charindex(");
        slot(Slot::Text);
        word(", ");
        text(depth - 1);
        return word(")");
    case 4:
        anyWord("year(", "month(", "day(", "datepart(hour, ", "datediff(day, '20040101', ");
        date(depth - 1);
        return word(")");
    default:
        anyWord("isnumeric(", "isdate(");
        text(depth - 1);
        return word(")");
    }
}

void StatementMaker::value(int depth) {
    switch (below(8)) {
    case 0:
    case 1:
        return text(depth);
    case 2:
        return date(depth);
    default:
        return number(depth);
    }
}

void StatementMaker::type() {
    switch (below(exact_ ? 6 : 7)) {
    case 0:
        return word("int");
    case 1:
        return word("bigint");
    case 2:
        return word("money");
    case 3:
        return word("bit");
    case 6:
        return word("float");
    default:
        word("decimal(");
        slot(Slot::Precision);
        word(", ");
        slot(Slot::Small);
        return word(")");
    }
}

std::string StatementMaker::exactNumber(std::vector<std::string> sources) {
    visible_ = std::move(sources);
    exact_ = aggregated_ = true;
    number(2);
    exact_ = aggregated_ = false;
    return finished().spelled(dice_);
}

std::string StatementMaker::anyColumn(const std::string& source) {
    constexpr std::string_view kAll = "itsgdembwfrcvknqyz";
    return source + "." + kAll[static_cast<std::size_t>(below(static_cast<int>(kAll.size())))];
}

Draft StatementMaker::finished() {
    visible_.clear();
    inners_ = 0;
    return std::exchange(draft_, Draft(manner_));
}

} // namespace engine::differential

#include "engine/differential/StatementMaker.h"

#include <utility>

namespace engine::differential {

namespace {

constexpr std::string_view kExactColumns = "itsgdembw";
constexpr std::string_view kNumberColumns = "itsgdembwfr";
constexpr std::string_view kTextColumns = "cvknx";

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

void StatementMaker::plainText() {
    if (!visible_.empty() && !once(3)) {
        return column(kTextColumns);
    }
    switch (below(5)) {
    case 0:
    case 1:
        return slot(Slot::Text);
    case 2:
        return slot(Slot::NumberText);
    default:
        return slot(Slot::NationalText);
    }
}

void StatementMaker::text(int depth) {
    if (depth <= 0 || once(3)) {
        return plainText();
    }
    const auto inside = [&] { wild() && once(3) ? value(depth - 1) : text(depth - 1); };
    switch (below(9)) {
    case 0:
        word("(");
        text(depth - 1);
        word(" + ");
        inside();
        return word(")");
    case 1:
        anyWord("convert(varchar(", "convert(nvarchar(", "convert(char(");
        word(wild() ? std::to_string(1 + below(5)) : "30");
        word("), ");
        value(depth - 1);
        if (once(2)) {
            word(", ");
            slot(Slot::Style);
        }
        return word(")");
    case 2:
        anyWord("left(", "right(");
        inside();
        word(", ");
        slot(Slot::Small);
        return word(")");
    case 3:
        anyWord("coalesce(", "isnull(", "nullif(");
        list(2, [&] { text(depth - 1); });
        return word(")");
    case 4:
        word("cast(");
        number(depth - 1);
        return word(" as varchar(40))");
    case 5:
        anyWord("upper(", "lower(", "ltrim(", "rtrim(", "reverse(");
        inside();
        return word(")");
    case 6:
        word("substring(");
        inside();
        word(", ");
        slot(Slot::Place);
        word(", ");
        slot(Slot::Small);
        return word(")");
    case 7:
        word("replace(");
        list(3, [&] { text(0); });
        return word(")");
    default:
        word("case when ");
        condition(depth - 1);
        word(" then ");
        text(depth - 1);
        word(" else ");
        text(depth - 1);
        return word(" end");
    }
}

void StatementMaker::date(int depth) {
    switch (below(depth <= 0 ? 3 : 7)) {
    case 0:
    case 1:
        return visible_.empty() ? slot(Slot::DateText) : column("q");
    case 2:
        word("convert(datetime, ");
        if (wild()) {
            slot(Slot::DateText);
            word(", ");
            slot(Slot::Style);
        } else {
            visible_.empty() || once(2) ? slot(Slot::DateText) : column("z");
        }
        return word(")");
    case 3:
        anyWord("dateadd(day, ", "dateadd(month, ", "dateadd(ms, ");
        wild() ? number(depth - 1) : slot(Slot::Integer);
        word(", ");
        date(depth - 1);
        return word(")");
    case 4:
        word("(");
        date(depth - 1);
        anyWord(" + ", " - ");
        slot(once(2) ? Slot::Integer : Slot::Decimal);
        return word(")");
    case 5:
        word("coalesce(");
        list(2, [&] { date(depth - 1); });
        return word(")");
    default:
        word("case when ");
        condition(depth - 1);
        word(" then ");
        date(depth - 1);
        return word(" end");
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

#include "engine/differential/StatementMaker.h"

namespace engine::differential {

namespace {

constexpr std::string_view kTextColumns = "cvknx";

} // namespace

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

} // namespace engine::differential

#include "engine/StatementMaker.h"

namespace engine {

StatementMaker::Pair StatementMaker::make() {
    pieces_.clear();
    statement();
    Pair pair;
    for (const Piece& piece : pieces_) {
        const std::string literal = piece.slot == Slot::Word ? piece.word : drawn(piece.slot);
        pair.first += literal;
        pair.second += piece.slot == Slot::Word || once(2) ? literal : drawn(piece.slot);
    }
    return pair;
}

void StatementMaker::statement() {
    switch (below(8)) {
    case 0:
        word("update t set ");
        list(1 + below(2), [this, at = 0]() mutable {
            static constexpr const char* kNumbers[] = {"i = ", "d = ", "m = ", "f = ", "b = "};
            word(at++ == 0 ? kNumbers[below(5)] : "v = ");
            at == 1 ? number(2) : value(2);
        });
        word(" where ");
        return condition(1);
    case 1:
        word("insert into t (id, d, m, v) values (");
        row_ = false;
        list(
            2, [this] { list(4, [this] { value(1); }); }, "), (");
        row_ = true;
        return word(")");
    case 2:
        word("insert into t (id, d, v) ");
        select(3);
        return;
    case 3:
        word("delete from t where ");
        return condition(2);
    case 4:
        word("select ");
        list(1 + below(2), [this] { aggregate(); });
        word(" from t");
        if (once(2)) {
            word(" where ");
            condition(1);
        }
        return;
    case 5:
        word("select x.a, x.b + ");
        number(1);
        word(" from (select ");
        number(2);
        word(" as a, ");
        number(2);
        word(" as b from t) as x order by 1");
        return;
    default:
        select(1 + below(3));
        if (once(3)) {
            word(" order by ");
            slot(Slot::Place);
        }
    }
}

void StatementMaker::select(int items) {
    const bool several = once(3);
    for (int core = several ? 2 + below(2) : 1; core > 0; --core) {
        word("select ");
        if (once(6)) {
            word("top ");
            slot(Slot::Small);
        }
        word(" ");
        // The columns of a union have a kind each, so that most of them meet.
        list(items, [this, several, at = 0]() mutable {
            const bool meets = several && at++ < 2;
            meets ? number(2) : value(2);
        });
        word(" from t");
        if (once(2)) {
            word(" where ");
            condition(1);
        }
        word(core == 1 ? "" : oneOf(" union ", " union all "));
    }
}

void StatementMaker::number(int depth) {
    if (depth == 0 || once(4)) {
        switch (below(11)) {
        case 0:
        case 1:
            return slot(Slot::Integer);
        case 2:
        case 3:
        case 4:
            return slot(Slot::Decimal);
        case 5:
            word("-");
            return slot(Slot::Decimal);
        case 6:
            return slot(Slot::Float);
        case 7:
            return once(4) ? slot(Slot::NumberText) : word("null");
        default:
            return row_ ? word(oneOf("i", "b", "d", "m", "f", "id")) : slot(Slot::Decimal);
        }
    }
    const auto inner = [&] { number(depth - 1); };
    switch (below(12)) {
    case 0:
    case 1:
        word("(");
        inner();
        word(oneOf(" + ", " - ", " * ", " / "));
        inner();
        return word(")");
    case 2:
    case 3:
        word("case when ");
        condition(depth - 1);
        word(" then ");
        inner();
        word(" else ");
        inner();
        return word(" end");
    case 4:
        word("case ");
        inner();
        word(" when ");
        inner();
        word(" then ");
        inner();
        return word(" end");
    case 5:
        word("coalesce(");
        list(2 + below(2), inner);
        return word(")");
    case 6:
        word(oneOf("isnull(", "nullif("));
        list(2, inner);
        return word(")");
    case 7:
        word("cast(");
        value(depth - 1);
        word(" as ");
        type();
        return word(")");
    case 8:
        word("round(");
        inner();
        word(", ");
        slot(Slot::Small);
        return word(")");
    case 9:
        word(oneOf("abs(", "floor(", "ceiling(", "-("));
        inner();
        return word(")");
    case 10:
        word(oneOf("len(", "datalength("));
        value(depth - 1);
        return word(")");
    default:
        word("(select ");
        once(2) ? aggregate() : inner();
        return word(" from t where id = 1)");
    }
}

void StatementMaker::text(int depth) {
    if (depth == 0 || once(3)) {
        switch (below(4)) {
        case 0:
            return slot(Slot::Text);
        case 1:
            return slot(Slot::NationalText);
        default:
            return row_ ? word(oneOf("v", "n")) : slot(Slot::Text);
        }
    }
    switch (below(5)) {
    case 0:
        word("(");
        text(depth - 1);
        word(" + ");
        text(depth - 1);
        return word(")");
    case 1:
        word("convert(varchar(");
        slot(Slot::Small);
        word("), ");
        value(depth - 1);
        if (once(2)) {
            word(", ");
            slot(Slot::Style);
        }
        return word(")");
    case 2:
        word(oneOf("left(", "right("));
        value(depth - 1);
        word(", ");
        slot(Slot::Small);
        return word(")");
    case 3:
        word("coalesce(");
        list(2, [&] { text(depth - 1); });
        return word(")");
    default:
        word("cast(");
        number(depth - 1);
        return word(" as varchar(40))");
    }
}

void StatementMaker::date(int depth) {
    switch (below(depth == 0 ? 2 : 3)) {
    case 0:
        return row_ ? word("w") : slot(Slot::DateText);
    case 1:
        word("convert(datetime, ");
        slot(Slot::DateText);
        word(", ");
        slot(Slot::Style);
        return word(")");
    default:
        word("dateadd(day, ");
        number(depth - 1);
        word(", ");
        date(depth - 1);
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

void StatementMaker::aggregate() {
    word(oneOf("sum(", "avg(", "min(", "max(", "count("));
    number(2);
    word(")");
}

void StatementMaker::condition(int depth) {
    switch (below(depth == 0 ? 3 : 6)) {
    case 0:
        number(0);
        word(" = ");
        return slot(Slot::Integer);
    case 1:
        row_ ? word(oneOf("i", "d", "v", "f")) : slot(Slot::Decimal);
        word(oneOf(" = ", " < ", " <> "));
        return number(0);
    case 2:
        text(0);
        word(" like ");
        return slot(Slot::NationalText);
    case 3:
        value(depth - 1);
        word(" in (");
        list(2 + below(2), [&] { number(depth - 1); });
        return word(")");
    case 4:
        number(depth - 1);
        word(" between ");
        number(depth - 1);
        word(" and ");
        return number(depth - 1);
    default:
        word("(");
        condition(depth - 1);
        word(oneOf(" and ", " or "));
        condition(depth - 1);
        return word(")");
    }
}

void StatementMaker::type() {
    switch (below(5)) {
    case 0:
        return word("int");
    case 1:
        return word("bigint");
    case 2:
        return word("float");
    default:
        word("decimal(");
        slot(Slot::Precision);
        word(", ");
        slot(Slot::Small);
        return word(")");
    }
}

std::string StatementMaker::digits(int least, int most) {
    std::string result;
    for (int left = least + below(most - least + 1); left > 0; --left) {
        result += static_cast<char>('0' + below(10));
    }
    return result;
}

std::string StatementMaker::drawn(Slot kind) {
    switch (kind) {
    case Slot::Word:
        return "";
    case Slot::Integer:
        return once(3) ? digits(1, 9) : std::to_string(below(5));
    case Slot::Decimal:
        // Whole numbers over those of int count among the decimals too.
        return once(6) ? "3" + digits(9, 20) : digits(0, 4) + "." + digits(1, 6);
    case Slot::Float:
        return digits(1, 2) + "." + digits(1, 2) + "e" + digits(1, 1);
    case Slot::Text:
        return "'" + oneOf("", "a", "Roma", "roma ", "12", "it''s", "a much longer text than others") + "'";
    case Slot::NationalText:
        return "N'" + oneOf("", "è", "Ro%", "1.5", "x_", "another long text") + "'";
    case Slot::NumberText:
        return "'" + digits(1, 3) + oneOf("", ".5", ",5", "x") + "'";
    case Slot::DateText:
        return "'" + oneOf("20040307", "2004-3-7", "07/03/2004", "1.2.2004", "", "2004-02-30") + "'";
    case Slot::Small:
        return std::to_string(below(6));
    case Slot::Place:
        return std::to_string(1 + below(3));
    case Slot::Precision:
        return std::to_string(9 + below(30));
    case Slot::Style:
        return oneOf("101", "102", "103", "104", "112", "120");
    }
    return "";
}

} // namespace engine

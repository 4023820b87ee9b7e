#include "engine/differential/StatementMaker.h"

namespace engine::differential {

Draft StatementMaker::write() {
    inOrder_ = false;
    switch (below(6)) {
    case 0:
        word("delete from t");
        visible_ = {"t"};
        where();
        break;
    case 1:
        insertRows();
        break;
    case 2:
        insertSelect();
        break;
    case 3:
        updateFrom();
        break;
    default:
        update();
    }
    return finished();
}

/// A value that the column takes.
void StatementMaker::assigned(const std::string& column) {
    if (wild() && once(3)) {
        return value(2);
    }
    const std::string& here = visible_.empty() ? column : visible_.back() + "." + column;
    if (!visible_.empty() && once(3)) {
        return word(here);
    }
    if (once(8)) {
        return word("null");
    }
    if (!visible_.empty() && once(4) && column.find_first_of("idmfg") == 0) {
        if (once(2)) {
            return scalarSelect(2);
        }
        return word("(select max(s." + column + ") from t as s where s.id " + dice_.oneOf("< ", "<> ", "> ") +
                    visible_.back() + ".id)");
    }
    switch (column[0]) {
    case 'v':
    case 'n':
    case 'c':
    case 'k':
        if (visible_.empty() || once(2)) {
            return slot(once(2) ? Slot::Text : Slot::NationalText);
        }
        anyWord("left(", "right(");
        text(1);
        word(", ");
        slot(Slot::Small);
        return word(")");
    case 'q':
        return date(1);
    case 'w':
        return slot(once(2) ? Slot::NumberText : Slot::Integer);
    case 'z':
        return slot(Slot::DateText);
    case 'f':
    case 'r':
        return number(1);
    case 't':
    case 's':
    case 'b':
        return slot(Slot::Integer);
    default:
        return once(2) ? number(1) : slot(once(2) ? Slot::Integer : Slot::Decimal);
    }
}

std::string StatementMaker::valueFor(const std::string& column, std::vector<std::string> sources) {
    visible_ = std::move(sources);
    assigned(column);
    return finished().spelled(dice_);
}

void StatementMaker::update() {
    visible_ = {"t"};
    word("update t set ");
    if (once(5)) {
        anyWord("id = id + 1", "id = 60 - id", "id = -id");
    } else {
        const std::string all = "itsgdmbfrcvknqwz";
        const int first = below(static_cast<int>(all.size()));
        list(1 + below(2), [&, at = first]() mutable {
            const std::string column(1, all[static_cast<std::size_t>(at++) % all.size()]);
            word(column + " = ");
            assigned(column);
        });
    }
    where();
}

/// Each row of `t` meets one row of `u` at most.
void StatementMaker::updateFrom() {
    const std::string column = dice_.oneOf("i", "v", "d", "m", "q", "n", "c", "g", "f");
    const bool both = once(2);
    visible_ = {"t", "a2"};
    word("update t set " + column + " = ");
    assigned(column);
    word(both ? " from t, u as a2 where t.id = a2.id and " : " from u as a2 where t.id = a2.id and ");
    condition(1);
}

void StatementMaker::insertRows() {
    const std::string columns = dice_.oneOf("idmv", "tsgn", "qwcb", "frkz");
    word("insert into t (id");
    for (const char column : columns) {
        word(std::string(", ") + column);
    }
    word(") values ");
    const int rows = 1 + below(3);
    for (int row = 0; row < rows; ++row) {
        word((row == 0 ? "(" : ", (") + std::to_string(200 + row));
        for (const char column : columns) {
            word(", ");
            assigned(std::string(1, column));
        }
        word(")");
    }
}

void StatementMaker::insertSelect() {
    const std::string columns = dice_.oneOf("idmv", "tsgn", "qwcb", "frkz");
    std::string names = "id";
    for (const char column : columns) {
        names += std::string(", ") + column;
    }
    visible_ = {"a1"};
    word("insert into t (" + names + ") select a1.id + 100");
    for (const char column : columns) {
        word(", ");
        assigned(std::string(1, column));
    }
    word(dice_.oneOf(" from t as a1", " from u as a1"));
    where();
}

} // namespace engine::differential

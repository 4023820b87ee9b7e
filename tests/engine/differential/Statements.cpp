#include "engine/differential/StatementMaker.h"

#include <utility>

namespace engine::differential {

Draft StatementMaker::any() {
    return once(3) ? write() : select();
}

Draft StatementMaker::select() {
    inOrder_ = false;
    switch (below(10)) {
    case 9:
        derived();
        break;
    case 0:
    case 1:
        groups();
        break;
    case 2:
        whole();
        break;
    case 3:
        unions();
        break;
    case 4:
        distinct();
        break;
    default:
        plainSelect();
    }
    return finished();
}

/// A table, or the rows of one in brackets.
void StatementMaker::source(const std::string& alias) {
    const std::string table = dice_.oneOf("t", "t", "u");
    if (!once(6)) {
        return word(table + " as " + alias);
    }
    word("(select ");
    const bool few = once(3);
    const std::string inside = "s" + std::to_string(++inners_);
    word((few ? "top 5 * from " : "* from ") + table + " as " + inside);
    const auto outside = std::exchange(visible_, {inside});
    where();
    visible_ = outside;
    word((few ? " order by " + inside + ".id) as " : ") as ") + alias);
}

/// What joins a source to one before it: mostly two columns of the same kind.
void StatementMaker::meeting(std::size_t last) {
    if (once(4)) {
        return condition(1);
    }
    const std::string& left = visible_[static_cast<std::size_t>(below(static_cast<int>(last)))];
    const std::string kinds =
        dice_.oneOf("ii", "ti", "id", "df", "mi", "vv", "cv", "nc", "kv", "qq", "bb", "gi", "rd", "ww");
    word(left + "." + kinds[0] + dice_.oneOf(" = ", " = ", " = ", " <= ") + visible_[last] + "." + kinds[1]);
    if (once(4)) {
        word(" and ");
        condition(1);
    }
}

/// FROM with so many sources `a1`, `a2`, … and WHERE.
void StatementMaker::from(int sources) {
    std::vector<std::string> aliases;
    for (int i = 1; i <= sources; ++i) {
        aliases.push_back("a" + std::to_string(i));
    }
    word(" from ");
    const bool commas = sources == 2 && once(5);
    for (std::size_t i = 0; i < aliases.size(); ++i) {
        std::string kind;
        if (i > 0) {
            kind = commas ? ", "
                          : dice_.oneOf(" join ", " join ", " left join ", " left join ", " right join ", " full join ",
                                        " cross join ");
            word(kind);
        }
        visible_.clear(); // the sources of a bracket see none of these
        source(aliases[i]);
        visible_.assign(aliases.begin(), aliases.begin() + static_cast<std::ptrdiff_t>(i) + 1);
        if (kind.ends_with("join ") && kind != " cross join ") {
            word(" on ");
            meeting(i);
        }
    }
    if (!commas) {
        return where();
    }
    word(" where ");
    meeting(1);
    if (once(2)) {
        word(" and ");
        condition(1);
    }
}

void StatementMaker::where() {
    if (once(3)) {
        return;
    }
    word(" where ");
    condition(2);
}

void StatementMaker::top() {
    if ((inOrder_ || wild()) && once(3)) {
        word("top ");
        slot(Slot::Place);
        word(" ");
    }
}

void StatementMaker::plainSelect() {
    const int sources = once(2) ? 1 : 2 + below(2);
    for (int i = 1; i <= sources; ++i) {
        visible_.push_back("a" + std::to_string(i));
    }
    const auto all = visible_;
    inOrder_ = once(2);
    word("select ");
    top();
    list(1 + below(3), [this] { value(2); });
    from(sources);
    if (wild() && !inOrder_ && once(3)) {
        word(" order by ");
        return slot(Slot::Place);
    }
    if (inOrder_) {
        word(" order by ");
        for (int keys = below(3); keys > 0; --keys) {
            word(anyColumn(dice_.from(all)) + dice_.oneOf(", ", " desc, "));
        }
        // The keys of the sources tell rows apart that are alike.
        for (std::size_t i = 0; i < all.size(); ++i) {
            word((i == 0 ? "" : ", ") + all[i] + ".id");
        }
    }
}

void StatementMaker::aggregate() {
    const bool exact = exact_;
    const bool aggregated = std::exchange(aggregated_, true);
    switch (below(6)) {
    case 0:
    case 1:
        exact_ = true;
        anyWord("sum(", "avg(", "sum(distinct ");
        number(1);
        break;
    case 2:
        anyWord("min(", "max(");
        number(1);
        break;
    case 3:
        anyWord("count(", "count(distinct ");
        column("itdvcnqf");
        break;
    default:
        exact_ = true;
        anyWord("min(", "max(", "sum(", "count(");
        column("itsgdm");
    }
    exact_ = exact;
    aggregated_ = aggregated;
    word(")");
}

void StatementMaker::groups() {
    const int sources = 1 + below(2);
    std::vector<std::string> keys;
    for (int i = 1 + below(2); i > 0; --i) {
        keys.push_back(anyColumn("a" + std::to_string(1 + below(sources))));
        if (once(6)) {
            keys.back() = dice_.oneOf("upper(a1.v)", "year(a1.q)", "a1.i + a1.t", "len(a1.n)");
        }
    }
    inOrder_ = once(2);
    word("select ");
    top();
    for (const std::string& key : keys) {
        word(key + ", ");
    }
    visible_ = {"a1"};
    list(1 + below(2), [this] { aggregate(); });
    from(sources);
    word(" group by ");
    for (std::size_t i = 0; i < keys.size(); ++i) {
        word((i == 0 ? "" : ", ") + keys[i]);
    }
    visible_ = {"a1"};
    if (once(3)) {
        word(" having ");
        having(keys, 1);
    }
    if (inOrder_) {
        word(" order by ");
        for (std::size_t i = 0; i < keys.size(); ++i) {
            word((i == 0 ? "" : ", ") + keys[i] + dice_.oneOf("", " desc"));
        }
    }
}

void StatementMaker::whole() {
    visible_ = {"a1"};
    word("select ");
    list(1 + below(3), [this] {
        once(5) ? word(dice_.oneOf("min(", "max(") + "a1." + dice_.oneOf("v", "n", "c", "q") + ")") : aggregate();
    });
    visible_.clear();
    from(1 + below(2));
    visible_ = {"a1"};
    if (once(5)) {
        word(" having ");
        having({"count(a1.i)"}, 1);
    }
}

void StatementMaker::unions() {
    const int columns = 1 + below(2);
    const std::string kinds = dice_.oneOf("nn", "nt", "tn", "dn", "td");
    const int cores = 2 + below(2);
    for (int core = 0; core < cores; ++core) {
        if (core > 0) {
            anyWord(" union ", " union all ");
        }
        word("select ");
        if (wild()) {
            top();
        }
        visible_ = {"a1"};
        list(columns, [&, at = 0]() mutable {
            const char kind = kinds[static_cast<std::size_t>(at++)];
            kind == 'n' ? number(2) : kind == 't' ? text(0) : date(1);
        });
        word(dice_.oneOf(" from t as a1", " from u as a1"));
        where();
    }
    inOrder_ = once(2);
    if (inOrder_) {
        word(columns == 1 ? " order by 1" : dice_.oneOf(" order by 1, 2", " order by 2 desc, 1"));
    }
}

void StatementMaker::derived() {
    word("select x.a, x.b + ");
    plainNumber();
    word(" from (select ");
    visible_ = {"a1"};
    number(2);
    word(" as a, ");
    number(2);
    word(dice_.oneOf(" as b from t as a1", " as b from u as a1"));
    where();
    word(") as x");
    if (once(2)) {
        word(" where x.a = ");
        visible_.clear();
        plainNumber();
    }
    word(wild() && once(2) ? " order by 1" : "");
}

void StatementMaker::distinct() {
    const int items = 1 + below(3);
    inOrder_ = once(2);
    word("select distinct ");
    top();
    const int sources = 1 + below(2);
    for (int i = 0; i < items; ++i) {
        word((i == 0 ? "" : ", ") + anyColumn("a" + std::to_string(1 + below(sources))));
    }
    from(sources);
    if (inOrder_) {
        word(" order by ");
        for (int i = 1; i <= items; ++i) {
            word((i == 1 ? "" : ", ") + std::to_string(i) + dice_.oneOf("", " desc"));
        }
    }
}

} // namespace engine::differential

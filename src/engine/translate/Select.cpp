#include "engine/translate/SqlText.h"

#include <array>

namespace engine::translate {

namespace {

void writeNode(Text& text, const bound::Table& table) {
    text += stored::qualifiedTable(table.schema, table.info->name) + " AS " + alias(table.number);
}

void writeNode(Text& text, const bound::Derived& derived) {
    text += '(';
    write(text, *derived.select);
    text += ") AS " + alias(derived.number);
}

/// In the order of Join::Kind.
constexpr std::array kJoins = {" JOIN ", " LEFT JOIN ", " RIGHT JOIN ", " FULL JOIN ", " CROSS JOIN "};

void writeNode(Text& text, const bound::Join& join) {
    write(text, *join.left);
    text += kJoins[static_cast<std::size_t>(join.kind)];
    const bool nested = std::holds_alternative<bound::Join>(join.right->node);
    text += nested ? "(" : "";
    write(text, *join.right);
    text += nested ? ")" : "";
    if (join.condition) {
        text += " ON ";
        write(text, *join.condition);
    }
}

/// SQLite aggregates a SELECT where one of its items does. Where only HAVING or ORDER BY does, an aggregate that leaves
/// its value alone is put around the first item.
void writeItems(Text& text, const bound::Core& core, bool compares) {
    int place = 0;
    for (const bound::ExpressionPtr& item : core.items) {
        text += place == 0 ? "" : ", ";
        const bool hidden = core.hiddenAggregate && place == 0;
        text += hidden ? "CASE count(*) WHEN -1 THEN NULL ELSE " : "";
        write(text, *item);
        text += hidden ? " END" : "";
        if (compares && item->type.isText()) {
            text += " COLLATE TSQL";
        }
        text += " AS c" + std::to_string(place++);
    }
}

/// `more` is written behind the items.
void writeCore(Text& text, const bound::Core& core, bool compares, const std::string& more = {}) {
    text += core.distinct ? "SELECT DISTINCT " : "SELECT ";
    writeItems(text, core, compares || core.distinct);
    text += more;
    bool first = true;
    for (const bound::SourcePtr& source : core.from) {
        text += first ? " FROM " : "";
        writeSource(text, *source, first);
        first = false;
    }
    writeWhere(text, core.where);
    first = true;
    for (const bound::ExpressionPtr& group : core.groupBy) {
        text += first ? " GROUP BY " : ", ";
        first = false;
        write(text, *group);
    }
    if (core.having) {
        text += " HAVING ";
        write(text, *core.having);
    }
}

void writeOrder(Text& text, const std::vector<bound::Order>& orderBy) {
    bool first = true;
    for (const bound::Order& order : orderBy) {
        text += first ? " ORDER BY " : ", ";
        first = false;
        if (order.expression) {
            write(text, *order.expression);
        } else {
            text += std::to_string(order.ordinal);
        }
        text += order.text ? " COLLATE TSQL" : "";
        text += order.descending ? " DESC" : "";
    }
}

void writeLimit(Text& text, const bound::Core& core) {
    if (core.top) {
        text += " LIMIT " + std::to_string(*core.top);
    }
}

} // namespace

void write(Text& text, const bound::Source& source) {
    std::visit([&](const auto& node) { writeNode(text, node); }, source.node);
}

bool addsRows(const bound::Source& source) {
    const auto* join = std::get_if<bound::Join>(&source.node);
    return join != nullptr &&
           (join->kind == Join::Kind::Right || join->kind == Join::Kind::Full || addsRows(*join->left));
}

void writeSource(Text& text, const bound::Source& source, bool first) {
    const bool apart = !first && addsRows(source);
    text += first ? "" : " CROSS JOIN ";
    text += apart ? "(" : "";
    write(text, source);
    text += apart ? ")" : "";
}

void write(Text& text, const bound::Select& select) {
    const bool several = select.cores.size() > 1;
    // SQLite's UNION breaks '' where it meets ' ' and '' again; next to another column these don't fill the same space.
    const bool beside = several && select.columns.size() == 1 && select.columns.front().type.isText();
    text += beside ? "SELECT c0 FROM (" : "";
    for (std::size_t i = 0; i < select.cores.size(); ++i) {
        const bound::Core& core = select.cores[i];
        if (i > 0) {
            text += select.unionAll[i - 1] ? " UNION ALL " : " UNION ";
        }
        // TOP limits its own part of a UNION, SQLite's LIMIT the whole.
        const bool limited = several && core.top.has_value();
        text += limited ? "SELECT * FROM (" : "";
        writeCore(text, core, several, beside ? ", 0" : "");
        if (limited) {
            writeLimit(text, core);
            text += ')';
        }
    }
    text += beside ? ")" : "";
    writeOrder(text, select.orderBy);
    if (!several) {
        writeLimit(text, select.cores.front());
    }
}

Text select(const bound::Select& select) {
    Text text;
    write(text, select);
    return text;
}

Text rowsOf(const bound::Select& select) {
    const bound::Core& core = select.cores.front();
    Text text;
    const auto& table = std::get<bound::Table>(core.from.front()->node);
    writeCore(text, core, false, ", " + alias(table.number) + "." + rowidOf(*table.info));
    writeOrder(text, select.orderBy);
    writeLimit(text, core);
    return text;
}

} // namespace engine::translate

#include "engine/text/PrintLists.h"

#include <array>

namespace engine {

namespace {

constexpr std::array<std::string_view, 5> kJoinNames = {"inner-join", "left-join", "right-join", "full-join",
                                                        "cross-join"};

struct Printer {
    std::string operator()(const NamedTable& table) const {
        ListText list("table");
        list.add(print(table.name)).addIf(!table.alias.empty(), table.alias);
        for (const auto& hint : table.hints) {
            list.add(ListText("hint").add(hint).text());
        }
        return list.text();
    }
    std::string operator()(const DerivedTable& table) const {
        return ListText("derived").add(print(*table.select)).add(table.alias).text();
    }
    std::string operator()(const Join& join) const {
        return ListText(kJoinNames.at(static_cast<std::size_t>(join.kind)))
            .add(print(*join.left))
            .add(print(*join.right))
            .add(join.condition)
            .text();
    }
};

std::string print(const SelectItem& item) {
    if (item.starOf) {
        return item.starOf->pieces.empty() ? "*" : print(*item.starOf) + ".*";
    }
    if (item.alias.empty()) {
        return print(*item.expression);
    }
    return ListText("as").add(item.alias).add(item.expression).text();
}

} // namespace

std::string print(const TableSource& source) {
    return std::visit(Printer{}, source.node);
}

std::string print(const OrderItem& item) {
    return item.descending ? ListText("desc").add(item.expression).text() : print(*item.expression);
}

std::string print(const SelectCore& core) {
    ListText list("select");
    list.addIf(core.distinct, "distinct");
    if (core.top) {
        list.add(ListText("top").add(std::to_string(*core.top)).text());
    }
    for (const auto& item : core.items) {
        list.add(print(item));
    }
    if (!core.from.empty()) {
        ListText from("from");
        for (const auto& source : core.from) {
            from.add(print(*source));
        }
        list.add(from.text());
    }
    list.add("where", core.where);
    if (!core.groupBy.empty()) {
        ListText groupBy("group-by");
        for (const auto& expression : core.groupBy) {
            groupBy.add(expression);
        }
        list.add(groupBy.text());
    }
    return list.add("having", core.having).text();
}

std::string print(const Select& select) {
    std::string text = print(select.cores.front());
    for (std::size_t i = 1; i < select.cores.size(); ++i) {
        text = ListText(select.unionAll[i - 1] ? "union-all" : "union").add(text).add(print(select.cores[i])).text();
    }
    if (select.orderBy.empty()) {
        return text;
    }
    ListText ordered("order-by");
    ordered.add(text);
    for (const auto& item : select.orderBy) {
        ordered.add(print(item));
    }
    return ordered.text();
}

} // namespace engine

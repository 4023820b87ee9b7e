#include "engine/text/PrintLists.h"

#include <array>

namespace engine {

namespace {

std::string names(std::string_view head, const std::vector<std::string>& names) {
    ListText list(head);
    for (const auto& name : names) {
        list.add(name);
    }
    return list.text();
}

std::string print(const ColumnDefinition& column) {
    ListText list("column");
    list.add(column.name).add(toText(column.type));
    if (column.nullable) {
        list.add(*column.nullable ? "null" : "not-null");
    }
    if (column.identity) {
        list.add(ListText("identity")
                     .add(std::to_string(column.identitySeed))
                     .add(std::to_string(column.identityIncrement))
                     .text());
    }
    if (column.defaultValue) {
        list.add(
            ListText("default").addIf(!column.defaultName.empty(), column.defaultName).add(column.defaultValue).text());
    }
    return list.text();
}

std::string print(const KeyDefinition& key) {
    const bool primary = key.kind == KeyDefinition::Kind::Primary;
    return ListText(primary ? "primary-key" : "unique")
        .addIf(!key.name.empty(), key.name)
        .add(names("on", key.columns))
        .text();
}

std::string print(const std::vector<ExpressionPtr>& row) {
    ListText list("row");
    for (const auto& value : row) {
        list.add(value ? print(*value) : "default");
    }
    return list.text();
}

struct Printer {
    std::string operator()(const Select& select) const { return print(select); }

    std::string operator()(const Insert& insert) const {
        ListText list("insert");
        list.add(print(insert.table));
        if (!insert.columns.empty()) {
            list.add(names("columns", insert.columns));
        }
        for (const auto& row : insert.rows) {
            list.add(print(row));
        }
        if (insert.select) {
            list.add(print(*insert.select));
        }
        return list.addIf(insert.rows.empty() && !insert.select, "default-values").text();
    }

    std::string operator()(const Update& update) const {
        ListText list("update");
        list.add(print(update.table));
        for (const auto& assignment : update.assignments) {
            list.add(ListText("set")
                         .add(print(assignment.column))
                         .add(assignment.value ? print(*assignment.value) : "default")
                         .text());
        }
        if (!update.from.empty()) {
            ListText from("from");
            for (const auto& source : update.from) {
                from.add(print(*source));
            }
            list.add(from.text());
        }
        return list.add("where", update.where).text();
    }

    std::string operator()(const Delete& node) const {
        return ListText("delete").add(print(node.table)).add("where", node.where).text();
    }

    std::string operator()(const CreateTable& create) const {
        ListText list("create-table");
        return elements(list.add(print(create.table)), create.columns, create.keys);
    }

    std::string operator()(const AlterTable& alter) const {
        ListText list("alter-table");
        return elements(list.add(print(alter.table)), alter.added, alter.keys);
    }

    static std::string elements(ListText& list, const std::vector<ColumnDefinition>& columns,
                                const std::vector<KeyDefinition>& keys) {
        for (const auto& column : columns) {
            list.add(print(column));
        }
        for (const auto& key : keys) {
            list.add(print(key));
        }
        return list.text();
    }

    std::string operator()(const CreateIndex& index) const {
        ListText list("create-index");
        list.addIf(index.unique, "unique").add(index.name).add(print(index.table));
        for (const auto& column : index.columns) {
            list.add(print(column));
        }
        return list.text();
    }

    std::string operator()(const Drop& drop) const {
        constexpr std::array<std::string_view, 3> kHeads = {"drop-table", "drop-database", "drop-index"};
        ListText list(kHeads.at(static_cast<std::size_t>(drop.kind)));
        list.addIf(drop.ifExists, "if-exists");
        for (const auto& name : drop.names) {
            list.add(print(name));
        }
        return list.text();
    }

    std::string operator()(const Truncate& truncate) const {
        return ListText("truncate").add(print(truncate.table)).text();
    }

    std::string operator()(const CreateDatabase& create) const {
        ListText list("create-database");
        list.add(create.name);
        for (const auto& file : create.files) {
            list.add(ListText(file.log ? "log" : "file").add(file.logicalName).add(file.fileName).text());
        }
        return list.text();
    }

    std::string operator()(const AlterDatabase& alter) const {
        ListText list("alter-database");
        list.add(alter.name);
        for (const auto& setting : alter.settings) {
            list.add(ListText(setting.option).addIf(!setting.value.empty(), setting.value).text());
        }
        return list.text();
    }

    std::string operator()(const Use& use) const { return ListText("use").add(use.database).text(); }

    std::string operator()(const SetOption& option) const {
        ListText list("set");
        for (const auto& name : option.options) {
            list.add(name);
        }
        return list.addIf(!option.table.pieces.empty(), print(option.table)).add(option.value).text();
    }

    std::string operator()(const Execute& execute) const {
        ListText list("execute");
        list.add(print(execute.procedure));
        for (const auto& argument : execute.arguments) {
            list.add(argument.name.empty() ? print(*argument.value)
                                           : ListText(argument.name).add(argument.value).text());
        }
        return list.text();
    }

    std::string operator()(const Reconfigure& reconfigure) const {
        return ListText("reconfigure").addIf(reconfigure.withOverride, "with-override").text();
    }

    std::string operator()(const Transaction& transaction) const {
        constexpr std::array<std::string_view, 3> kHeads = {"begin-transaction", "commit", "rollback"};
        return ListText(kHeads.at(static_cast<std::size_t>(transaction.kind))).text();
    }

    std::string operator()(const If& node) const {
        ListText list("if");
        list.add(node.condition).add(engine::print(*node.then));
        if (node.otherwise) {
            list.add(ListText("else").add(engine::print(*node.otherwise)).text());
        }
        return list.text();
    }

    std::string operator()(const Block& block) const {
        ListText list("block");
        for (const auto& statement : block.statements) {
            list.add(engine::print(*statement));
        }
        return list.text();
    }

    std::string operator()(const Print& node) const { return ListText("print").add(node.text).text(); }

    /// A kind without a text of its own is its place among the kinds.
    template<class Node>
    std::string operator()(const Node& /*node*/) const {
        return ListText("kind").add(std::to_string(index)).text();
    }

    std::size_t index;
};

} // namespace

std::string print(const Statement& statement) {
    return std::visit(Printer{statement.node.index()}, statement.node);
}

std::string print(const BatchTree& batch) {
    std::string text;
    for (const auto& statement : batch.statements) {
        text += print(*statement) + "\n";
    }
    return text;
}

} // namespace engine

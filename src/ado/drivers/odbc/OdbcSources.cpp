#include "ado/drivers/odbc/OdbcSources.h"

#include "engine/errors/Error.h"
#include "engine/text/Parser.h"

#include <algorithm>

namespace ado::odbc {

namespace {

using Fields = std::vector<FieldDescription>;

/// The first SELECT of a batch: its rows are the recordset's.
const engine::Select* firstSelect(const engine::BatchTree& batch) {
    for (const auto& statement : batch.statements) {
        if (const auto* select = std::get_if<engine::Select>(&statement->node)) {
            return select;
        }
    }
    return nullptr;
}

const engine::NamedTable* oneTable(const engine::Select& select) {
    const auto& from = select.cores.front().from;
    if (select.cores.size() != 1 || from.size() != 1) {
        return nullptr;
    }
    return std::get_if<engine::NamedTable>(&from.front()->node);
}

/// How many fields each `*` of the list stands for; 0 where they can't be divided evenly.
std::size_t starWidth(const std::vector<engine::SelectItem>& items, std::size_t fields) {
    const auto stars = static_cast<std::size_t>(
        std::ranges::count_if(items, [](const engine::SelectItem& item) { return item.starOf.has_value(); }));
    const std::size_t others = items.size() - stars;
    if (stars == 0 || fields < others || (fields - others) % stars != 0) {
        return 0;
    }
    return (fields - others) / stars;
}

void nameColumns(const engine::SelectCore& core, const std::string& table, Fields& fields) {
    const std::size_t width = starWidth(core.items, fields.size());
    auto field = fields.begin();
    const auto give = [&](const std::string& column) {
        field->baseTable = table;
        field->baseColumn = column;
    };
    for (const engine::SelectItem& item : core.items) {
        if (item.starOf) {
            for (std::size_t i = 0; i < width && field != fields.end(); ++i, ++field) {
                give(field->name);
            }
            continue;
        }
        if (field == fields.end()) {
            return;
        }
        if (const auto* column = std::get_if<engine::ColumnReference>(&item.expression->node)) {
            give(column->name.last());
        }
        ++field;
    }
}

} // namespace

void nameSources(const std::string& statement, Fields& fields) {
    try {
        const engine::BatchTree batch = engine::parse(statement);
        const engine::Select* select = firstSelect(batch);
        if (const engine::NamedTable* table = select ? oneTable(*select) : nullptr) {
            nameColumns(select->cores.front(), table->name.last(), fields);
        }
    } catch (const engine::Error&) {
        // A statement that only the server understands: without a known table its rows can't be edited.
    }
}

} // namespace ado::odbc

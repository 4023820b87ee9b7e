#include "engine/errors/DefinitionErrors.h"
#include "engine/translate/SqlText.h"

namespace engine::translate {

namespace {

/// The rows that an UPDATE with sources writes: the target among them, joined to all others.
void writeSources(Text& text, const bound::Update& update) {
    text += " FROM ";
    if (update.targetInFrom < 0) {
        text +=
            stored::qualifiedTable(update.table.schema, update.table.info->name) + " AS " + alias(update.table.number);
    }
    bool first = update.targetInFrom >= 0;
    for (const bound::SourcePtr& source : update.from) {
        writeSource(text, *source, first);
        first = false;
    }
    writeWhere(text, update.where);
}

/// Whether a table stands in a join in brackets, of which SQLite gives no row numbers.
bool isInBrackets(const bound::Source& source, int table, bool brackets) {
    if (const auto* join = std::get_if<bound::Join>(&source.node)) {
        return isInBrackets(*join->left, table, brackets) ||
               isInBrackets(*join->right, table, brackets || std::holds_alternative<bound::Join>(join->right->node));
    }
    const auto* named = std::get_if<bound::Table>(&source.node);
    return brackets && named != nullptr && named->number == table;
}

std::string targetAlias(const bound::Update& update) {
    return alias(update.targetInFrom < 0 ? update.table.number : update.targetInFrom);
}

/// A SELECT reads target and sources, because SQLite's UPDATE can't name the row numbers of several sources.
Text updateFrom(const bound::Update& update, std::int64_t most) {
    Text text("UPDATE " + stored::qualifiedTable(update.table.schema, update.table.info->name) + " AS target SET ");
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        text += (i == 0 ? "" : ", ") + stored::quoted(update.assignments[i].column->name) + " = found.v" +
                std::to_string(i);
    }
    const std::string rowid = rowidOf(*update.table.info);
    text += " FROM (SELECT " + targetAlias(update) + "." + rowid + " AS row";
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        text += ", ";
        write(text, *update.assignments[i].value);
        text += " AS v" + std::to_string(i);
    }
    writeSources(text, update);
    text += ") AS found WHERE target." + rowid + " = found.row";
    if (most != 0) {
        text += " AND target." + rowid + " IN (";
        text += rowsOf(update, most);
        text += ")";
    }
    return text;
}

} // namespace

Text update(const bound::Update& update, std::int64_t most) {
    for (std::size_t i = 0; i < update.from.size(); ++i) {
        if (isInBrackets(*update.from[i], update.targetInFrom, i > 0 && addsRows(*update.from[i]))) {
            throw errors::notSupported("UPDATE of a table inside of a join");
        }
    }
    if (!update.from.empty() || most != 0 || update.selects) {
        return updateFrom(update, most);
    }
    Text text("UPDATE " + stored::qualifiedTable(update.table.schema, update.table.info->name) + " AS " +
              alias(update.table.number) + " SET ");
    bool first = true;
    for (const auto& assignment : update.assignments) {
        text += first ? "" : ", ";
        first = false;
        text += stored::quoted(assignment.column->name) + " = ";
        write(text, *assignment.value);
    }
    writeWhere(text, update.where);
    return text;
}

Text rowsOf(const bound::Update& update, std::int64_t most) {
    Text text((most == 0 ? "SELECT " : "SELECT DISTINCT ") + targetAlias(update) + "." + rowidOf(*update.table.info));
    writeSources(text, update);
    writeLimit(text, most);
    return text;
}

} // namespace engine::translate

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
        text += first ? "" : " CROSS JOIN ";
        first = false;
        write(text, *source);
    }
    writeWhere(text, update.where);
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

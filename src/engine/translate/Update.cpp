#include "engine/translate/SqlText.h"

namespace engine::translate {

namespace {

void writeSources(std::string& text, const bound::Update& update) {
    bool first = true;
    for (const bound::SourcePtr& source : update.from) {
        text += first ? " FROM " : " CROSS JOIN ";
        first = false;
        write(text, *source);
    }
}

/// A target that stands among the sources is tied to itself there by its row number.
void writeCondition(std::string& text, const bound::Update& update) {
    if (update.targetInFrom < 0) {
        writeWhere(text, update.where);
        return;
    }
    text += " WHERE " + alias(update.table.number) + ".rowid = " + alias(update.targetInFrom) + ".rowid";
    if (update.where) {
        text += " AND ";
        write(text, *update.where);
    }
}

} // namespace

std::string update(const bound::Update& update) {
    std::string text = "UPDATE " + tableName(update.table.schema, update.table.info->name) + " AS " +
                       alias(update.table.number) + " SET ";
    bool first = true;
    for (const auto& assignment : update.assignments) {
        text += first ? "" : ", ";
        first = false;
        text += quoted(assignment.column->name) + " = ";
        write(text, *assignment.value);
    }
    writeSources(text, update);
    writeCondition(text, update);
    return text;
}

std::string rowsOf(const bound::Update& update) {
    std::string text = "SELECT " + alias(update.table.number) + ".rowid FROM " +
                       tableName(update.table.schema, update.table.info->name) + " AS " + alias(update.table.number);
    for (const bound::SourcePtr& source : update.from) {
        text += " CROSS JOIN ";
        write(text, *source);
    }
    writeCondition(text, update);
    return text;
}

} // namespace engine::translate

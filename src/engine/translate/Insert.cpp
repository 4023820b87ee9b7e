#include "engine/translate/SqlText.h"

namespace engine::translate {

Text insert(const bound::Insert& insert) {
    Text text("INSERT INTO " + stored::qualifiedTable(insert.table.schema, insert.table.info->name));
    if (insert.columns.empty()) {
        text += " DEFAULT VALUES";
        return text;
    }
    text += " (";
    bool first = true;
    for (const ColumnInfo* column : insert.columns) {
        text += first ? "" : ", ";
        first = false;
        text += stored::quoted(column->name);
    }
    text += ") VALUES ";
    const std::size_t expressions = insert.rows.size() * insert.columns.size();
    first = true;
    for (const auto& row : insert.rows) {
        text += first ? "(" : ", (";
        first = false;
        writeList(text, row, expressions >= Text::Many::kLeast);
        text += ')';
    }
    return text;
}

} // namespace engine::translate

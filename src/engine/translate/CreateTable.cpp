#include "engine/translate/SqlText.h"
#include "engine/values/Collation.h"

namespace engine::translate {

namespace {

using Kind = DataType::Kind;

const char* storageType(const DataType& type) {
    if (type.isText()) {
        return "TEXT COLLATE TSQL";
    }
    if (type.isInteger()) {
        return "INTEGER";
    }
    if (type.isNumber()) {
        return "REAL";
    }
    return type.kind == Kind::DateTime ? "TEXT" : "BLOB";
}

} // namespace

const ColumnInfo* rowNumber(const TableInfo& table) {
    const ColumnInfo* identity = table.identity();
    const KeyInfo* key = table.primaryKey();
    const bool whole = identity != nullptr && identity->type.isInteger() && key != nullptr &&
                       key->columns.size() == 1 && sameText(key->columns.front(), identity->name);
    return whole ? identity : nullptr;
}

std::string columnDefinition(const TableInfo& table, const ColumnInfo& column) {
    if (&column == rowNumber(table)) {
        return stored::quoted(column.name) + " INTEGER PRIMARY KEY";
    }
    return stored::quoted(column.name) + ' ' + storageType(column.type) + (column.nullable ? "" : " NOT NULL");
}

std::string createTable(const TableInfo& table) {
    std::string text = "CREATE TABLE " + stored::quoted(stored::tableName(table.name)) + " (";
    bool first = true;
    for (const ColumnInfo& column : table.columns) {
        text += first ? "" : ", ";
        first = false;
        text += columnDefinition(table, column);
    }
    return text + ")";
}

std::string createKey(const TableInfo& table, const KeyInfo& key) {
    std::string text = "CREATE UNIQUE INDEX " + stored::quoted(stored::indexName(table.name, key.name)) + " ON " +
                       stored::quoted(stored::tableName(table.name)) + " (";
    bool first = true;
    for (const std::string& column : key.columns) {
        text += first ? "" : ", ";
        first = false;
        text += stored::quoted(column);
    }
    return text + ")";
}

std::string addColumn(const TableInfo& table, const ColumnInfo& column, const std::string& defaultText) {
    return "ALTER TABLE " + stored::quoted(stored::tableName(table.name)) + " ADD COLUMN " +
           columnDefinition(table, column) + (defaultText.empty() ? "" : " DEFAULT " + defaultText);
}

} // namespace engine::translate

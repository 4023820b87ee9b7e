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

std::vector<std::string> createIndex(const TableInfo& table, const std::string& index,
                                     const std::vector<IndexColumn>& columns, bool unique) {
    const std::string name = stored::indexName(table.name, index);
    const std::string onTable = " ON " + stored::quoted(stored::tableName(table.name)) + " (";
    std::string plain;
    std::string nullsCompared;
    std::string anyNull;
    for (const auto& [column, descending] : columns) {
        const std::string quoted = stored::quoted(column->name);
        const std::string comma = plain.empty() ? "" : ", ";
        plain += comma + quoted + (descending ? " DESC" : "");
        nullsCompared += comma;
        if (!column->nullable) {
            nullsCompared += quoted;
            continue;
        }
        nullsCompared +=
            quoted + " IS NULL, ifnull(" + quoted + ", 0)" + (column->type.isText() ? " COLLATE TSQL" : "");
        anyNull += (anyNull.empty() ? " WHERE " : " OR ") + quoted + " IS NULL";
    }
    std::vector<std::string> texts{(unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") + stored::quoted(name) +
                                   onTable + plain + ")"};
    if (unique && !anyNull.empty()) {
        texts.push_back("CREATE UNIQUE INDEX " + stored::quoted(stored::nullsIndexName(name)) + onTable +
                        nullsCompared + ")" + anyNull);
    }
    return texts;
}

std::vector<std::string> createKey(const TableInfo& table, const KeyInfo& key) {
    std::vector<IndexColumn> columns;
    for (const std::string& column : key.columns) {
        columns.push_back({&table.columns[static_cast<std::size_t>(table.find(column))], false});
    }
    return createIndex(table, key.name, columns, true);
}

std::string addColumn(const TableInfo& table, const ColumnInfo& column, const std::string& defaultText) {
    return "ALTER TABLE " + stored::quoted(stored::tableName(table.name)) + " ADD COLUMN " +
           columnDefinition(table, column) + (defaultText.empty() ? "" : " DEFAULT " + defaultText);
}

} // namespace engine::translate

#include "engine/run/SystemTables.h"

#include "engine/bind/BoundMakers.h"
#include "engine/errors/Error.h"
#include "engine/store/StoredNames.h"
#include "engine/translate/SqlText.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <array>
#include <functional>

namespace engine {

namespace {

using Kind = DataType::Kind;
using Row = std::vector<Scalar>;
using Rows = std::vector<Row>;

const DataType kName{Kind::NVarChar, 128, 0, 0};
const DataType kInt{Kind::Int, 0, 0, 0};
const DataType kSmall{Kind::SmallInt, 0, 0, 0};
const DataType kDate{Kind::DateTime, 0, 0, 0};
const DataType kPath{Kind::NVarChar, 260, 0, 0};
const DataType kShort{Kind::VarChar, 20, 0, 0};
const DataType kLong{Kind::NVarChar, 4000, 0, 0};

/// Every table is its schema, its name, its columns, and the rows it has at a moment.
struct SystemTable {
    std::string schema, name;
    TableInfo info;
    std::function<Rows(Database&, const Instance&)> rows;
};

ColumnInfo column(const char* name, const DataType& type) {
    ColumnInfo made;
    made.name = name;
    made.type = type;
    return made;
}

Rows databases(Database& /*database*/, const Instance& instance) {
    Rows rows;
    for (const DatabaseEntry& entry : instance.databases()) {
        rows.push_back({entry.name, std::int64_t{entry.id}, std::int64_t{0}, std::int64_t{0}, entry.created,
                        std::int64_t{90}, entry.serverPath});
    }
    return rows;
}

Rows databasesOfSys(Database& /*database*/, const Instance& instance) {
    Rows rows;
    for (const DatabaseEntry& entry : instance.databases()) {
        rows.push_back({entry.name, std::int64_t{entry.id}, entry.created, std::int64_t{90},
                        std::string("Latin1_General_CI_AS"), std::string("ONLINE")});
    }
    return rows;
}

Rows objects(Database& database, const Instance& /*instance*/) {
    Rows rows;
    for (const std::string& name : database.catalog().tableNames()) {
        const TableInfo& table = *database.catalog().table(name);
        const std::int64_t id = objectId(database, table);
        rows.push_back({name, id, std::string("U "), std::int64_t{1}, std::int64_t{0}});
        std::int64_t keyId = id;
        for (const KeyInfo& key : table.keys) {
            rows.push_back({key.name, ++keyId, std::string(key.primary ? "PK" : "UQ"), std::int64_t{1}, id});
        }
    }
    return rows;
}

Rows tables(Database& database, const Instance& /*instance*/) {
    Rows rows;
    for (const std::string& name : database.catalog().tableNames()) {
        rows.push_back({database.name(), std::string("dbo"), name, std::string("BASE TABLE")});
    }
    return rows;
}

Scalar precisionOf(const DataType& type) {
    if (type.kind == Kind::Real || type.kind == Kind::Float) {
        return std::int64_t{type.kind == Kind::Real ? 24 : 53};
    }
    return type.isNumber() && type.kind != Kind::Bit ? Scalar(std::int64_t{asDecimal(type).precision}) : Scalar();
}

Row describe(Database& database, const TableInfo& table, const ColumnInfo& column, std::int64_t place) {
    const bool text = column.type.isText();
    const bool decimal = column.type.kind == Kind::Decimal;
    return {database.name(),
            std::string("dbo"),
            table.name,
            column.name,
            place,
            column.defaultText ? Scalar("(" + *column.defaultText + ")") : Scalar(),
            std::string(column.nullable ? "YES" : "NO"),
            decimal && !column.type.isMoney() ? std::string("decimal") : typeName(column.type),
            text ? Scalar(std::int64_t{column.type.length}) : Scalar(),
            precisionOf(column.type),
            decimal || (column.type.isInteger() && column.type.kind != Kind::Bit)
                ? Scalar(std::int64_t{column.type.scale})
                : Scalar()};
}

Rows columns(Database& database, const Instance& /*instance*/) {
    Rows rows;
    for (const std::string& name : database.catalog().tableNames()) {
        const TableInfo& table = *database.catalog().table(name);
        std::int64_t place = 0;
        for (const ColumnInfo& column : table.columns) {
            rows.push_back(describe(database, table, column, ++place));
        }
    }
    return rows;
}

/// One row a key, or one row a column of it.
Rows keys(Database& database, const std::function<void(Rows&, const TableInfo&, const KeyInfo&)>& add) {
    Rows rows;
    for (const std::string& name : database.catalog().tableNames()) {
        const TableInfo& table = *database.catalog().table(name);
        for (const KeyInfo& key : table.keys) {
            add(rows, table, key);
        }
    }
    return rows;
}

Rows tableConstraints(Database& database, const Instance& /*instance*/) {
    return keys(database, [&](Rows& rows, const TableInfo& table, const KeyInfo& key) {
        rows.push_back({database.name(), std::string("dbo"), key.name, database.name(), std::string("dbo"), table.name,
                        std::string(key.primary ? "PRIMARY KEY" : "UNIQUE")});
    });
}

Rows keyColumns(Database& database, const Instance& /*instance*/) {
    return keys(database, [&](Rows& rows, const TableInfo& table, const KeyInfo& key) {
        std::int64_t place = 0;
        for (const std::string& column : key.columns) {
            rows.push_back({database.name(), std::string("dbo"), key.name, database.name(), std::string("dbo"),
                            table.name, column, ++place});
        }
    });
}

SystemTable make(const char* schema, const char* name, std::vector<ColumnInfo> columns,
                 std::function<Rows(Database&, const Instance&)> rows) {
    SystemTable table{schema, name, {}, std::move(rows)};
    table.info.name = std::string(schema) == "dbo" ? name : std::string(schema) + "." + name;
    table.info.columns = std::move(columns);
    return table;
}

const std::vector<SystemTable>& systemTables() {
    static const std::vector<SystemTable> all = [] {
        std::vector<SystemTable> made;
        made.push_back(
            make("dbo", "sysdatabases",
                 {column("name", kName), column("dbid", kSmall), column("mode", kSmall), column("status", kInt),
                  column("crdate", kDate), column("cmptlevel", kSmall), column("filename", kPath)},
                 databases));
        made.push_back(make("dbo", "sysobjects",
                            {column("name", kName), column("id", kInt), column("xtype", DataType{Kind::Char, 2, 0, 0}),
                             column("uid", kSmall), column("parent_obj", kInt)},
                            objects));
        made.push_back(
            make("sys", "databases",
                 {column("name", kName), column("database_id", kInt), column("create_date", kDate),
                  column("compatibility_level", kSmall), column("collation_name", kName), column("state_desc", kName)},
                 databasesOfSys));
        made.push_back(make("INFORMATION_SCHEMA", "TABLES",
                            {column("TABLE_CATALOG", kName), column("TABLE_SCHEMA", kName), column("TABLE_NAME", kName),
                             column("TABLE_TYPE", kShort)},
                            tables));
        made.push_back(
            make("INFORMATION_SCHEMA", "COLUMNS",
                 {column("TABLE_CATALOG", kName), column("TABLE_SCHEMA", kName), column("TABLE_NAME", kName),
                  column("COLUMN_NAME", kName), column("ORDINAL_POSITION", kInt), column("COLUMN_DEFAULT", kLong),
                  column("IS_NULLABLE", kShort), column("DATA_TYPE", kName), column("CHARACTER_MAXIMUM_LENGTH", kInt),
                  column("NUMERIC_PRECISION", kInt), column("NUMERIC_SCALE", kInt)},
                 columns));
        made.push_back(
            make("INFORMATION_SCHEMA", "TABLE_CONSTRAINTS",
                 {column("CONSTRAINT_CATALOG", kName), column("CONSTRAINT_SCHEMA", kName),
                  column("CONSTRAINT_NAME", kName), column("TABLE_CATALOG", kName), column("TABLE_SCHEMA", kName),
                  column("TABLE_NAME", kName), column("CONSTRAINT_TYPE", kShort)},
                 tableConstraints));
        made.push_back(
            make("INFORMATION_SCHEMA", "KEY_COLUMN_USAGE",
                 {column("CONSTRAINT_CATALOG", kName), column("CONSTRAINT_SCHEMA", kName),
                  column("CONSTRAINT_NAME", kName), column("TABLE_CATALOG", kName), column("TABLE_SCHEMA", kName),
                  column("TABLE_NAME", kName), column("COLUMN_NAME", kName), column("ORDINAL_POSITION", kInt)},
                 keyColumns));
        return made;
    }();
    return all;
}

} // namespace

const TableInfo* systemTable(std::string_view schema, std::string_view name) {
    for (const SystemTable& table : systemTables()) {
        // The two old names are seen from the schema `sys` as well.
        const bool rightSchema = sameText(table.schema, schema.empty() ? "dbo" : schema) ||
                                 (table.schema == "dbo" && sameText(schema, "sys"));
        if (rightSchema && sameText(table.name, name)) {
            return &table.info;
        }
    }
    return nullptr;
}

std::int64_t objectId(const Database& database, const TableInfo& table) {
    constexpr std::int64_t kOfADatabase = 10'000'000;
    constexpr std::int64_t kOfATable = 100; // itself and its keys
    return database.entry().id * kOfADatabase + table.id * kOfATable;
}

void fillSystemTable(const std::string& name, Database& database, const Instance& instance) {
    const auto& all = systemTables();
    const auto table =
        std::find_if(all.begin(), all.end(), [&](const SystemTable& one) { return one.info.name == name; });
    if (table == all.end()) {
        throw InternalError("no table of the server's own: " + name);
    }
    sqlite::Connection& connection = database.connection();
    std::string text = "CREATE TABLE IF NOT EXISTS " + stored::qualifiedTable("temp", name) + " (";
    std::string places;
    for (const ColumnInfo& column : table->info.columns) {
        text += (places.empty() ? "" : ", ") + translate::columnDefinition(table->info, column);
        places += places.empty() ? "?" : ", ?";
    }
    connection.run(text + ")");
    connection.run("DELETE FROM " + stored::qualifiedTable("temp", name));
    sqlite::Statement insert(connection,
                             "INSERT INTO " + stored::qualifiedTable("temp", name) + " VALUES (" + places + ")");
    for (const Row& row : table->rows(database, instance)) {
        int place = 0;
        for (const Scalar& value : row) {
            bindValue(insert, ++place, value);
        }
        insert.step();
        insert.reset();
    }
}

} // namespace engine

#include "engine/store/CatalogState.h"

#include "engine/errors/Error.h"
#include "engine/values/Collation.h"

#include <cstdint>
#include <utility>

namespace engine {
namespace {

constexpr const char* kOwnTables = R"(
CREATE TABLE _vabo_tables (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT NOT NULL COLLATE TSQL UNIQUE);
CREATE TABLE _vabo_columns (
    table_id INTEGER NOT NULL, place INTEGER NOT NULL, name TEXT NOT NULL,
    kind INTEGER NOT NULL, length INTEGER NOT NULL, precision INTEGER NOT NULL, scale INTEGER NOT NULL,
    nullable INTEGER NOT NULL, identity INTEGER NOT NULL, seed INTEGER NOT NULL, increment INTEGER NOT NULL,
    default_text TEXT, default_name TEXT NOT NULL,
    PRIMARY KEY (table_id, place)) WITHOUT ROWID;
CREATE TABLE _vabo_keys (
    table_id INTEGER NOT NULL, key INTEGER NOT NULL, place INTEGER NOT NULL,
    name TEXT NOT NULL, is_primary INTEGER NOT NULL, column_name TEXT NOT NULL,
    PRIMARY KEY (table_id, key, place)) WITHOUT ROWID;
CREATE TABLE _vabo_identity (table_id INTEGER PRIMARY KEY, next INTEGER NOT NULL);
)";

std::int64_t integerOf(sqlite::Statement& statement) {
    const std::int64_t value = statement.step() ? statement.integer(0) : 0;
    statement.reset();
    return value;
}

sqlite::Connection& withOwnTables(sqlite::Connection& connection) {
    const auto missing = [&] {
        sqlite::Statement there(connection, "SELECT 1 FROM sqlite_schema WHERE name = '_vabo_identity'");
        return !there.step();
    };
    if (!missing()) {
        return connection;
    }
    sqlite::Transaction transaction(connection);
    if (missing()) {
        connection.run(kOwnTables);
    }
    transaction.commit();
    return connection;
}

} // namespace

Catalog::State::State(sqlite::Connection& opened)
    : connection(withOwnTables(opened)),
      readVersion_(opened, "PRAGMA user_version"),
      columnsOf_(opened, "SELECT name, kind, length, precision, scale, nullable, identity, seed, increment, "
                         "default_text, default_name FROM _vabo_columns WHERE table_id = ?1 ORDER BY place"),
      keysOf_(opened, "SELECT key, name, is_primary, column_name FROM _vabo_keys "
                      "WHERE table_id = ?1 ORDER BY key, place"),
      readIdentity_(opened, "SELECT next FROM _vabo_identity WHERE table_id = ?1"),
      writeIdentity_(opened, "UPDATE _vabo_identity SET next = ?2 WHERE table_id = ?1") {}

std::int64_t Catalog::State::storedVersion() {
    return integerOf(readVersion_);
}

void Catalog::State::load() {
    tables.clear();
    sqlite::Statement rows(connection, "SELECT id, name FROM _vabo_tables");
    while (rows.step()) {
        auto entry = std::make_unique<Entry>();
        entry->id = rows.integer(0);
        entry->info.name = rows.text(1);
        entry->info.id = entry->id;
        reload(*entry);
        std::string key = collationKey(entry->info.name);
        tables.emplace(std::move(key), std::move(entry));
    }
}

void Catalog::State::reload(Entry& entry) {
    entry.info.columns.clear();
    entry.info.keys.clear();
    readColumns(entry);
    readKeys(entry);
}

void Catalog::State::readColumns(Entry& entry) {
    sqlite::Statement& rows = columnsOf_;
    rows.bind(1, entry.id);
    while (rows.step()) {
        ColumnInfo column;
        column.name = rows.text(0);
        column.type = {static_cast<DataType::Kind>(rows.integer(1)), static_cast<int>(rows.integer(2)),
                       static_cast<int>(rows.integer(3)), static_cast<int>(rows.integer(4))};
        column.nullable = rows.integer(5) != 0;
        column.identity = rows.integer(6) != 0;
        column.seed = rows.integer(7);
        column.increment = rows.integer(8);
        if (!rows.isNull(9)) {
            column.defaultText = std::string(rows.text(9));
        }
        column.defaultName = rows.text(10);
        entry.info.columns.push_back(std::move(column));
    }
    rows.reset();
}

void Catalog::State::readKeys(Entry& entry) {
    sqlite::Statement& rows = keysOf_;
    rows.bind(1, entry.id);
    std::int64_t last = -1;
    while (rows.step()) {
        if (rows.integer(0) != last) {
            last = rows.integer(0);
            entry.info.keys.push_back({std::string(rows.text(1)), rows.integer(2) != 0, {}});
        }
        entry.info.keys.back().columns.emplace_back(rows.text(3));
    }
    rows.reset();
}

void Catalog::State::changed() {
    const std::int64_t before = storedVersion();
    do {
        version = static_cast<std::int64_t>(numbers_());
    } while (version == before);
    connection.run("PRAGMA user_version = " + std::to_string(version));
    ownChange = true;
}

Catalog::State::Entry& Catalog::State::entry(std::string_view name) {
    const auto found = tables.find(collationKey(name));
    if (found == tables.end()) {
        throw InternalError("the catalog doesn't know the table " + std::string(name));
    }
    return *found->second;
}

Catalog::State::Entry& Catalog::State::insertTable(const std::string& name) {
    sqlite::Statement insert(connection, "INSERT INTO _vabo_tables (name) VALUES (?1)");
    insert.bind(1, name);
    insert.step();
    auto entry = std::make_unique<Entry>();
    entry->id = connection.lastRow();
    entry->info.name = name;
    entry->info.id = entry->id;
    return *tables.insert_or_assign(collationKey(name), std::move(entry)).first->second;
}

void Catalog::State::insertColumn(std::int64_t table, std::size_t place, const ColumnInfo& column) {
    sqlite::Statement insert(connection, "INSERT INTO _vabo_columns VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    insert.bind(1, table);
    insert.bind(2, static_cast<std::int64_t>(place));
    insert.bind(3, column.name);
    insert.bind(4, static_cast<std::int64_t>(column.type.kind));
    insert.bind(5, std::int64_t{column.type.length});
    insert.bind(6, std::int64_t{column.type.precision});
    insert.bind(7, std::int64_t{column.type.scale});
    insert.bind(8, std::int64_t{column.nullable});
    insert.bind(9, std::int64_t{column.identity});
    insert.bind(10, column.seed);
    insert.bind(11, column.increment);
    if (column.defaultText) {
        insert.bind(12, std::string_view(*column.defaultText));
    } else {
        insert.bindNull(12);
    }
    insert.bind(13, column.defaultName);
    insert.step();
    if (column.identity) {
        sqlite::Statement first(connection, "INSERT INTO _vabo_identity VALUES (?1, ?2)");
        first.bind(1, table);
        first.bind(2, column.seed);
        first.step();
    }
}

void Catalog::State::insertKey(std::int64_t table, std::size_t number, const KeyInfo& key) {
    sqlite::Statement insert(connection, "INSERT INTO _vabo_keys VALUES (?, ?, ?, ?, ?, ?)");
    for (std::size_t place = 0; place < key.columns.size(); ++place) {
        insert.bind(1, table);
        insert.bind(2, static_cast<std::int64_t>(number));
        insert.bind(3, static_cast<std::int64_t>(place));
        insert.bind(4, key.name);
        insert.bind(5, std::int64_t{key.primary});
        insert.bind(6, key.columns[place]);
        insert.step();
        insert.reset();
    }
}

void Catalog::State::remove(std::string_view name) {
    const std::int64_t id = entry(name).id;
    for (const char* text :
         {"DELETE FROM _vabo_tables WHERE id = ?1", "DELETE FROM _vabo_columns WHERE table_id = ?1",
          "DELETE FROM _vabo_keys WHERE table_id = ?1", "DELETE FROM _vabo_identity WHERE table_id = ?1"}) {
        sqlite::Statement statement(connection, text);
        statement.bind(1, id);
        statement.step();
    }
    tables.erase(collationKey(name));
}

std::int64_t Catalog::State::storedNext(std::int64_t table) {
    readIdentity_.bind(1, table);
    return integerOf(readIdentity_);
}

void Catalog::State::storeNext(std::int64_t table, std::int64_t next) {
    writeIdentity_.bind(1, table);
    writeIdentity_.bind(2, next);
    writeIdentity_.step();
    writeIdentity_.reset();
}

} // namespace engine

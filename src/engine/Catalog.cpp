#include "engine/Catalog.h"

#include "engine/Collation.h"
#include "engine/Error.h"
#include "engine/Sqlite.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace engine {
namespace {

constexpr const char* ownTables = R"(
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

void makeOwnTables(sqlite::Connection& connection) {
    const auto missing = [&] {
        sqlite::Statement there(connection, "SELECT 1 FROM sqlite_schema WHERE name = '_vabo_identity'");
        return !there.step();
    };
    if (!missing()) {
        return;
    }
    sqlite::Transaction transaction(connection);
    if (missing()) {
        connection.run(ownTables);
    }
    transaction.commit();
}

Error identityOverflow(const DataType& type) {
    return {8115, "Arithmetic overflow error converting IDENTITY to data type " + toText(type) + "."};
}

/// The last value that an identity of the type may give.
std::int64_t lastValue(const DataType& type) {
    switch (type.kind) {
    case DataType::Kind::TinyInt:
        return std::numeric_limits<std::uint8_t>::max();
    case DataType::Kind::SmallInt:
        return std::numeric_limits<std::int16_t>::max();
    case DataType::Kind::Int:
        return std::numeric_limits<std::int32_t>::max();
    default:
        return std::numeric_limits<std::int64_t>::max() - std::numeric_limits<std::int32_t>::max();
    }
}

} // namespace

int TableInfo::find(std::string_view column) const {
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const ColumnInfo& c) { return sameText(c.name, column); });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

const ColumnInfo* TableInfo::identity() const {
    const auto found = std::find_if(columns.begin(), columns.end(), [](const ColumnInfo& c) { return c.identity; });
    return found == columns.end() ? nullptr : &*found;
}

const KeyInfo* TableInfo::primaryKey() const {
    const auto found = std::find_if(keys.begin(), keys.end(), [](const KeyInfo& k) { return k.primary; });
    return found == keys.end() ? nullptr : &*found;
}

/// The number of the present description is kept in the file's `user_version`: it is changed in the transaction of
/// the change itself, and reading it is the one cheap question that tells whether the cache still holds.
struct Catalog::State {
    struct Entry {
        std::int64_t id = 0;
        TableInfo info;
    };

    explicit State(sqlite::Connection& opened)
        : connection(opened),
          readVersion(opened, "PRAGMA user_version"),
          readIdentity(opened, "SELECT next FROM _vabo_identity WHERE table_id = ?1"),
          writeIdentity(opened, "UPDATE _vabo_identity SET next = ?2 WHERE table_id = ?1") {}

    void load();
    void loadColumns(Entry& entry);
    void loadKeys(Entry& entry);
    void changed();
    Entry& entry(std::string_view name);
    void insertColumn(std::int64_t table, std::size_t place, const ColumnInfo& column);
    void insertKey(std::int64_t table, std::size_t number, const KeyInfo& key);
    std::int64_t storedNext(std::int64_t table);
    void storeNext(std::int64_t table, std::int64_t next);

    sqlite::Connection& connection;
    sqlite::Statement readVersion, readIdentity, writeIdentity;
    std::int64_t version = -1;
    bool ownChange = false; ///< made by this connection and perhaps not committed yet
    std::unordered_map<std::string, std::unique_ptr<Entry>> tables;
    std::unordered_map<std::int64_t, std::int64_t> given; ///< by table: the next value as this session knows it
};

void Catalog::State::load() {
    tables.clear();
    sqlite::Statement rows(connection, "SELECT id, name FROM _vabo_tables");
    while (rows.step()) {
        auto entry = std::make_unique<Entry>();
        entry->id = rows.integer(0);
        entry->info.name = rows.text(1);
        loadColumns(*entry);
        loadKeys(*entry);
        std::string key = collationKey(entry->info.name);
        tables.emplace(std::move(key), std::move(entry));
    }
}

void Catalog::State::loadColumns(Entry& entry) {
    sqlite::Statement rows(connection,
                           "SELECT name, kind, length, precision, scale, nullable, identity, seed, increment, "
                           "default_text, default_name FROM _vabo_columns WHERE table_id = ?1 ORDER BY place");
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
}

void Catalog::State::loadKeys(Entry& entry) {
    sqlite::Statement rows(connection, "SELECT key, name, is_primary, column_name FROM _vabo_keys "
                                       "WHERE table_id = ?1 ORDER BY key, place");
    rows.bind(1, entry.id);
    std::int64_t last = -1;
    while (rows.step()) {
        if (rows.integer(0) != last) {
            last = rows.integer(0);
            entry.info.keys.push_back({std::string(rows.text(1)), rows.integer(2) != 0, {}});
        }
        entry.info.keys.back().columns.emplace_back(rows.text(3));
    }
}

void Catalog::State::changed() {
    ownChange = true;
    version = integerOf(readVersion) + 1;
    connection.run("PRAGMA user_version = " + std::to_string(version));
    load();
}

Catalog::State::Entry& Catalog::State::entry(std::string_view name) {
    const auto found = tables.find(collationKey(name));
    if (found == tables.end()) {
        throw InternalError("the catalog doesn't know the table " + std::string(name));
    }
    return *found->second;
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

std::int64_t Catalog::State::storedNext(std::int64_t table) {
    readIdentity.bind(1, table);
    return integerOf(readIdentity);
}

void Catalog::State::storeNext(std::int64_t table, std::int64_t next) {
    writeIdentity.bind(1, table);
    writeIdentity.bind(2, next);
    writeIdentity.step();
    writeIdentity.reset();
}

namespace {

/// Whichever lies further on in the direction of the identity.
std::int64_t further(const ColumnInfo& identity, std::int64_t left, std::int64_t right) {
    return identity.increment < 0 ? std::min(left, right) : std::max(left, right);
}

const ColumnInfo& identityOf(const TableInfo& table) {
    const ColumnInfo* identity = table.identity();
    if (identity == nullptr) {
        throw InternalError("the table " + table.name + " has no identity");
    }
    return *identity;
}

} // namespace

Catalog::Catalog(sqlite::Connection& connection) {
    makeOwnTables(connection);
    state_ = std::make_unique<State>(connection);
    refresh();
}

Catalog::~Catalog() = default;

bool Catalog::refresh() {
    const std::int64_t now = integerOf(state_->readVersion);
    // What this connection changed may have been rolled back, and another may have come to the same number since.
    if (now == state_->version && !state_->ownChange) {
        return false;
    }
    state_->ownChange = state_->ownChange && state_->connection.inTransaction();
    state_->version = now;
    if (!state_->connection.inTransaction()) {
        state_->given.clear(); // another session may have emptied a table
    }
    state_->load();
    return true;
}

const TableInfo* Catalog::table(std::string_view name) {
    const auto found = state_->tables.find(collationKey(name));
    return found == state_->tables.end() ? nullptr : &found->second->info;
}

std::vector<std::string> Catalog::tableNames() {
    std::vector<std::string> names;
    names.reserve(state_->tables.size());
    for (const auto& [key, entry] : state_->tables) {
        names.push_back(entry->info.name);
    }
    std::sort(names.begin(), names.end(),
              [](const std::string& left, const std::string& right) { return compareTexts(left, right) < 0; });
    return names;
}

void Catalog::addTable(const TableInfo& table) {
    sqlite::Transaction transaction(state_->connection);
    sqlite::Statement insert(state_->connection, "INSERT INTO _vabo_tables (name) VALUES (?1)");
    insert.bind(1, table.name);
    insert.step();
    const std::int64_t id = state_->connection.lastRow();
    for (std::size_t place = 0; place < table.columns.size(); ++place) {
        state_->insertColumn(id, place, table.columns[place]);
    }
    for (std::size_t number = 0; number < table.keys.size(); ++number) {
        state_->insertKey(id, number, table.keys[number]);
    }
    state_->changed();
    transaction.commit();
}

void Catalog::addColumn(std::string_view table, const ColumnInfo& column) {
    const State::Entry& entry = state_->entry(table);
    sqlite::Transaction transaction(state_->connection);
    state_->insertColumn(entry.id, entry.info.columns.size(), column);
    state_->changed();
    transaction.commit();
}

void Catalog::addKey(std::string_view table, const KeyInfo& key) {
    const State::Entry& entry = state_->entry(table);
    sqlite::Transaction transaction(state_->connection);
    state_->insertKey(entry.id, entry.info.keys.size(), key);
    state_->changed();
    transaction.commit();
}

void Catalog::removeTable(std::string_view table) {
    const std::int64_t id = state_->entry(table).id;
    sqlite::Transaction transaction(state_->connection);
    for (const char* text :
         {"DELETE FROM _vabo_tables WHERE id = ?1", "DELETE FROM _vabo_columns WHERE table_id = ?1",
          "DELETE FROM _vabo_keys WHERE table_id = ?1", "DELETE FROM _vabo_identity WHERE table_id = ?1"}) {
        sqlite::Statement statement(state_->connection, text);
        statement.bind(1, id);
        statement.step();
    }
    state_->changed();
    transaction.commit();
}

std::int64_t Catalog::nextIdentity(const TableInfo& table) {
    const ColumnInfo& identity = identityOf(table);
    const std::int64_t id = state_->entry(table.name).id;
    std::int64_t value = state_->storedNext(id);
    const auto known = state_->given.find(id);
    if (known != state_->given.end()) {
        value = further(identity, value, known->second);
    }
    if (value > lastValue(identity.type)) {
        throw identityOverflow(identity.type);
    }
    const std::int64_t next = value + identity.increment;
    state_->given[id] = next;
    state_->storeNext(id, next);
    return value;
}

void Catalog::raiseIdentity(const TableInfo& table, std::int64_t used) {
    const ColumnInfo& identity = identityOf(table);
    const std::int64_t id = state_->entry(table.name).id;
    const std::int64_t stored = state_->storedNext(id);
    const std::int64_t next = further(identity, stored, used + identity.increment);
    if (next != stored) {
        state_->storeNext(id, next);
    }
}

void Catalog::settleIdentities() {
    for (const auto& [key, entry] : state_->tables) {
        const auto known = state_->given.find(entry->id);
        if (known == state_->given.end()) {
            continue;
        }
        const ColumnInfo& identity = identityOf(entry->info);
        const std::int64_t stored = state_->storedNext(entry->id);
        if (further(identity, stored, known->second) != stored) {
            state_->storeNext(entry->id, known->second);
        }
    }
}

void Catalog::resetIdentity(const TableInfo& table) {
    const ColumnInfo& identity = identityOf(table);
    const std::int64_t id = state_->entry(table.name).id;
    sqlite::Transaction transaction(state_->connection);
    state_->given.erase(id);
    state_->storeNext(id, identity.seed);
    state_->changed();
    transaction.commit();
}

std::int64_t Catalog::currentIdentity(const TableInfo& table) {
    const ColumnInfo& identity = identityOf(table);
    const std::int64_t next = state_->storedNext(state_->entry(table.name).id);
    return next == identity.seed ? next : next - identity.increment;
}

} // namespace engine

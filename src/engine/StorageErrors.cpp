#include "engine/StorageErrors.h"

#include "engine/BindErrors.h"
#include "engine/Collation.h"
#include "engine/Database.h"
#include "engine/translate/SqlText.h"

#include <sqlite3.h>

#include <algorithm>

namespace engine {

namespace {

constexpr int kPrimaryCode = 0xff;

/// The columns in `UNIQUE constraint failed: t.a, t.b`, behind the table's name.
std::vector<std::string> columnsOf(std::string_view message, const std::string& table) {
    std::vector<std::string> columns;
    const std::size_t colon = message.find(": ");
    if (colon == std::string_view::npos) {
        return columns;
    }
    std::string_view rest = message.substr(colon + 2);
    const std::string before = translate::storedTable(table) + ".";
    while (rest.starts_with(before)) {
        rest.remove_prefix(before.size());
        const std::size_t next = rest.find(", " + before);
        columns.emplace_back(rest.substr(0, next));
        rest.remove_prefix(next == std::string_view::npos ? rest.size() : next + 2);
    }
    return columns;
}

Error duplicate(sqlite::Connection& connection, std::string_view message, const TableInfo& table) {
    const std::vector<std::string> columns = columnsOf(message, table.name);
    const auto key = std::find_if(table.keys.begin(), table.keys.end(), [&](const KeyInfo& one) {
        return std::equal(one.columns.begin(), one.columns.end(), columns.begin(), columns.end(),
                          [](const std::string& left, const std::string& right) { return sameText(left, right); });
    });
    if (key != table.keys.end()) {
        return errors::duplicateKey(key->primary ? "PRIMARY KEY" : "UNIQUE KEY", key->name, "dbo." + table.name);
    }
    sqlite::Statement indexes(connection, "SELECT l.name, (SELECT group_concat(i.name, char(0)) FROM (SELECT name FROM "
                                          "pragma_index_info(l.name) ORDER BY seqno) i) FROM pragma_index_list(?1) l "
                                          "WHERE l.\"unique\"");
    indexes.bind(1, std::string_view(translate::storedTable(table.name)));
    std::string joined;
    for (const std::string& column : columns) {
        joined += (joined.empty() ? std::string() : std::string(1, '\0')) + column;
    }
    while (indexes.step()) {
        if (indexes.text(1) == joined) {
            return errors::duplicateIndexKey(
                "dbo." + table.name, std::string(indexes.text(0).substr(translate::indexName(table.name, "").size())));
        }
    }
    throw InternalError("a key that nobody knows: " + std::string(message));
}

} // namespace

bool isDuplicate(const sqlite::Failure& failure) {
    return failure.code() == SQLITE_CONSTRAINT_UNIQUE || failure.code() == SQLITE_CONSTRAINT_PRIMARYKEY ||
           failure.code() == SQLITE_CONSTRAINT_ROWID;
}

std::optional<Error> storageError(const sqlite::Failure& failure, const std::string& database) {
    const std::string_view message = failure.what();
    switch (failure.code() & kPrimaryCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return errors::lockTimeout();
    case SQLITE_FULL:
        return errors::storageFull(database);
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return errors::readOnlyDatabase(database);
    case SQLITE_IOERR:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_CANTOPEN:
        return errors::storageBroken(failure.what());
    case SQLITE_NOMEM:
        return errors::outOfMemory();
    case SQLITE_TOOBIG:
        return errors::nestedTooDeep();
    default:
        break;
    }
    if (message == "integer overflow") {
        return errors::overflow("bigint");
    }
    if (message.starts_with("misuse of aggregate")) {
        return errors::aggregateMisplaced();
    }
    for (const char* limit : {"Expression tree is too large", "parser stack overflow", "too many ", "at most "}) {
        if (message.starts_with(limit)) {
            return errors::nestedTooDeep();
        }
    }
    return std::nullopt;
}

void Database::raise(const sqlite::Failure& failure, const TableInfo* table, const char* verb) {
    if (functions_.refusal) {
        std::rethrow_exception(std::exchange(functions_.refusal, nullptr));
    }
    const std::string_view message = failure.what();
    if (failure.code() == SQLITE_CONSTRAINT_NOTNULL && table != nullptr) {
        const auto columns = columnsOf(message, table->name);
        throw errors::nullIntoColumn(columns.empty() ? "" : columns.front(), name() + ".dbo." + table->name, verb);
    }
    if (isDuplicate(failure) && table != nullptr) {
        throw duplicate(connection_, message, *table);
    }
    if (const auto answer = storageError(failure, name())) {
        throw Error(*answer);
    }
    throw InternalError("the storage refused a statement of ours: " + std::string(message));
}

} // namespace engine

#include "engine/store/StorageErrors.h"

#include "engine/errors/BindErrors.h"
#include "engine/errors/StoreErrors.h"
#include "engine/errors/TextErrors.h"
#include "engine/errors/ValueErrors.h"
#include "engine/store/StoredNames.h"
#include "engine/values/Collation.h"

#include <sqlite3.h>

namespace engine {

namespace {

constexpr int kPrimaryCode = 0xff;

/// The list that SQLite writes behind `UNIQUE constraint failed: `.
std::string_view namedIn(std::string_view message) {
    const std::size_t colon = message.find(": ");
    return colon == std::string_view::npos ? std::string_view() : message.substr(colon + 2);
}

/// Columns of a table as SQLite lists them: `t.a, t.b`. Names may contain commas and points, so that such a list is
/// compared with those of the known keys and not taken apart.
std::string asNamed(const std::string& table, const std::vector<std::string>& columns) {
    std::string all;
    for (const std::string& column : columns) {
        all += (all.empty() ? "" : ", ") + stored::tableName(table) + "." + column;
    }
    return all;
}

/// SQLite names an index instead of its columns where it is over expressions: `index 'name'`.
std::string_view indexNamedIn(std::string_view named) {
    constexpr std::string_view kBefore = "index '";
    return named.starts_with(kBefore) && named.ends_with('\'')
               ? stored::withoutNullsMark(named.substr(kBefore.size(), named.size() - kBefore.size() - 1))
               : std::string_view();
}

Error duplicateInIndex(const TableInfo& table, std::string_view index) {
    return errors::duplicateIndexKey("dbo." + table.name,
                                     std::string(index.substr(stored::indexName(table.name, "").size())));
}

Error duplicate(sqlite::Connection& connection, std::string_view message, const TableInfo& table) {
    const std::string_view named = namedIn(message);
    const std::string_view index = indexNamedIn(named);
    for (const KeyInfo& key : table.keys) {
        if (sameText(asNamed(table.name, key.columns), named) || stored::indexName(table.name, key.name) == index) {
            return errors::duplicateKey(key.primary ? "PRIMARY KEY" : "UNIQUE KEY", key.name, "dbo." + table.name);
        }
    }
    if (!index.empty()) {
        return duplicateInIndex(table, index);
    }
    sqlite::Statement indexes(connection, "SELECT name FROM pragma_index_list(?1) WHERE \"unique\"");
    sqlite::Statement columns(connection, "SELECT name FROM pragma_index_info(?1) ORDER BY seqno");
    indexes.bind(1, std::string_view(stored::tableName(table.name)));
    while (indexes.step()) {
        std::vector<std::string> names;
        columns.bind(1, indexes.text(0));
        while (columns.step()) {
            names.emplace_back(columns.text(0));
        }
        columns.reset();
        if (asNamed(table.name, names) == named) {
            return duplicateInIndex(table, indexes.text(0));
        }
    }
    throw InternalError("an unknown key: " + std::string(message));
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
    case SQLITE_INTERRUPT:
        return errors::cancelled();
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
        return errors::overflow("expression", "bigint");
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

void raiseFailure(sqlite::Connection& connection, const std::string& database, const sqlite::Failure& failure,
                  const TableInfo* table, const char* verb) {
    const std::string_view message = failure.what();
    if (failure.code() == SQLITE_CONSTRAINT_NOTNULL && table != nullptr) {
        const std::string before = asNamed(table->name, {""});
        throw errors::nullIntoColumn(std::string(namedIn(message).substr(before.size())),
                                     database + ".dbo." + table->name, verb);
    }
    if (isDuplicate(failure) && table != nullptr) {
        throw duplicate(connection, message, *table);
    }
    if (const auto answer = storageError(failure, database)) {
        throw Error(*answer);
    }
    throw InternalError("the storage refused a statement of ours: " + std::string(message));
}

} // namespace engine

#pragma once

// One database as one session uses it: its connection and what belongs to it.

#include "engine/functions/Functions.h"
#include "engine/run/StatementCache.h"
#include "engine/store/Catalog.h"
#include "engine/store/Instance.h"
#include "engine/store/RowLocks.h"
#include "engine/store/Sqlite.h"

#include <optional>

namespace engine {

class Database {
public:
    explicit Database(DatabaseEntry entry);

    const DatabaseEntry& entry() const { return entry_; }
    const std::string& name() const { return entry_.name; }
    sqlite::Connection& connection() { return connection_; }
    Catalog& catalog() { return catalog_; }
    RowLocks& locks() { return *locks_; }
    StatementCache& cache() { return cache_; }
    FunctionContext& functions() { return functions_; }

    /// Its session ends: gives up all that was the session's. False where it can't serve another one.
    bool leave();
    /// Another session begins to use it. False where the file has gone or is another one by now.
    bool enter();

    /// Before each statement: forgets the plans that a change of the schema made wrong. Whether there was a change.
    bool refresh();

    /// Throws the server's error for a failure of the storage: the refusal of a function, or the error that the code
    /// stands for. `table` is the one being written, with `verb` INSERT or UPDATE; nullptr for none.
    /// Throws InternalError for what no user's statement may cause.
    [[noreturn]] void raise(const sqlite::Failure& failure, const TableInfo* table, const char* verb);

private:
    DatabaseEntry entry_;
    FunctionContext functions_;
    sqlite::Connection connection_;
    Catalog catalog_;
    std::optional<RowLocks> locks_; ///< nothing between two sessions
    StatementCache cache_;
};

} // namespace engine

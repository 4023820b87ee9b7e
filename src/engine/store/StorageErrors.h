#pragma once

#include "engine/errors/Error.h"
#include "engine/store/Catalog.h"
#include "engine/store/Sqlite.h"

#include <optional>
#include <string>

namespace engine {

/// The server's error for a failure that the disk, a lock or a limit causes. Nothing for any other, which is a bug.
std::optional<Error> storageError(const sqlite::Failure& failure, const std::string& database);

/// Throws the server's error for a statement that the storage failed: 515, 2601 and 2627 where it wrote to `table`,
/// `verb` being what it was (INSERT, UPDATE), else as storageError. InternalError for what no text should cause.
[[noreturn]] void raiseFailure(sqlite::Connection& connection, const std::string& database,
                               const sqlite::Failure& failure, const TableInfo* table, const char* verb);

/// Whether a statement would have given a unique key twice.
bool isDuplicate(const sqlite::Failure& failure);

} // namespace engine

#pragma once

#include "engine/Error.h"
#include "engine/Sqlite.h"

#include <optional>
#include <string>

namespace engine {

/// The server's error for a failure of the storage that is nobody's bug: a disk, a lock, a limit. Nothing for any
/// other.
std::optional<Error> storageError(const sqlite::Failure& failure, const std::string& database);

/// A key that is there twice.
bool isDuplicate(const sqlite::Failure& failure);

} // namespace engine

#pragma once

// The server's own tables. A statement reads a copy that is filled just before it runs.

#include "engine/run/Database.h"
#include "engine/store/Catalog.h"
#include "engine/store/Instance.h"

#include <string>
#include <string_view>

namespace engine {

/// The description of a table of the server by schema (`dbo`, `sys`, `INFORMATION_SCHEMA`; empty is `dbo`) and name;
/// nullptr where there is none. Its name is that of the copy in the storage's schema `temp`.
const TableInfo* systemTable(std::string_view schema, std::string_view name);

/// Fills the copy of a table, by the name in its description, as things stand now.
/// The number of a table among all of the instance; those of its keys follow it.
std::int64_t objectId(const Database& database, const TableInfo& table);
void fillSystemTable(const std::string& name, Database& database, const Instance& instance);

} // namespace engine

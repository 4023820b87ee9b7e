#pragma once

// How the dialect's names are kept in the storage.

#include <string>
#include <string_view>

namespace engine::stored {

/// A name in double quotes.
std::string quoted(std::string_view name);
/// SQLite and the catalog reserve some names, and a name with a point could be that of an index: such tables are stored
/// under another name.
std::string tableName(const std::string& table);
/// Schema and stored name, both in double quotes.
std::string qualifiedTable(const std::string& schema, const std::string& table);
/// With the name of the table, since SQLite wants the names of all indexes of a database different.
std::string indexName(const std::string& table, const std::string& index);
/// The index beside a unique one that has the rows with a null.
std::string nullsIndexName(const std::string& storedIndex);
/// The unique index that a name of SQLite's belongs to.
std::string_view withoutNullsMark(std::string_view storedIndex);

} // namespace engine::stored

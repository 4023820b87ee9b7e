#pragma once

// How the dialect's names are kept in the storage.

#include <string>
#include <string_view>

namespace engine::stored {

/// A name in double quotes.
std::string quoted(std::string_view name);
/// The storage keeps some names for itself, and tables and indexes share its names: such tables are stored under
/// another.
std::string tableName(const std::string& table);
/// Schema and stored name, both in double quotes.
std::string qualifiedTable(const std::string& schema, const std::string& table);
/// The storage has one space of names for all indexes of a database.
std::string indexName(const std::string& table, const std::string& index);

} // namespace engine::stored

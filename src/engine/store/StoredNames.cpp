#include "engine/store/StoredNames.h"

#include "engine/values/Collation.h"

#include <algorithm>
#include <array>

namespace engine::stored {

namespace {

constexpr std::array<std::string_view, 2> kReserved{"sqlite_", "_vabo_"};
constexpr std::string_view kNullsMark = "_vabo_n:";

} // namespace

std::string quoted(std::string_view name) {
    std::string result = "\"";
    for (const char c : name) {
        result += c;
        if (c == '"') {
            result += c;
        }
    }
    return result + '"';
}

std::string tableName(const std::string& table) {
    const std::string small = lower(table);
    const bool reserved = std::any_of(kReserved.begin(), kReserved.end(),
                                      [&](std::string_view start) { return small.starts_with(start); });
    return reserved || table.find('.') != std::string::npos ? "_vabo_t:" + table : table;
}

std::string qualifiedTable(const std::string& schema, const std::string& table) {
    return quoted(schema) + '.' + quoted(tableName(table));
}

std::string indexName(const std::string& table, const std::string& index) {
    const std::string name = tableName(table);
    return name == table ? table + "." + index : "_vabo_i" + std::to_string(table.size()) + ":" + table + "." + index;
}

std::string nullsIndexName(const std::string& storedIndex) {
    return std::string(kNullsMark) + storedIndex;
}

std::string_view withoutNullsMark(std::string_view storedIndex) {
    return storedIndex.substr(storedIndex.starts_with(kNullsMark) ? kNullsMark.size() : 0);
}

} // namespace engine::stored

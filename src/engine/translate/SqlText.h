#pragma once

// SQLite's text of a bound tree. There is one way to write each node.

#include "engine/bind/BoundTree.h"
#include "engine/store/StoredNames.h"
#include "engine/text/Tree.h"
#include "engine/translate/Text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace engine::translate {

/// SQLite's row number, under a name that no column of the table has.
std::string rowidOf(const TableInfo& table);
/// A table's alias in the text: `t3`.
std::string alias(int source);

void write(Text& text, const bound::Expression& expression);
void write(Text& text, const bound::Source& source);
/// Whether a join gives rows that no row of its left side is in: behind a comma it is made before the rest, in
/// brackets.
bool addsRows(const bound::Source& source);
/// One of the sources of a FROM, which commas separate.
void writeSource(Text& text, const bound::Source& source, bool first);
void write(Text& text, const bound::Select& select);
/// Separated by commas; the parameters inside of the expressions are written as `many` wants it.
void writeList(Text& text, const std::vector<bound::ExpressionPtr>& list, bool many);
/// ` WHERE …`, nothing where there is no condition.
void writeWhere(Text& text, const bound::ExpressionPtr& condition);
/// ` LIMIT …`, nothing where `most` is 0.
void writeLimit(Text& text, std::int64_t most);

Text select(const bound::Select& select);
Text insert(const bound::Insert& insert);
/// `most`: so many rows at most, 0 for all.
Text update(const bound::Update& update, std::int64_t most);
Text remove(const bound::Delete& remove, std::int64_t most);
/// The numbers of the rows that an UPDATE or DELETE is going to write.
Text rowsOf(const bound::Update& update, std::int64_t most);
Text rowsOf(const bound::Delete& remove, std::int64_t most);
/// A SELECT on one table with the number of each row as its last column, for holding the rows.
Text rowsOf(const bound::Select& select);

/// Definitions, from the catalog's description of a table.
std::string createTable(const TableInfo& table);
struct IndexColumn {
    const ColumnInfo* column;
    bool descending;
};
/// The statements that make an index. A unique one over columns that take nulls is two, since a null is equal to
/// another there, and in SQLite's unique indexes it isn't.
std::vector<std::string> createIndex(const TableInfo& table, const std::string& index,
                                     const std::vector<IndexColumn>& columns, bool unique);
std::vector<std::string> createKey(const TableInfo& table, const KeyInfo& key);
std::string addColumn(const TableInfo& table, const ColumnInfo& column, const std::string& defaultText);
std::string columnDefinition(const TableInfo& table, const ColumnInfo& column);
/// The column that is SQLite's row number, nullptr where none is: an identity that is the whole primary key.
const ColumnInfo* rowNumber(const TableInfo& table);

} // namespace engine::translate

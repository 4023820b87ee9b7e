#pragma once

// SQLite's text of a bound tree. There is one way to write each node.

#include "engine/bind/BoundTree.h"
#include "engine/store/StoredNames.h"
#include "engine/text/Tree.h"
#include "engine/translate/Text.h"

#include <string>
#include <string_view>

namespace engine::translate {

/// SQLite's row number, under a name that no column of the table has.
std::string rowidOf(const TableInfo& table);
/// A table's alias in the text: `t3`.
std::string alias(int source);

/// Whether an expression is a parameter alone, as which SQLite takes any number of values quickly.
bool isBare(const bound::Expression& expression);
void write(Text& text, const bound::Expression& expression);
void write(Text& text, const bound::Source& source);
void write(Text& text, const bound::Select& select);
/// ` WHERE …`, nothing where there is no condition.
void writeWhere(Text& text, const bound::ExpressionPtr& condition);

Text select(const bound::Select& select);
Text insert(const bound::Insert& insert);
Text update(const bound::Update& update);
Text remove(const bound::Delete& remove);
/// The numbers of the rows that an UPDATE or DELETE is going to write.
Text rowsOf(const bound::Update& update);
Text rowsOf(const bound::Delete& remove);
/// A SELECT on one table with the number of each row as its last column, for holding the rows.
Text rowsOf(const bound::Select& select);

/// Definitions, from the catalog's description of a table.
std::string createTable(const TableInfo& table);
std::string createKey(const TableInfo& table, const KeyInfo& key);
std::string addColumn(const TableInfo& table, const ColumnInfo& column, const std::string& defaultText);
std::string columnDefinition(const TableInfo& table, const ColumnInfo& column);
/// The column that is SQLite's row number, nullptr where none is: an identity that is the whole primary key.
const ColumnInfo* rowNumber(const TableInfo& table);

} // namespace engine::translate

#pragma once

#include <string>
#include <string_view>

namespace ado {

/// The statement for a recordset's source: for the name of a table (`T`, `[T]`, `dbo.T`) a SELECT of the whole table,
/// else the text itself. With `options` 2 any text is taken for a table's name.
std::string statementOf(std::string_view source, int options);

/// Whether the rows of that statement can be rows of one table: nothing in it joins, groups or makes rows distinct.
/// Keywords inside texts, quoted names and comments are ignored.
bool selectsPlainRows(std::string_view statement);

} // namespace ado

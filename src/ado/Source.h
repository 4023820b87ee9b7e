#pragma once

#include <string>
#include <string_view>

namespace ado {

/// What a recordset's source stands for in the server's language: the name of one table alone (`T`, `[T]`, `dbo.T`) is
/// the whole table, all else is the text itself. With `options` 2 the text is a table's name whatever it looks like.
std::string statementOf(std::string_view source, int options);

/// Whether rows of that text can be one table's rows: nothing in it joins, groups or makes rows distinct. Texts, quoted
/// names and comments don't count.
bool selectsPlainRows(std::string_view statement);

} // namespace ado

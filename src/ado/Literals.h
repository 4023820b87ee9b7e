#pragma once

#include "ado/Driver.h"
#include "ado/Value.h"

#include <string>
#include <string_view>

namespace ado {

/// `[name]`, closing brackets doubled.
std::string quotedName(std::string_view name);

/// A value of a column as a literal of the server's language: NULL, plain numbers, 'text', N'text' for a Unicode
/// column, and for dates a CONVERT with a style that doesn't depend on the language settings.
std::string literal(const Value& value, FieldType column);

} // namespace ado

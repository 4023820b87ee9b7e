#pragma once

#include "ado/Driver.h"
#include "ado/Value.h"

#include <string>
#include <string_view>

namespace ado {

/// `[name]`, closing brackets doubled.
std::string quotedName(std::string_view name);

/// A value of a column in the server's language: NULL, plain numbers, 'text', N'text' for a national column, dates by
/// CONVERT with the style that no language setting touches.
std::string literal(const Value& value, FieldType column);

} // namespace ado

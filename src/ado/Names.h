#pragma once

#include <string_view>

namespace ado {

/// Whether two names of fields or files are the same, ignoring case.
bool sameName(std::string_view left, std::string_view right);

} // namespace ado

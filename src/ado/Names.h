#pragma once

#include <string_view>

namespace ado {

/// Names of fields and files are the same whatever their case.
bool sameName(std::string_view left, std::string_view right);

} // namespace ado

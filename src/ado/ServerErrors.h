#pragma once

#include "ado/Error.h"

#include <string>

namespace ado {

/// A server's error as an error of the data layer: with the server's own text, and the class and the SQLSTATE of its
/// number. All drivers use it, so that an error has the same number with each of them.
Error serverError(int nativeError, const std::string& text);

} // namespace ado

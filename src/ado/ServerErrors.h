#pragma once

#include "ado/Error.h"

#include <string>

namespace ado {

/// A refusal of the server in the data layer's terms: the server's own text, the class and the SQLSTATE of its number.
/// The same for every road, so that a caller meets one number whichever server answered.
Error serverError(int nativeError, const std::string& text);

} // namespace ado

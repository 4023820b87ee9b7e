#pragma once

#include "ado/Driver.h"
#include "ado/Value.h"

namespace ado {

/// The value as its column stores it: of the column's type, or null. Texts are read by the regional settings, whole
/// numbers are rounded half to even, trailing blanks beyond the column's length are cut. Raises error -2147217887 for a
/// value that doesn't fit.
Value coerced(const Value& value, const FieldDescription& column);

} // namespace ado

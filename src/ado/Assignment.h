#pragma once

#include "ado/Driver.h"
#include "ado/Value.h"

namespace ado {

/// The value as its column keeps it: of the column's own type, or null. Texts go by the regional settings, numbers to
/// whole ones half to even, an excess of trailing blanks is cut. Error -2147217887 for what doesn't go in.
Value coerced(const Value& value, const FieldDescription& column);

} // namespace ado

#pragma once

#include "ado/Value.h"

#include <string>

namespace vabo {

/// True for zero, false, null, the empty text, a single blank, and for texts and dates of zeros. Raises nothing.
bool IsEmptyValue(const ado::Value& valore);
bool IsEmptyValue(double valore);
bool IsEmptyValue(const std::string& valore);

} // namespace vabo

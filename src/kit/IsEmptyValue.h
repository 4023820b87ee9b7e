#pragma once

#include "ado/Value.h"

#include <string>

namespace vabo {

/// What counts as nothing: zero, false, null, the empty text, one blank, texts and dates of zeros. Never fails.
bool IsEmptyValue(const ado::Value& valore);
bool IsEmptyValue(double valore);
bool IsEmptyValue(const std::string& valore);

} // namespace vabo

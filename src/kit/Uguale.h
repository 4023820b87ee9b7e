#pragma once

#include "ado/Value.h"

namespace vabo {

/// Whether a stored value equals that number; false for null.
bool Uguale(const ado::Value& valore, double numero);

} // namespace vabo

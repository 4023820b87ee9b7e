#pragma once

#include "ado/Value.h"

namespace vabo {

/// Whether a stored value is that number. A comparison with null raises nothing and is false.
bool Uguale(const ado::Value& valore, double numero);

} // namespace vabo

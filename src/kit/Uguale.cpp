#include "kit/Uguale.h"

#include "ado/Conversions.h"

namespace vabo {

bool Uguale(const ado::Value& valore, double numero) {
    return !valore.isNull() && ado::toDouble(valore) == numero;
}

} // namespace vabo

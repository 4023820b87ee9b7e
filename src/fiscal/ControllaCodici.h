#pragma once

// The two formal checks of an Italian tax identity. `esito` becomes -1 for a good code and 0 for one whose check
// character is wrong; several refusals leave it as it was, so the caller passes one that holds 0. Where it isn't -1 at
// the end a box says so. A code of which IsEmptyValue is true ends the check at once, without a box. Nothing is raised.

#include "state/variabili.h"

#include <string>

namespace vabo {

/// The fiscal code: sixteen capital letters and digits, of which the last checks the others. What follows them is
/// ignored.
void ControllaCodiceFiscale(const std::string& codice, Flag& esito);

/// The VAT number: eleven digits, of which the last checks the others. A shorter one gets zeros in front, also in
/// `codice`; what follows the eleventh character is ignored.
void ControllaPartitaIva(std::string& codice, Flag& esito);

} // namespace vabo

#pragma once

// The table of commencement rules, without a screen.

#include "payment_terms/NomeDecorrenza.h"

#include <string>

namespace vabo {

std::string ElencoDecorrenze();

/// Writes the row of that key, a new one where the key is 0 or the row is gone. Nothing is done without a name; false
/// then. What is empty is stored as 0, and so is a third month without a second. Errors raise, and the shared recordset
/// is given back.
bool SalvaDecorrenza(double chiave, const CampiDecorrenza& campi);

} // namespace vabo

#pragma once

// The table of payment terms, without a screen.

#include "payment_terms/Rate.h"

#include <string>

namespace vabo {

std::string ElencoCondizioni();
/// The rows of the combo of rules, and of that of kinds.
std::string ElencoRegole();
std::string ElencoTipiRimessa();

/// Adds the column that an older database lacks; one that has it refuses, which is skipped.
void AggiungiRataAnticipo();

/// The keys of a term: its own, 0 for a new one, its rule's and its kind's.
struct ChiaviCondizione {
    double pagamento = 0;
    double decorrenza = 0;
    double tipoRimessa = 0;
};

/// Writes the row of that key or a new one. Nothing is done without a rule, a kind or a name; false then. What is empty
/// is stored as 0. Errors raise, and the shared recordset is given back.
bool SalvaCondizione(const ChiaviCondizione& chiavi, const CampiCondizione& campi);

} // namespace vabo

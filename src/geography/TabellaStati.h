#pragma once

// The table of states and the list of areas, without a screen.

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// The fields of a state as they stand on the screen.
struct CampiStato {
    std::string nome;
    std::string area;
    std::string istituzione;
    std::string soppressione;
    std::string isoValuta;
};

std::string ElencoStati();
std::string ElencoZone();

/// Whether a name names nothing: empty, or what stands in the field while none is chosen.
bool NomeMancante(const std::string& nome);

/// Filters the list of states by that name, as it is typed, and tells whether any is left. Error 3001 for a name that
/// breaks the filter.
bool GiaInserito(ado::Recordset& elenco, const std::string& nome);

/// Writes the row of that key, a new one for 0, and adds the area to the list of areas where it isn't there. Opening
/// the row raises; what fails behind it is skipped, a single column too.
void SalvaStato(double chiave, const CampiStato& campi);

/// The rows without a name. Raises.
void EliminaStatiSenzaNome();

} // namespace vabo

#pragma once

// The table of municipalities, without a screen.

#include "ado/Recordset.h"

#include <optional>
#include <string>

namespace vabo {

/// The fields of a municipality as they stand on the screen.
struct CampiComune {
    std::string nome;
    std::string provincia;
    std::string cap;
    double idStato;
};

std::string ElencoComuniConStati();
/// The same list as it is read behind a save.
std::string ElencoComuniRiletto();
std::string ElencoStatiDeiComuni();

/// The state in the current row of one of these lists; none where the row has none.
std::optional<double> StatoDellaRiga(ado::Recordset& rs);

/// Filters the list of municipalities by that name, as it is typed, and tells whether any is left, whatever its
/// province and state. Error 3001 for a name that breaks the filter.
bool ComuneGiaInserito(ado::Recordset& elenco, const std::string& nome);

/// Writes the row of that key, a new one for 0. Opening the row raises; what fails behind it is skipped, a single
/// column too.
void SalvaComune(double chiave, const CampiComune& campi);

} // namespace vabo

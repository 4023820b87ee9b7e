#pragma once

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// Opens a recordset that may be written: keyset cursor, pessimistic locking.
void ApriScrivibile(ado::Recordset& rs, const std::string& testo, ado::Connection& connessione);
/// The same on a connection of its own, which is closed with the recordset.
void ApriScrivibile(ado::Recordset& rs, const std::string& testo, const std::string& connessione);

} // namespace vabo

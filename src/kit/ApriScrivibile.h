#pragma once

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// Opens a recordset that may be written: keyset cursor, pessimistic locking.
void ApriScrivibile(ado::Recordset& rs, const std::string& testo, ado::Connection& connessione);

} // namespace vabo

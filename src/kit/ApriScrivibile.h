#pragma once

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// The way every recordset that may be written is opened: keyset cursor, pessimistic locking.
void ApriScrivibile(ado::Recordset& rs, const std::string& testo, ado::Connection& connessione);

} // namespace vabo

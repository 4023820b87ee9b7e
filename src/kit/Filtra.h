#pragma once

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// Leaves the rows of a recordset whose field has that text, whatever its case, and tells whether there is any. The
/// text enters the filter as it is: error 3001, with the rows as they were, for one that breaks it.
bool Filtra(ado::Recordset& rs, const std::string& campo, const std::string& testo);

} // namespace vabo

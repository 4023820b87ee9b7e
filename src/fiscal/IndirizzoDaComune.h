#pragma once

#include "ado/Recordset.h"

#include <optional>
#include <string>

namespace vabo {

/// What a municipality fills of an address.
struct Indirizzo {
    std::string cap;
    std::string provincia;
    std::optional<double> idStato; ///< where the municipality has one
};

/// Filters the list of municipalities by a name, whose punctuation stands for any text, and fills the address from the
/// first row left. A postal code that begins with the same three digits stays. Without such a row nothing changes. The
/// filter stays.
void RiempiIndirizzo(ado::Recordset& comuni, std::string nome, Indirizzo& indirizzo);

} // namespace vabo

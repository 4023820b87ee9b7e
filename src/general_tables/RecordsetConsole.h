#pragma once

#include "session/variabili.h"

namespace vabo {

/// The two shared recordsets of this console. The load reads the option rows through the first while a box that it sets
/// writes through the second; only the box of the budget items takes the first one over.
inline ado::Recordset& RsOpzioni() {
    return RsCondivisi(3);
}
inline ado::Recordset& RsCaselle() {
    return RsCondivisi(4);
}

} // namespace vabo

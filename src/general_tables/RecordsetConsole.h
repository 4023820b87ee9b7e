#pragma once

#include "kit/ErrorHandling.h"
#include "state/variabili.h"

namespace vabo {

/// The two shared recordsets of this console. The load reads the options' rows through the first; a box that it sets
/// writes through the second at the same time. Only the box of the budget items writes through the first, too.
inline constexpr int kPostoOpzioni = 3;
inline ado::Recordset& RsOpzioni() {
    return RsCondivisi(kPostoOpzioni);
}
inline constexpr int kPostoCaselle = 4;
inline ado::Recordset& RsCaselle() {
    return RsCondivisi(kPostoCaselle);
}

} // namespace vabo

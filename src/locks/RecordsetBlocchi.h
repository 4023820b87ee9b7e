#pragma once

#include "state/variabili.h"

namespace vabo {

// The shared recordsets of the locks. The balance date has one of its own, so that it can be read while the others are
// open; the accounts have another than the rows of the ledger.
inline constexpr int kPostoBilancio = 5;
inline constexpr int kPostoConti = 6;
inline constexpr int kPostoRighe = 7;
inline constexpr int kPostoSede = 8;

} // namespace vabo

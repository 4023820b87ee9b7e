#pragma once

#include "kit/Regole.h"

namespace vabo {

/// Moves a grid that was just refreshed, and is at its first row, forward by that many rows. A move that fails is
/// skipped. `Dati` is the grid's data control.
template<typename Dati>
void Riposiziona(Dati& dati, long righe) {
    if (righe != 0) {
        salta([&] { dati.Recordset().Move(righe); });
    }
}

} // namespace vabo

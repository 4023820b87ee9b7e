#pragma once

#include "kit/Regole.h"

namespace vabo {

/// For a grid that has just been refreshed and stands on its first row: so many rows forward, 0 for none. A move that
/// fails is skipped. `Dati` is the data control of the grid.
template<typename Dati>
void Riposiziona(Dati& dati, long righe) {
    if (righe != 0) {
        salta([&] { dati.Recordset().Move(righe); });
    }
}

} // namespace vabo

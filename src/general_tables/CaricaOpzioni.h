#pragma once

#include "general_tables/Opzioni.h"

#include <functional>

namespace vabo {

// What the console reads when it opens. A box that is set runs its own handler while the row is still open here.
// Errors raise.

/// Sets a box; it raises where the number is none of a box's values.
using MostraCasella = std::function<void(int)>;

/// What row 8 of TabellaUilityConti says, created where it is missing.
enum class TassiDiCambio { Nessuno, InforEuro, BancaDItalia };
TassiDiCambio LeggiTassiDiCambio();

/// The row found by its description, created where it is missing; then the box isn't set.
void CaricaSedeAmministrativa(const MostraCasella& mostra);

/// Row 7 of TabellaUilityConti, created where it is missing; a null leaves the box.
void CaricaSoloDiLoco(const MostraCasella& mostra);

/// Row 5 of TabellaUilityConti, created where it is missing. It closes its recordset once more at its end, which raises
/// where that has been closed already: after a new row, and after a box that has changed.
void CaricaBudgetOng(const MostraCasella& mostra);

/// A numbered row of datiGenerali; a missing one leaves the box and isn't created.
void CaricaOpzione(const Opzione& opzione, const MostraCasella& mostra);

} // namespace vabo

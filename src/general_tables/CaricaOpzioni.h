#pragma once

#include "general_tables/Opzioni.h"

#include <functional>

namespace vabo {

// What the console reads when it opens. Setting a box runs its Click handler while the recordset here is still open.
// Errors raise.

/// Sets a box. Raises for any other value than 0, 1 and 2.
using MostraCasella = std::function<void(int)>;

/// The setting in row 8 of TabellaUilityConti, which is created where it is missing.
enum class TassiDiCambio { Nessuno, InforEuro, BancaDItalia };
TassiDiCambio LeggiTassiDiCambio();

/// Sets the box from the row that is found by its description. A missing row is created, and the box stays as it is.
void CaricaSedeAmministrativa(const MostraCasella& mostra);

/// Sets the box from row 7 of TabellaUilityConti, which is created where it is missing. For null the box stays as it
/// is.
void CaricaSoloDiLoco(const MostraCasella& mostra);

/// Sets the box from row 5 of TabellaUilityConti, which is created where it is missing. The Close at its end raises
/// where the recordset is closed already: when the row was created, and when the box changed (its handler drops the
/// recordset).
void CaricaBudgetOng(const MostraCasella& mostra);

/// Sets the box from a numbered row of datiGenerali. A missing row isn't created, and the box stays as it is.
void CaricaOpzione(const Opzione& opzione, const MostraCasella& mostra);

} // namespace vabo

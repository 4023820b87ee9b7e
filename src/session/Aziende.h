#pragma once

// The registry of companies and terminals in the control database: which company a workstation used last, and which
// databases the server has.

#include <cstdint>

namespace vabo {

/// The company of this workstation at the start; where it has none, the first by the name of its database. Without a
/// machine name a box and zero. Any other failure is shown and ends the process, since this is the first contact with
/// the server.
std::int32_t AziendaTerminale();

/// The company in IdAziendaLavoro; where that is empty, the one of this workstation; where there is none, the lowest
/// number. Raises nothing.
std::int32_t UltimaAziendaTerminale();

/// The number of the first company database of the server, zero where there is none. Leaves DbControllo open. Raises
/// nothing.
std::int32_t PrimaAziendaSuServer();

/// Deletes the rows of terminals without a name. Raises nothing.
void CancellaTerminaliVuoti();

/// Whether the server has NomeDatabase. Raises ado::Error and platform::FileError.
bool EsisteDatabase();

/// Sets IndirizzoMdf for NomeDatabase. Returns whether the company has a row. Raises nothing.
bool LeggiIndirizzoMdf();

} // namespace vabo

#pragma once

// The registry of companies and terminals in the control database: which company a workstation used last, and which
// databases the server has.

#include <cstdint>

namespace vabo {

/// The company of this workstation at start; by default the first by the name of its database. Zero, told in a box,
/// without a machine name. Any failure is shown and ends the process: it is the first contact with the server.
std::int32_t AziendaTerminale();

/// The company of this workstation, or what IdAziendaLavoro already holds; by default the lowest number. Never raises.
std::int32_t UltimaAziendaTerminale();

/// The number of the first company database of the server, zero where there is none. Leaves DbControllo open. Never
/// raises.
std::int32_t PrimaAziendaSuServer();

/// Drops the rows of terminals without a name. Never raises.
void CancellaTerminaliVuoti();

/// Whether the server has NomeDatabase. Raises ado::Error and platform::FileError.
bool EsisteDatabase();

/// Fills IndirizzoMdf for NomeDatabase; whether the company has a row. Never raises.
bool LeggiIndirizzoMdf();

} // namespace vabo

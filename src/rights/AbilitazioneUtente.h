#pragma once

#include "state/variabili.h"

#include <string>

namespace vabo {

/// The rights that don't come from a row of the table of users.
inline constexpr Diritti kDirittiPrimaDelLogin{.Disabilita = kVero};
inline constexpr Diritti kDirittiAvvioSenzaUtenti{.Administrator = kVero,
                                                  .A_Inserisci = kVero,
                                                  .A_Cancella = kVero,
                                                  .A_Iva = kVero,
                                                  .A_Bilancio = kVero,
                                                  .A_Personale = kVero,
                                                  .A_ArchivioStoria = kVero,
                                                  .A_PFinanza = kVero,
                                                  .A_Synchro = kVero,
                                                  .A_EmettiPagamenti = kVero};
/// The login form finds the table of users empty: as at the start, and A_Progetta too.
inline constexpr Diritti kDirittiLoginSenzaUtenti = [] {
    Diritti diritti = kDirittiAvvioSenzaUtenti;
    diritti.A_Progetta = kVero;
    return diritti;
}();

/// Sets DirittiUtente to the rights of that user; where anything fails it stays as it was. An unknown user gets a
/// message and counts as a failed attempt; the fourth closes the login form. Raises ado::Error.
void CaricaAbilitazione(const std::string& NomeUtente, const std::string& PaswUtente);

} // namespace vabo

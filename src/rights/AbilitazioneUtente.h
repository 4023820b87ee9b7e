#pragma once

#include "state/variabili.h"

#include <string>

namespace vabo {

/// The fixed rows of DirittiUtente; all others come from a row of the table of users.
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
/// The login meets an empty table: unlike the start it sets A_Progetta too.
inline constexpr Diritti kDirittiLoginSenzaUtenti = [] {
    Diritti diritti = kDirittiAvvioSenzaUtenti;
    diritti.A_Progetta = kVero;
    return diritti;
}();

/// Puts the rights of that user into DirittiUtente, all or nothing. Whoever isn't found counts as a failed attempt and
/// is told so; the fourth closes the login form. Errors of the database rise.
void CaricaAbilitazione(const std::string& NomeUtente, const std::string& PaswUtente);

} // namespace vabo

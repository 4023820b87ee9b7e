#pragma once

// The table of users, without a screen: a row each, with a name, a password and twelve flags.

#include "state/variabili.h"

#include <array>
#include <string>

namespace vabo {

/// A flag of a user: its column, and the right that it gives who logs in.
struct ColonnaDiritto {
    const char* nome;
    Flag Diritti::*flag;
};

inline constexpr std::array<ColonnaDiritto, 12> kColonneDiritti = {{
    {"Administrator", &Diritti::Administrator},
    {"A_Inserisci", &Diritti::A_Inserisci},
    {"A_Cancella", &Diritti::A_Cancella},
    {"A_Iva", &Diritti::A_Iva},
    {"A_Bilancio", &Diritti::A_Bilancio},
    {"A_Personale", &Diritti::A_Personale},
    {"A_ArchivioStoria", &Diritti::A_ArchivioStoria},
    {"A_PFinanza", &Diritti::A_PFinanza},
    {"A_Synchro", &Diritti::A_Synchro},
    {"A_EmettiPagamenti", &Diritti::A_EmettiPagamenti},
    {"A_Progetta", &Diritti::A_Progetta},
    {"Disabilita", &Diritti::Disabilita},
}};

/// A user as it stands on the screen. The boxes are in the order of the columns, with their values 0, 1 and 2.
struct CampiUtente {
    std::string nome;
    std::array<int, kColonneDiritti.size()> caselle;
};

/// The selection of names and flags. It ends with the table's name, so that a condition may follow.
std::string SelezioneUtenti();
/// The list with the passwords: administrators last, then by name.
std::string ElencoUtenti();

/// Whether no user is an administrator, where the one of the key `escluso` isn't counted (0 counts all) and the box
/// isn't ticked either. Then a box tells it. Raises.
bool MancaAmministratore(double escluso, int casella);

/// Writes the name and the flags into the row of that key, a new one for 0. It doesn't look for an administrator, and
/// leaves the password as it is. Raises.
void SalvaUtente(double chiave, const CampiUtente& campi);

/// Also the last administrator. Raises.
void EliminaUtente(double chiave);

} // namespace vabo

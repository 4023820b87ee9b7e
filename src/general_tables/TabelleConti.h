#pragma once

#include <array>
#include <string>

namespace vabo {

/// One of the four tables that share the second tab, in the order in which they are turned.
struct TabellaAltriConti {
    const char* nome;
    const char* chiave;          ///< as the store writes it behind "where"
    const char* etichetta;       ///< of Label14 after a store
    const char* etichettaGirata; ///< of Label14 when the turn arrives here
    const char* successiva;      ///< caption of Command18
};

inline constexpr std::array<TabellaAltriConti, 4> kAltriConti = {{
    {"tipoanagrafica", "where idtipoanagrafica = ", "Tabella Conti Anagrafiche", "Tabella Conti Anagrafiche",
     "Tabella Conti Buste paga"},
    {"bustetabellacontiutili", " where id = ", "Tabella Conti Buste paga", "Tabella Conti Buste paga",
     "Tabella Conti Trasf. Fondi"},
    {"tabellacontiutiliTransfersHQ", " where id = ", "Tabella Conti Trasf. Fondi", "Tabella Gestione progetti",
     "Tabella Conti contributi"},
    {"tabellacontiutilicontributi", " where id = ", "Tabella Conti contributi", "Tabella Conti contributi",
     "Tabella Conti Anagrafiche"},
}};

/// Sources of the four grids.
std::string TestoContiUtili();
std::string TestoContiIva();
std::string TestoContiPersonale();
std::string TestoAltriConti(int tabella);
/// What takes the place of an empty source after a store; its refresh fails.
std::string TestoAltriContiRipiego(int tabella);

/// The accounts on offer in the four pickers. The exclusion is of another table than the one the picker serves.
std::string ElencoContiUtili();
std::string ElencoAltriConti();
std::string ElencoContiPersonale();
std::string ElencoContiFatture();

} // namespace vabo

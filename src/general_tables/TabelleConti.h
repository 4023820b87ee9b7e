#pragma once

#include <array>
#include <string>

namespace vabo {

/// One of the four tables of the second tab. Command18 goes through them in this order.
struct TabellaAltriConti {
    const char* nome;
    const char* chiave;          ///< the condition up to the number, with "where", as the stores write it
    const char* etichetta;       ///< of Label14 after a store
    const char* etichettaGirata; ///< of Label14 when Command18 has changed to this table
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

/// The statements of the four grids.
std::string TestoContiUtili();
std::string TestoContiIva();
std::string TestoContiPersonale();
std::string TestoAltriConti(int tabella);
/// The statement used after a store where the grid's recordset is at EOF; the server refuses it, so the load fails.
std::string TestoAltriContiRipiego(int tabella);

/// The statements of the four pickers' lists of accounts. What they leave out is used in another table than the one
/// that the picker stores into.
std::string ElencoContiUtili();
std::string ElencoAltriConti();
std::string ElencoContiPersonale();
std::string ElencoContiFatture();

} // namespace vabo

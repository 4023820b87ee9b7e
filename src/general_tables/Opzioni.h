#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vabo {

/// One box of the console and the row that stores it.
struct Opzione {
    enum class Tabella { DatiGenerali, TabellaUilityConti };

    std::string_view casella;
    Tabella tabella;
    int riga;                ///< id of the row; 0 where the row is found by its description
    int valoreSpuntata;      ///< what a ticked box writes; a cleared one writes 0
    const char* descrizione; ///< written when the row is created; null: not written
    bool ignoraErrori;
};

/// When a row of datiGenerali is created, the database gives its id; for a row of TabellaUilityConti the id is written.
/// The value stored is -1 for a ticked box, but -2 for Check11, which shares row 8 with Check10, and 1 for Check12.
inline constexpr std::array<Opzione, 12> kOpzioni = {{
    {"Check1", Opzione::Tabella::DatiGenerali, 8, -1, "Gestione Note di Debito", false},
    {"Check2", Opzione::Tabella::DatiGenerali, 6, -1, nullptr, false},
    {"Check3", Opzione::Tabella::DatiGenerali, 7, -1, "Inserimento Automatico Scadenziari", false},
    {"Check4", Opzione::Tabella::DatiGenerali, 9, -1, "Gestione Previsionali", false},
    {"Check5", Opzione::Tabella::DatiGenerali, 10, -1, "Riapertura Oneri progetto a Fine Es.", true},
    {"Check6", Opzione::Tabella::DatiGenerali, 0, -1, "Sede Amministrativa", false},
    {"Check13", Opzione::Tabella::DatiGenerali, 15, -1, "Usa C/Transitorio Economico", false},
    {"Check7", Opzione::Tabella::TabellaUilityConti, 5, -1, "Budget Ong Automatico", true},
    {"Check9", Opzione::Tabella::TabellaUilityConti, 7, -1, "Esporta solo registrazioni di loco", true},
    {"Check10", Opzione::Tabella::TabellaUilityConti, 8, -1, "Usa InforEuro", false},
    {"Check11", Opzione::Tabella::TabellaUilityConti, 8, -2, "Usa InforEuro", false},
    {"Check12", Opzione::Tabella::TabellaUilityConti, 9, 1, "Usa Badge", false},
}};

const Opzione& OpzioneDi(std::string_view casella);

/// The statement that finds the row of an option.
std::string TestoOpzione(const Opzione& opzione);

/// Stores the value of a box (0 cleared, 1 ticked; 2 comes from a stored -2 and is stored as -2 again). A missing row
/// is created; the one that is found by its description is created without a value. Errors raise, or failing statements
/// are skipped, as `ignoraErrori` says.
void SalvaOpzione(const Opzione& opzione, int casella);

/// Whether row 9 of TabellaUilityConti holds 1. Creates the row where it is missing and then returns false, whatever it
/// stores.
bool UsaBadge();

} // namespace vabo

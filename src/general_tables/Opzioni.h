#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vabo {

/// One box of the console and the row that it stands for.
struct Opzione {
    enum class Tabella { DatiGenerali, TabellaUilityConti };

    std::string_view casella;
    Tabella tabella;
    int riga;                ///< id of the row; 0 where the row is found by its description
    int valoreSpuntata;      ///< what a ticked box writes; an unticked one writes 0
    const char* descrizione; ///< of a row that is created, none where it stays unset
    bool ignoraErrori;
};

/// The numbered rows of datiGenerali don't get their id written: the database gives it. Those of TabellaUilityConti do.
/// Rows 8 and 9 of TabellaUilityConti are the ones that don't hold the negated box.
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

/// Stores what the box shows (1 ticked, 0 not; the 2 of a stored -2 goes back as it came), creating the row where it is
/// missing; a row that is found by its description is created without a value. Under the option's own rule: errors
/// raise, or the failing statement is skipped.
void SalvaOpzione(const Opzione& opzione, int casella);

/// Row 9, created where it is missing. False on the pass that creates it.
bool UsaBadge();

} // namespace vabo

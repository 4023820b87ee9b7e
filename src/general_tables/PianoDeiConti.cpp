#include "general_tables/PianoDeiConti.h"

#include "ado/Conversions.h"
#include "general_tables/RecordsetConsole.h"
#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "platform/Dialogs.h"
#include "rights/Permesso.h"

#include <array>
#include <string>

namespace vabo {

namespace {

struct Livello {
    int id;
    const char* descrizione;
    const char* domanda;
    int standard;
    int proposta; ///< also stored for an answer that can't be used
};

// The sub-account has four characters in the standard chart and three in a company's own one.
constexpr std::array<Livello, 3> kLivelli = {{
    {2, "Mastro", "Lunghezza del campo Mastro ", 3, 3},
    {3, "Conto", "Lunghezza del campo Conto ", 2, 2},
    {4, "S/Conto", "Lunghezza del campo S/Conto ", 4, 3},
}};

void ScriviRiga(int id, const ado::Value& lunghezza, const char* descrizione) {
    ado::Recordset& rs = RsCaselle();
    ApriScrivibile(rs, "select * from TabellaUilityConti where id = " + std::to_string(id), DbAzienda);
    if (rs.EOF()) {
        rs.AddNew();
    } else {
        rs.MoveFirst();
    }
    ScriviColonne(kSenzaRegola, rs, {{"id", id}, {"Lunghezza", lunghezza}, {"Descrizione", descrizione}});
    AggiornaRecord(rs);
}

void ScriviEChiudi(int id, const ado::Value& lunghezza, const char* descrizione) {
    ScriviRiga(id, lunghezza, descrizione);
    RsCaselle().Close();
}

/// The answer is stored as the text that was typed; the data layer converts it.
ado::Value LunghezzaChiesta(const Livello& livello) {
    Appoggio = platform::dialogs().input(livello.domanda, "Lunghezza", std::to_string(livello.proposta));
    if (!ado::isNumeric(Appoggio) || IsEmptyValue(Appoggio)) {
        return livello.proposta;
    }
    return Appoggio;
}

} // namespace

void DefinisciPianoDeiConti(int casellaBudget) {
    if (!Permesso(DirittiUtente.Administrator)) {
        return;
    }
    const Restituzione restituzione(kPostoCaselle);
    const bool standard = platform::dialogs().question("Utilizzi il Piano dei Conti Standard?");
    ScriviEChiudi(1, standard ? 0 : -1, "Standard");
    for (const Livello& livello : kLivelli) {
        ScriviEChiudi(livello.id, standard ? ado::Value(livello.standard) : LunghezzaChiesta(livello),
                      livello.descrizione);
    }
    ScriviRiga(5, -casellaBudget, "Budget Ong Automatico");
    ChiudiRecordset();
}

} // namespace vabo

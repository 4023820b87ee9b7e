#include "general_tables/Opzioni.h"

#include "ado/Conversions.h"
#include "general_tables/RecordsetConsole.h"
#include "kit/ApriScrivibile.h"
#include "kit/ErrorHandling.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "kit/Uguale.h"
#include "state/variabili.h"

#include <algorithm>
#include <stdexcept>

namespace vabo {

namespace {

constexpr int kRigaBudgetOng = 5;
constexpr int kRigaBadge = 9;

bool RigaConNumero(const Opzione& opzione) {
    return opzione.tabella == Opzione::Tabella::TabellaUilityConti;
}

/// False for the row that is found by its description. Only the description is written when that one is created.
bool RigaConId(const Opzione& opzione) {
    return opzione.riga != 0;
}

const char* ColonnaValore(const Opzione& opzione) {
    return RigaConNumero(opzione) ? "Lunghezza" : "Contatore";
}

/// True for the numbered rows of datiGenerali; the others are written through a local recordset.
bool RecordsetCondiviso(const Opzione& opzione) {
    return !RigaConNumero(opzione) && RigaConId(opzione);
}

template<typename Regola>
void ScriviOpzione(Regola&& regola, ado::Recordset& rs, const Opzione& opzione, int valore) {
    regola([&] { ApriScrivibile(rs, TestoOpzione(opzione), DbAzienda); });
    const bool manca = vera([&] { return rs.EOF(); });
    if (manca) {
        regola([&] { rs.AddNew(); });
        if (RigaConNumero(opzione)) {
            regola([&] { rs["id"] = opzione.riga; });
        }
        if (opzione.descrizione) {
            regola([&] { rs["Descrizione"] = opzione.descrizione; });
        }
    }
    if (!manca || RigaConId(opzione)) {
        regola([&] { rs[ColonnaValore(opzione)] = valore; });
    }
    regola([&] { rs.Update(); });
    regola([&] { rs.Close(); });
}

// Failing statements are skipped. The load may have this recordset open, with a new row not yet stored: that row is
// stored first.
void SalvaBudgetOng(const Opzione& opzione, int valore) {
    ado::Recordset& rs = RsOpzioni();
    salta([&] { rs.Update(); });
    salta([&] { rs.Close(); });
    salta([&] { ApriScrivibile(rs, TestoOpzione(opzione), DbAzienda); });
    if (vera([&] { return rs.EOF(); })) {
        salta([&] { rs.AddNew(); });
        salta([&] { rs["id"] = opzione.riga; });
        salta([&] { rs["Lunghezza"] = valore; });
        salta([&] { rs["Descrizione"] = opzione.descrizione; });
    } else {
        salta([&] { rs.MoveFirst(); });
        salta([&] { rs["Lunghezza"] = valore; });
    }
    salta([&] { AggiornaRecord(rs); });
    ChiudiRecordset();
}

} // namespace

const Opzione& OpzioneDi(std::string_view casella) {
    const auto trovata = std::ranges::find(kOpzioni, casella, &Opzione::casella);
    if (trovata == kOpzioni.end()) {
        throw std::logic_error("no option stands behind this box");
    }
    return *trovata;
}

std::string TestoOpzione(const Opzione& opzione) {
    if (!RigaConId(opzione)) {
        return "select * from datiGenerali where descrizione ='" + std::string(opzione.descrizione) + "'";
    }
    const std::string tabella = RigaConNumero(opzione) ? "TabellaUilityConti" : "datiGenerali";
    return "select * from " + tabella + " where id = " + std::to_string(opzione.riga);
}

void SalvaOpzione(const Opzione& opzione, int casella) {
    const int valore = casella * opzione.valoreSpuntata;
    if (RigaConNumero(opzione) && opzione.riga == kRigaBudgetOng) {
        SalvaBudgetOng(opzione, valore);
        return;
    }
    const Restituzione restituzione(kPostoCaselle);
    ado::Recordset proprio;
    ado::Recordset& rs = RecordsetCondiviso(opzione) ? RsCaselle() : proprio;
    if (opzione.ignoraErrori) {
        ScriviOpzione(kSaltando, rs, opzione, valore);
    } else {
        ScriviOpzione(kSenzaRegola, rs, opzione, valore);
    }
}

bool UsaBadge() {
    bool usa = false;
    ado::Recordset rs;
    ApriScrivibile(rs, "select * from TabellaUilityConti where id = 9", DbAzienda);
    if (rs.EOF()) {
        rs.AddNew();
        rs["id"] = kRigaBadge;
        rs["Lunghezza"] = ado::matches(Minuscolo(NomeDatabase), "*dornavel*") ? 1 : 0;
        rs["Descrizione"] = "Usa Badge";
        rs.Update();
    } else {
        usa = Uguale(rs["Lunghezza"], 1);
    }
    rs.Close();
    return usa;
}

} // namespace vabo

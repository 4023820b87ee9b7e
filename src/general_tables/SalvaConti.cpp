#include "general_tables/SalvaConti.h"

#include "ado/Conversions.h"
#include "general_tables/Conti.h"
#include "general_tables/RecordsetConsole.h"
#include "general_tables/TabelleConti.h"
#include "kit/ApriScrivibile.h"
#include "kit/ErrorHandling.h"
#include "kit/Regole.h"
#include "kit/Testi.h"

namespace vabo {

namespace {

template<typename Regola>
void PuntaAlConto(Regola&& regola, const std::string& testo, double idConto) {
    const Restituzione restituzione(kPostoCaselle);
    ado::Recordset& rs = RsCaselle();
    regola([&] { ApriScrivibile(rs, testo, DbAzienda); });
    regola([&] { rs.MoveFirst(); });
    regola([&] { rs["idconto"] = idConto; });
    regola([&] { rs["idconto1"] = LeggiGruppoVabo(ado::toDouble(rs["idconto"])); });
    regola([&] { rs.Update(); });
    ChiudiRecordset();
}

} // namespace

bool ContoAmmesso(const std::string& descrizione, double idConto) {
    return !ado::matches(Minuscolo(descrizione), "*econo*") || ContoEconomico(idConto);
}

void SalvaContoUtile(double idRiga, double idConto) {
    PuntaAlConto(kSaltando, "Select * from tabellacontiutili where id = " + ado::plainNumber(idRiga), idConto);
}

void SalvaAltroConto(int tabella, double idRiga, double idConto) {
    const TabellaAltriConti& riga = kAltriConti.at(static_cast<std::size_t>(tabella));
    PuntaAlConto(kSenzaRegola, "Select * from " + std::string(riga.nome) + " " + riga.chiave + ado::plainNumber(idRiga),
                 idConto);
}

void SalvaContoPersonale(double idRiga, double idConto) {
    PuntaAlConto(kSaltando, "Select * from BusteTabellaContiUtili  where id = " + ado::plainNumber(idRiga), idConto);
}

void SalvaContoFattura(double idRiga, double idConto, OrdineFatture ordine) {
    const std::string riga = ado::plainNumber(idRiga);
    const auto conto = [&] {
        DbAzienda.Execute("update ivaTabellaContiUtili set idconto=" + ado::plainNumber(idConto) + " where id=" + riga);
    };
    const auto gruppo = [&] {
        DbAzienda.Execute("update ivaTabellaContiUtili set idconto1=" + std::to_string(LeggiGruppoVabo(idConto)) +
                          " where id=" + riga);
    };
    const auto progetto = [&] {
        DbAzienda.Execute("update ivaTabellaContiUtili set idProgetto = 10000001  where id=" + riga);
    };
    conto();
    if (ordine == OrdineFatture::Invio) {
        gruppo();
        progetto();
    } else {
        progetto();
        gruppo();
    }
}

} // namespace vabo

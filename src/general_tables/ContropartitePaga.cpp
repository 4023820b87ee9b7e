#include "general_tables/ContropartitePaga.h"

#include "ado/Conversions.h"
#include "general_tables/Conti.h"
#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/Regole.h"
#include "state/variabili.h"

#include <span>

namespace vabo {

namespace {

constexpr int kPostoContropartite = 10;

} // namespace

std::string ElencoContropartite(int mastro) {
    return "SELECT idconto, contoreport + ' ' + Nomeconto as nomeconto from conti where idmastro = " +
           std::to_string(mastro) +
           "     and idprogetto = 10000001 and not idchiave like '%.0'"
           " and not exists (select idconto from tipoanagrafica where tipoanagrafica.idconto = conti.idconto)"
           " order by contoreport + ' ' + Nomeconto";
}

std::string ElencoTipiConContropartite() {
    return " SELECT   tipoanagrafica.IdTipoAnagrafica, tipoanagrafica.TipoAnagrafe,  conti.NomeConto, "
           " TipoAnagraficaCPartite.IdIrpef, TipoAnagraficaCPartite.IdIrpefReg,  TipoAnagraficaCPartite.IdIrpefCom,"
           " TipoAnagraficaCPartite.IdInpsP,  TipoAnagraficaCPartite.IdInailP, TipoAnagraficaCPartite.IdCInpsE,"
           " TipoAnagraficaCPartite.IdCInailE, TipoAnagraficaCPartite.IdCIrapE, TipoAnagraficaCPartite.IdGIrapE ,"
           " TipoAnagraficaCPartite.IdGInpsE, TipoAnagraficaCPartite.IdGInailE, TipoAnagraficaCPartite.IdIrapP FROM "
           " tipoanagrafica INNER JOIN"
           " TipoAnagraficaCPartite ON tipoanagrafica.IdTipoAnagrafica = TipoAnagraficaCPartite.id  left JOIN"
           " conti ON TipoAnagraficaCPartite.IdIrpef = conti.IdConto order by ID";
}

// Failing statements are skipped once the row is there.
void ScriviContropartite(double tipo, const ContiPaga& conti) {
    const Restituzione restituzione(kPostoContropartite);
    ado::Recordset& rs = RsCondivisi(kPostoContropartite);
    ApriScrivibile(rs, "select * from TipoAnagraficaCPartite where id =" + ado::plainNumber(tipo), DbAzienda);
    rs.MoveFirst();
    for (std::size_t i = 0; i < kLetteDoveScritte; ++i) {
        ScriviColonne(kSaltando, rs, {{kContropartite.at(i).scritta, conti.at(i)}});
    }
    for (const Contropartita& una : std::span(kContropartite).first<kLetteDoveScritte>()) {
        if (una.gruppo != nullptr) {
            salta([&] { rs[una.gruppo] = LeggiGruppoVabo(ado::toDouble(rs[una.scritta])); });
        }
    }
    for (std::size_t i = kLetteDoveScritte; i < kContropartite.size(); ++i) {
        const Contropartita& una = kContropartite.at(i);
        ScriviColonne(kSaltando, rs, {{una.scritta, conti.at(i)}});
        if (una.gruppo != nullptr) {
            salta([&] { rs[una.gruppo] = LeggiGruppoVabo(conti.at(i)); });
        }
    }
    ScriviColonne(kSaltando, rs, {{"IdCIrapE", 0}, {"IdGIrapE", 0}, {"IdIrapP", 0}});
    salta([&] { rs.Update(); });
}

} // namespace vabo

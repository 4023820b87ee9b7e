#include "payment_terms/TabellaCondizioni.h"

#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "state/variabili.h"

namespace vabo {

namespace {

constexpr int kPostoCondizione = 1;

} // namespace

// The inner joins leave out a term whose rule or kind is missing.
std::string ElencoCondizioni() {
    std::string scadenze;
    for (std::size_t rata = 1; rata <= kRate; ++rata) {
        scadenze += "CondizioniPagamento.Scadenza" + std::to_string(rata) + ", ";
    }
    return "SELECT CondizioniPagamento.IDPagamento, CondizioniPagamento.Descrizione, CondizioniPagamento.NRrate, "
           "CondizioniPagamento.IDDecorrenza, CondizioniPagamentoDecorrenza.Descrizione, "
           "CondizioniPagamento.RataAnticipo, " +
           scadenze +
           "CondizioniPagamento.IdTipoRimessa, CondizioniPagamentoTipoIncasso.Descrizione "
           "FROM (CondizioniPagamentoDecorrenza INNER JOIN CondizioniPagamento ON "
           "CondizioniPagamentoDecorrenza.IDDecorrenza = CondizioniPagamento.IDDecorrenza) INNER JOIN "
           "CondizioniPagamentoTipoIncasso ON CondizioniPagamento.IdTipoRimessa = "
           "CondizioniPagamentoTipoIncasso.IdTipoRimessa order by CondizioniPagamento.Descrizione ";
}

std::string ElencoRegole() {
    return "SELECT * from  CondizioniPagamentoDecorrenza order by Descrizione";
}

std::string ElencoTipiRimessa() {
    return "SELECT * from  CondizioniPagamentoTipoIncasso order by descrizione";
}

void AggiungiRataAnticipo() {
    AggiungiColonne(DbAzienda,
                    {"alter TABLE [condizionipagamento] add    RataAnticipo decimal(18,2) not NULL default 0"});
}

bool SalvaCondizione(const ChiaviCondizione& chiavi, const CampiCondizione& campi) {
    if (IsEmptyValue(chiavi.decorrenza) || IsEmptyValue(chiavi.tipoRimessa) || IsEmptyValue(campi.descrizione)) {
        return false;
    }
    ChiudiRecordset();
    const Restituzione restituzione(kPostoCondizione);
    ado::Recordset& rs = RsCondivisi(kPostoCondizione);
    ApriRiga(kSenzaRegola, rs, DbAzienda, " SELECT * from CondizioniPagamento",
             " WHERE  idpagamento = ", chiavi.pagamento);
    ScriviColonne(kSenzaRegola, rs,
                  {{"Descrizione", campi.descrizione},
                   {"NRrate", ado::toDouble(campi.numeroRate)},
                   {"IDDecorrenza", chiavi.decorrenza},
                   {"RataAnticipo", campi.anticipo, SeVuoto::Zero}});
    for (std::size_t i = 0; i < kRate; ++i) {
        const std::string colonna = "Scadenza" + std::to_string(i + 1);
        ScriviColonne(kSenzaRegola, rs, {{colonna.c_str(), campi.scadenze[i], SeVuoto::Zero}});
    }
    ScriviColonne(kSenzaRegola, rs, {{"IdTipoRimessa", chiavi.tipoRimessa}});
    AggiornaRecord(rs);
    ChiudiRecordset();
    return true;
}

} // namespace vabo

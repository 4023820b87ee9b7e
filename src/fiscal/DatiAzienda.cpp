#include "fiscal/DatiAzienda.h"

#include "general_tables/CaricaValoriControlli.h"
#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "state/variabili.h"

namespace vabo {

namespace {

constexpr int kPostoAzienda = 10;

// No column is there for the province.
void ScriviComune(ado::Recordset& rs, const CampiDatiAzienda& campi) {
    ScriviColonne(kSenzaRegola, rs, {{"città", campi.comune, SeVuoto::Salta}});
    if (!IsEmptyValue(campi.provincia)) {
        rs["città"] = Pezzo(rs["città"]) + " (" + campi.provincia + ")";
    }
}

void ScriviAzienda(ado::Recordset& rs, const CampiDatiAzienda& campi) {
    ScriviColonne(kSenzaRegola, rs, {{"Nome", campi.nome}, {"Via", campi.indirizzo, SeVuoto::Salta}});
    ScriviComune(rs, campi);
    ScriviColonne(kSenzaRegola, rs,
                  {{"cap", campi.cap, SeVuoto::Salta},
                   {"IdStato", campi.idStato, SeVuoto::Zero},
                   {"IDPagamento", campi.idPagamento, SeVuoto::Zero},
                   {"IdIncasso", campi.idIncasso, SeVuoto::Zero},
                   {"telefonoufficio", campi.telefono, SeVuoto::Salta},
                   {"numerofax", campi.fax, SeVuoto::Salta},
                   {"indirizzopostaelettronica", campi.posta, SeVuoto::Salta},
                   {"sito", campi.sito, SeVuoto::Salta},
                   {"Codicefiscale", campi.codiceFiscale, SeVuoto::Salta},
                   {"PartitaIva", campi.partitaIva, SeVuoto::Salta},
                   {"Cab", campi.cab, SeVuoto::Salta},
                   {"Abi", campi.abi, SeVuoto::Testo},
                   {"Cin", campi.cin, SeVuoto::Testo},
                   {"IBAN", campi.iban, SeVuoto::Testo},
                   {"BIC", campi.bic, SeVuoto::Testo},
                   {"ccorrente", campi.contoCorrente, SeVuoto::Testo},
                   {"Intestatario", campi.intestatario, SeVuoto::Testo},
                   {"Banca", campi.banca, SeVuoto::Testo},
                   {"idtipoazienda", 0}});
}

} // namespace

std::string ElencoAzienda() {
    return "select * from DatiAzienda Order by ID";
}

std::string ElencoComuni() {
    return "SELECT * from comuni order by des_comune";
}

std::string ElencoStatiPerNome() {
    return "SELECT * FROM stati order by descstato";
}

std::string ElencoCondizioniAzienda() {
    return "SELECT CondizioniPagamento.IDPagamento, CondizioniPagamento.Descrizione FROM "
           "(CondizioniPagamentoDecorrenza INNER JOIN CondizioniPagamento ON "
           "CondizioniPagamentoDecorrenza.IDDecorrenza = CondizioniPagamento.IDDecorrenza) INNER JOIN "
           "CondizioniPagamentoTipoIncasso ON CondizioniPagamento.IdTipoRimessa = "
           "CondizioniPagamentoTipoIncasso.IdTipoRimessa";
}

std::string DescrizioneCondizione(double idPagamento) {
    return LeggiCampo("CondizioniPagamento", "Descrizione", "IDPagamento", idPagamento);
}

std::optional<std::string> NomeStato(double idStato) {
    ado::Recordset rs;
    rs.Open("Select * from stati where idstato=" + ado::plainNumber(idStato), DbAzienda);
    std::optional<std::string> nome;
    if (!rs.EOF() && !rs[1].Value().isNull()) {
        nome = ado::toText(rs[1]);
    }
    rs.Close();
    return nome;
}

void SalvaAzienda(const CampiDatiAzienda& campi) {
    const Restituzione restituzione(kPostoAzienda);
    ado::Recordset& rs = RsCondivisi(kPostoAzienda);
    ApriScrivibile(rs, "Select * from DatiAzienda", DbAzienda);
    if (rs.EOF()) {
        rs.AddNew();
    } else {
        rs.MoveFirst();
    }
    ScriviAzienda(rs, campi);
    AggiornaRecord(rs);
    rs.Close();
    ChiudiRecordset();
}

} // namespace vabo

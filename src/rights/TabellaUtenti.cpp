#include "rights/TabellaUtenti.h"

#include "ado/Conversions.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "platform/Dialogs.h"

namespace vabo {

namespace {

constexpr int kPostoUtenti = 2;
constexpr int kSpuntata = 1; // 2, greyed, is ticked too

std::string Selezione(const std::string& primeColonne) {
    std::string testo = "Select " + primeColonne;
    for (const ColonnaDiritto& colonna : kColonneDiritti) {
        testo += std::string(", ") + colonna.nome;
    }
    return testo + " from  AbilitazioneAccessi";
}

std::string ProvaAmministratore(double escluso) {
    std::string testo = "select Administrator from  AbilitazioneAccessi where  administrator  = 1";
    if (!IsEmptyValue(escluso)) {
        testo += " and not idautonumber = " + ado::plainNumber(escluso);
    }
    return testo;
}

} // namespace

std::string SelezioneUtenti() {
    return Selezione(" idautonumber, NomeUtente");
}

std::string ElencoUtenti() {
    return Selezione(" idautonumber, NomeUtente, PaswUtente") + " order by Administrator, NomeUtente";
}

bool MancaAmministratore(double escluso, int casella) {
    RilasciaRecordset(kPostoUtenti); // a login that failed half-way may have left it open
    ado::Recordset& rs = RsCondivisi(kPostoUtenti);
    rs.Open(ProvaAmministratore(escluso), DbAzienda, ado::CursorType::Dynamic, ado::LockType::ReadOnly);
    const bool manca = rs.EOF() && casella < kSpuntata;
    if (manca) {
        platform::dialogs().message("Occorre inserire almeno un amministratore di sistema! Operazione annullata");
    }
    ChiudiRecordset();
    return manca;
}

void SalvaUtente(double chiave, const CampiUtente& campi) {
    const Restituzione restituzione(kPostoUtenti);
    ado::Recordset& rs = RsCondivisi(kPostoUtenti);
    ApriRiga(kSenzaRegola, rs, DbAzienda, SelezioneUtenti(), " where idautonumber = ", chiave);
    ScriviColonne(kSenzaRegola, rs, {{"NomeUtente", campi.nome}});
    for (std::size_t i = 0; i < kColonneDiritti.size(); ++i) {
        ScriviColonne(kSenzaRegola, rs, {{kColonneDiritti[i].nome, campi.caselle[i]}});
    }
    AggiornaRecord(rs);
    ChiudiRecordset();
}

void EliminaUtente(double chiave) {
    DbAzienda.Execute("delete from AbilitazioneAccessi where IdAutonumber=" + ado::plainNumber(chiave));
}

} // namespace vabo

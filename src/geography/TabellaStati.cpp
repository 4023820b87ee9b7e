#include "geography/TabellaStati.h"

#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/Filtra.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "state/variabili.h"

namespace vabo {

namespace {

constexpr int kPostoStato = 1;
constexpr int kPostoZona = 2;

// Failing statements are skipped: a text that a column can't take leaves that column as it was.
void ScriviCampi(ado::Recordset& rs, const CampiStato& campi) {
    ScriviColonne(kSaltando, rs,
                  {{"DescStato", campi.nome},
                   {"DataIstituzioneStato", campi.istituzione},
                   {"DataSoppressioneStato", campi.soppressione}});
    if (IsEmptyValue(campi.soppressione)) {
        ScriviColonne(kSaltando, rs, {{"DataSoppressioneStato", ""}});
    }
    ScriviColonne(kSaltando, rs, {{"IsoValuta", campi.isoValuta}, {"Area", campi.area}});
    salta([&] { AggiornaRecord(rs); });
}

// Failing statements are skipped.
void AggiungiZona(const std::string& area) {
    const Restituzione restituzione(kPostoZona);
    ado::Recordset& rs = RsCondivisi(kPostoZona);
    salta([&] { ApriScrivibile(rs, "select * from Zonegeografiche where descrizione ='" + area + "'", DbAzienda); });
    if (vera([&] { return rs.EOF(); })) {
        salta([&] { rs.AddNew(); });
        ScriviColonne(kSaltando, rs, {{"Descrizione", area}});
        salta([&] { rs.Update(); });
    }
}

} // namespace

std::string ElencoStati() {
    return "SELECT * from stati order by DescStato";
}

std::string ElencoZone() {
    return "Select * from ZoneGeografiche ";
}

bool NomeMancante(const std::string& nome) {
    return IsEmptyValue(nome) || Minuscolo(nome) == Minuscolo(kNessunaScelta);
}

bool GiaInserito(ado::Recordset& elenco, const std::string& nome) {
    return Filtra(elenco, "descstato", nome);
}

void SalvaStato(double chiave, const CampiStato& campi) {
    const Restituzione restituzione(kPostoStato);
    ado::Recordset& rs = RsCondivisi(kPostoStato);
    ApriRiga(kSenzaRegola, rs, DbAzienda, "select * from stati", " where idstato = ", chiave);
    ScriviCampi(rs, campi);
    if (campi.area != kNessunaScelta) {
        AggiungiZona(campi.area);
    }
}

void EliminaStatiSenzaNome() {
    DbAzienda.Execute("delete from stati where descstato is null");
}

} // namespace vabo

#include "geography/TabellaComuni.h"

#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/Filtra.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "state/variabili.h"

#include <QString>

namespace vabo {

namespace {

constexpr int kPostoComune = 1;
constexpr int kLetterePerProvincia = 2, kCifreDelCap = 5;

std::string PrimiCaratteri(const std::string& testo, int quanti) {
    return QString::fromStdString(testo).left(quanti).toStdString();
}

} // namespace

std::string ElencoComuniConStati() {
    return "SELECT Comuni.idautonumber,Comuni.DES_COMUNE, Comuni.DES_PROVIN, Comuni.COD_CAP, Stati.IdStato, "
           "Stati.DescStato FROM Comuni LEFT JOIN Stati ON Comuni.IdStato = Stati.IdStato order by "
           "descstato,des_comune";
}

std::string ElencoComuniRiletto() {
    return "SELECT Comuni.idautonumber, Comuni.DES_COMUNE, Comuni.DES_PROVIN, Comuni.COD_CAP, Stati.IdStato, "
           "Stati.DescStato FROM Comuni LEFT JOIN Stati ON Comuni.IdStato = Stati.IdStato order by "
           "descstato,des_comune";
}

std::string ElencoStatiDeiComuni() {
    return "SELECT * FROM stati order by descstato";
}

std::optional<double> StatoDellaRiga(ado::Recordset& rs) {
    const ado::Value stato = rs["IdStato"];
    return stato.isNull() ? std::nullopt : std::optional(ado::toDouble(stato));
}

bool ComuneGiaInserito(ado::Recordset& elenco, const std::string& nome) {
    return Filtra(elenco, "des_comune", nome);
}

void SalvaComune(double chiave, const CampiComune& campi) {
    const Restituzione restituzione(kPostoComune);
    ado::Recordset& rs = RsCondivisi(kPostoComune);
    ApriRiga(kSenzaRegola, rs, DbAzienda, IsEmptyValue(chiave) ? "select * from comuni" : "select * from  comuni",
             " where idautonumber=", chiave);
    ScriviColonne(kSaltando, rs,
                  {{"DES_COMUNE", campi.nome},
                   {"DES_PROVIN", PrimiCaratteri(campi.provincia, kLetterePerProvincia)},
                   {"COD_CAP", PrimiCaratteri(campi.cap, kCifreDelCap)},
                   {"IdStato", campi.idStato}});
    salta([&] { rs.Update(); });
}

} // namespace vabo

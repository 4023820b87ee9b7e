#include "payment_terms/TabellaDecorrenze.h"

#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "state/variabili.h"

namespace vabo {

namespace {

constexpr int kPostoDecorrenza = 1;

void ApriDecorrenza(ado::Recordset& rs, double chiave) {
    std::string testo = " SELECT * from CondizioniPagamentoDecorrenza";
    const bool nuova = IsEmptyValue(chiave);
    if (!nuova) {
        testo += " WHERE  iddecorrenza = " + ado::plainNumber(chiave);
    }
    ApriScrivibile(rs, testo, DbAzienda);
    if (nuova || rs.EOF()) {
        rs.AddNew();
    }
}

} // namespace

std::string ElencoDecorrenze() {
    return " select IDDecorrenza, Descrizione, GiornoScadenza, GiornoScadenza1, GiornoScadenza2, GiornoScadenza3, "
           "Mese1, Mese2, Mese3 from  CondizioniPagamentoDecorrenza order by descrizione";
}

bool SalvaDecorrenza(double chiave, const CampiDecorrenza& campi) {
    if (IsEmptyValue(campi.descrizione)) {
        return false;
    }
    const Restituzione restituzione(kPostoDecorrenza);
    ado::Recordset& rs = RsCondivisi(kPostoDecorrenza);
    ApriDecorrenza(rs, chiave);
    // Whether the third month is stored is asked of the second alone; where it is empty itself it is 0 as the others.
    ScriviColonne(kSenzaRegola, rs,
                  {{"Descrizione", campi.descrizione},
                   {"GiornoScadenza", campi.giorni[0], SeVuoto::Zero},
                   {"GiornoScadenza1", campi.giorni[1], SeVuoto::Zero},
                   {"GiornoScadenza2", campi.giorni[2], SeVuoto::Zero},
                   {"GiornoScadenza3", campi.giorni[3], SeVuoto::Zero},
                   {"Mese1", campi.mesi[0], SeVuoto::Zero},
                   {"Mese2", campi.mesi[1], SeVuoto::Zero},
                   {"Mese3", IsEmptyValue(campi.mesi[1]) ? "" : campi.mesi[2], SeVuoto::Zero}});
    AggiornaRecord(rs);
    ChiudiRecordset();
    return true;
}

} // namespace vabo

#include "dblife/SedeCentrale.h"

#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/Regole.h"
#include "state/variabili.h"

namespace vabo {

namespace {

constexpr int kPostoSede = 3;

void PrimaRigaONuova(ado::Recordset& rs) {
    if (rs.EOF()) {
        rs.AddNew();
    } else {
        rs.MoveFirst();
    }
}

void SalvaCartella(const std::string& testo, const std::string& cartella) {
    ado::Recordset rs;
    ApriScrivibile(rs, testo, DbAzienda);
    PrimaRigaONuova(rs);
    ScriviColonne(kSenzaRegola, rs, {{"IdAutonumber", 1}, {"Directoryfile", cartella}});
    rs.Update();
    rs.Close();
}

} // namespace

std::string ElencoStatiSede() {
    return "SELECT * FROM Stati order by descstato";
}

std::string ElencoSediConStato() {
    return "SELECT E.IdSede, E.Città, E.Indirizzo, E.StatoOProvincia, E.IdStato, S.IdStato, S.DescStato FROM ElencoSedi "
           "AS E INNER JOIN Stati AS S ON E.IdStato = S.IdStato order by e.idsede";
}

std::string SedeScelta(double sede) {
    return "Select * from ElencoSedi where IdSede = " + ado::plainNumber(sede);
}

std::string StatoDellaSede(double stato) {
    return "Select * from stati where IdStato = " + ado::plainNumber(stato);
}

void SalvaSedeCentrale(double sede, double stato, const CampiSede& campi) {
    const Restituzione restituzione(kPostoSede);
    ado::Recordset& rs = RsCondivisi(kPostoSede);
    ApriScrivibile(rs, "Select * from  sedecentrale where idsede=1", StringaAzienda);
    PrimaRigaONuova(rs);
    ScriviColonne(kSenzaRegola, rs,
                  {{"idsede", sede},
                   {"città", campi.citta},
                   {"Indirizzo", campi.indirizzo},
                   {"statooprovincia", campi.statoOProvincia},
                   {"cap", campi.cap},
                   {"IdStato", stato},
                   {"telefonoufficio", campi.telefono},
                   {"numerofax", campi.fax},
                   {"indirizzopostaelettronica", campi.posta},
                   {"Note", campi.note}});
    AggiornaRecord(rs);
    rs.Close();
}

// The first word is spelt otherwise than in the pointer file.
void SalvaCartelleSede(const std::string& cartella) {
    SalvaCartella("Select * from DirectoryHQ", cartella + "\\VaboDatiHQ");
    SalvaCartella("Select * from Directorybackup", cartella + "\\Backup");
}

} // namespace vabo

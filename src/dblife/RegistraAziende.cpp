#include "dblife/RegistraAziende.h"

#include "dblife/modODBC.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "session/ApriAzienda.h"
#include "session/ApriDbSede.h"
#include "session/Avviamento.h"
#include "state/variabili.h"

#include <array>
#include <utility>

namespace vabo {

namespace {

constexpr int kPostoRegistro = 1;

std::string Oppure(const std::string& testo, const char* altrimenti) {
    return IsEmptyValue(testo) ? altrimenti : testo;
}

} // namespace

// ApriAzienda changes the number it is given: a copy, so that IdAziendaScelta stays as it is.
void PrendiAziendaScelta() {
    double id = IdAziendaScelta;
    salta([&] { ApriAzienda(id); });
    RiconosciDornavel();
}

CampiAzienda CampiIniziali() {
    return {.Driver = "SQL Server",
            .Server = Oppure(NomeServer, ""),
            .Database = Oppure(NomeDatabase, "VaboDati"),
            .Utente = Oppure(UtenteDb, ""),
            .Password = Oppure(PasswordDb, ""),
            .Fonte = "Tlv_Server",
            .Azienda = Oppure(NomeAzienda, "Azienda")};
}

std::string StringaServer(const CampiAzienda& campi) {
    return "Driver=" + campi.Driver + ";" + "Server=" + campi.Server + ";" + "UID=" + campi.Utente + ";" +
           "PWD=" + campi.Password + ";";
}

std::string PezzoDatabase(const CampiAzienda& campi) {
    return "Database=" + campi.Database + ";";
}

bool ConnessioneValida(const std::string& stringa) {
    return riesce([&] {
        ado::Connection prova;
        prova.Open(stringa);
        prova.Close();
    });
}

void ScriviIndirizzoServer(const std::string& stringa) {
    ScriviFileTesto("C:\\vabo\\IndirizzoServer.txt", stringa);
}

void ScriviNomeServer(const std::string& server) {
    ScriviFileTesto("C:\\vabo\\NomeServer.txt", server);
}

// Only the control database has this table; in a company's own database all statements fail and are skipped.
void ScriviPrimaRiga(const CampiAzienda& campi, ado::Connection& connessione) {
    ado::Recordset& rs = RsCondivisi(kPostoRegistro);
    salta([&] {
        rs.Open("Select * from link_programma ORDER BY ID", connessione, ado::CursorType::Keyset,
                ado::LockType::Optimistic);
    });
    salta([&] { rs.MoveFirst(); });
    const std::array<std::pair<const char*, std::string>, 6> valori = {{
        {"Stringa_connessione_sql", "VaBoDati"}, // this word, not a connection text
        {"Nserver", campi.Server},
        {"DBname", campi.Database},
        {"NomeAzienda", campi.Azienda},
        {"nRoot", Oppure(campi.Utente, "")},
        {"nPassw", Oppure(campi.Password, "")},
    }};
    for (const auto& [colonna, valore] : valori) {
        salta([&, colonna = colonna, &valore = valore] { rs[colonna] = valore; });
    }
    salta([&] { rs.Update(); });
}

// The local server's name is read anew for each registration: on a new workstation the first call returns another name
// than the later ones, which find the file that it has written.
void RegistraFonti(const CampiAzienda& campi) {
    const std::string descrizione = "Dati " + campi.Azienda;
    RegistraDueVolte({.NomeDsn = NomeDsn,
                      .Database = campi.Database,
                      .Descrizione = descrizione,
                      .Server = campi.Server,
                      .Utente = campi.Utente,
                      .Password = campi.Password});
    RegistraDueVolte({.NomeDsn = "Tlv_Temp",
                      .Database = "VaBoDatiTemp",
                      .Descrizione = descrizione,
                      .Utente = campi.Utente,
                      .Password = campi.Password},
                     LeggiNomeServerLocal);
    RegistraDueVolte({.NomeDsn = "Tlv_Azienda", .Database = "VaBoDatiAzienda", .Descrizione = "Dati " + NomeAzienda},
                     LeggiNomeServerLocal);
}

} // namespace vabo

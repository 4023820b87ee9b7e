#include "session/RegoleLogin.h"

#include "ado/Conversions.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/PulisciNome.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "platform/Dialogs.h"
#include "platform/Workstation.h"
#include "rights/AbilitazioneUtente.h"
#include "session/ApriAzienda.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"

namespace vabo {

namespace {

std::string IstruzioneLogin(const std::string& utente, const std::string& password) {
    std::string testo = std::string("select * from AbilitazioneAccessi") + " where " + " NomeUtente = '" + utente + "'";
    if (!IsEmptyValue(password)) {
        testo += std::string(" and ") + " PaswUtente = '" + password + "'";
    }
    return testo;
}

/// False for null.
bool Vero(const ado::Value& valore) {
    return !valore.isNull() && ado::toBoolean(valore);
}

EsitoLogin ControllaRiga(ado::Recordset& rs, const std::string& password, double& IdUtenteNuovo) {
    if (IsEmptyValue(password)) {
        if (!IsEmptyValue(rs["PaswUtente"])) {
            return EsitoLogin::Rifiutato;
        }
        IdUtenteNuovo = ado::toDouble(rs["IdAutonumber"]);
        return EsitoLogin::PrimaPassword;
    }
    // Compared again here: the server ignores case and trailing blanks.
    if (Pezzo(rs["PaswUtente"]) != password) {
        return EsitoLogin::Rifiutato;
    }
    return Vero(rs["Disabilita"]) ? EsitoLogin::Disabilitato : EsitoLogin::Riconosciuto;
}

} // namespace

void PreparaLogin() {
    DirittiUtente = kDirittiPrimaDelLogin;
    NomeTerminale = platform::workstation().machineName;
    const std::string percorso = "C:\\Vabo\\IndirizzoServerLocal.txt";
    if (vera([&] { return !platform::workstation().driveC.exists(percorso); })) {
        salta([&] { ScriviFileTesto(percorso, StringaServerLocale(LeggiNomeServerLocal())); });
    }
    IdAziendaScelta = 0;
    ApriAzienda(IdAziendaScelta);
}

// Any failure means no.
bool ServerRisponde() {
    const bool risponde = !IsEmptyValue(StringaAzienda) && riesce([] {
        ado::Connection prova;
        prova.setConnectionString(StringaAzienda);
        prova.Open();
        prova.Close();
    });
    ServerMancante = risponde ? kFalso : kVero;
    return risponde;
}

void ApriDatiLogin() {
    salta([] { DbAzienda.Open(StringaAzienda); });
    salta([] { IndirizzoVabodati = platform::workstation().driveC.firstLine("C:\\vabo\\Indirizzovabodati.txt"); });
    IndirizzoVabodatiCopia = IndirizzoVabodati;
    LeggiSede();
    ChiudiRecordset();
}

bool LoginSenzaUtenti() {
    ado::Recordset& rs = RsCondivisi(2);
    salta([&] { rs.Open("AbilitazioneAccessi", DbAzienda, ado::CursorType::Dynamic, ado::LockType::ReadOnly); });
    const bool nessuno = vera([&] { return rs.EOF(); });
    if (nessuno) {
        DirittiUtente = kDirittiLoginSenzaUtenti;
    } else {
        TentativiLogin = 0;
    }
    ChiudiRecordset();
    return nessuno;
}

// No trimming: PulisciNome has made underscores of the blanks.
std::string Normalizzato(const std::string& testo) {
    std::string pulito = testo;
    return Minuscolo(PulisciNome(pulito));
}

// Without a rule of its own.
EsitoLogin ControllaLogin(const std::string& utente, const std::string& password, double& IdUtenteNuovo) {
    Sql = IstruzioneLogin(utente, password);
    ado::Recordset& rs = RsCondivisi(2);
    rs.Open(Sql, DbAzienda, ado::CursorType::Dynamic, ado::LockType::ReadOnly);
    const EsitoLogin esito = rs.EOF() ? EsitoLogin::Rifiutato : ControllaRiga(rs, password, IdUtenteNuovo);
    ChiudiRecordset();
    return esito;
}

void EntraUtente(const std::string& utente, const std::string& password) {
    CaricaAbilitazione(utente, password);
    TentativiLogin = 0;
    NomeUtenteLogin = utente;
}

void EntraConPrimaPassword(double& IdUtenteNuovo, const std::string& utente, const std::string& password) {
    SalvaPrimaPassword(IdUtenteNuovo, password);
    ChiudiRecordset();
    CaricaAbilitazione(utente, password);
    NomeTerminale = platform::workstation().machineName;
}

bool ContaTentativo() {
    ChiudiRecordset();
    TentativiLogin += 1;
    platform::dialogs().message("User not allowed! ");
    if (TentativiLogin < 4) {
        return false;
    }
    platform::dialogs().message("It is no more possible to try! ");
    return true;
}

// Without a rule of its own.
void SalvaPrimaPassword(double& IdUtenteNuovo, const std::string& password) {
    if (IsEmptyValue(IdUtenteNuovo)) {
        return;
    }
    Sql = std::string("update AbilitazioneAccessi") + " set PaswUtente = '" + Minuscolo(password) + "'" +
          " where idautonumber =  " + ado::plainNumber(IdUtenteNuovo);
    DbAzienda.Execute(Sql);
    IdUtenteNuovo = 0;
}

} // namespace vabo

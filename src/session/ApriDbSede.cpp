#include "session/ApriDbSede.h"

#include "ado/Conversions.h"
#include "dblife/CreaVaBoAzienda.h"
#include "kit/Regole.h"
#include "platform/Workstation.h"
#include "state/variabili.h"

#include <string_view>

namespace vabo {

namespace {

const platform::DriveC& Disco() {
    return platform::workstation().driveC;
}

std::string NomeIstanzaLocale() {
    return NomeTerminale + "\\sqlexpress";
}

/// The place of `pezzo`, counted from 1; 0 where it isn't found.
std::size_t Posto(std::string_view testo, std::string_view pezzo) {
    const std::size_t indice = testo.find(pezzo);
    return indice == std::string_view::npos ? 0 : indice + 1;
}

/// The text from that place on, up to the next semicolon or the end.
std::string Frammento(std::string_view testo, std::size_t posto) {
    testo.remove_prefix(posto);
    return std::string(testo.substr(0, testo.find(';')));
}

bool ServerLocaleRisponde() {
    StringaTemp = Leggi_ServerLocal();
    return riesce([] {
        DbTemp.Open(StringaTemp);
        DbTemp.Close();
    });
}

bool ApriDatabaseTemp() {
    StringaTemp = Leggi_ServerLocal() + "DATABase=VaBoDatiTemp";
    return riesce([] { DbTemp.Open(StringaTemp); });
}

} // namespace

// No failure rule here: callers need the error.
std::string LeggiConnessioneServer() {
    std::string connessione = Disco().firstLine("C:\\vabo\\IndirizzoServer.txt");
    NomeServer = Disco().firstLine("C:\\vabo\\NomeServer.txt");
    return connessione;
}

std::string ConnessioneControllo() {
    return LeggiConnessioneServer() + "DATABase=vabodatiazienda";
}

std::string ConnessioneAzienda() {
    return LeggiConnessioneServer() + "DATABase=" + NomeDatabase;
}

std::string StringaServerLocale(const std::string& server) {
    return "Driver=SQL Server;Server=" + server + ";ID utente=;Password=;";
}

std::string Leggi_ServerLocal() {
    std::string connessione;
    if (riesce([&] { connessione = Disco().firstLine("C:\\vabo\\Leggi_ServerLocal.txt"); })) {
        return connessione;
    }
    Appoggio = StringaServerLocale(NomeIstanzaLocale());
    salta([] { ScriviFileTesto("C:\\Vabo\\IndirizzoServerLocal.txt", Appoggio); });
    return Appoggio;
}

std::string LeggiNomeServerLocal() {
    std::string nome;
    const bool letto = riesce([&] {
        for (int lettura = 0; lettura < 2; ++lettura) { // read twice; the second reading counts
            nome = Disco().firstLine("C:\\vabo\\NomeServerLocal.txt");
        }
    });
    if (letto) {
        return nome;
    }
    salta([] { ScriviFileTesto("C:\\Vabo\\Leggi_ServerLocal.txt", NomeIstanzaLocale()); });
    salta([] { ScriviFileTesto("C:\\Vabo\\NomeServerLocal.txt", NomeIstanzaLocale()); });
    return NomeTerminale;
}

std::string LeggiUtenteServer() {
    Appoggio = LeggiConnessioneServer();
    std::size_t chiave = 5;
    std::size_t posto = Posto(Appoggio, ";UID=");
    if (posto == 0) {
        posto = Posto(Appoggio, ";ID utente=");
        chiave = 11;
    }
    const std::size_t dopoLaChiave = posto + chiave - 1;
    if (dopoLaChiave < Appoggio.size() && Appoggio[dopoLaChiave] == ';') {
        return {};
    }
    return Frammento(Appoggio, posto);
}

std::string LeggiPasswordServer() {
    const std::string connessione = LeggiConnessioneServer();
    std::size_t posto = Posto(connessione, ";PWD=");
    if (posto == 0) {
        posto = Posto(connessione, ";Password=");
    }
    SqlLavoro = connessione.empty() ? std::string() : connessione.substr(connessione.size() - 1);
    if (SqlLavoro == ";") { // the last character of the whole text, not the value of the key
        return {};
    }
    return Frammento(connessione, posto);
}

// A temporary database that can't be opened is created, and opened once more.
bool ApriDbTemp() {
    salta([] { DbTemp.Close(); });
    if (!ServerLocaleRisponde()) {
        return false;
    }
    if (ApriDatabaseTemp()) {
        return true;
    }
    CreaDatabaseControllo();
    return ServerLocaleRisponde() && ApriDatabaseTemp();
}

void ScriviFileTesto(const std::string& percorso, const std::string& testo) {
    Disco().writeLine(percorso, testo);
}

// Failing statements are skipped.
std::string LeggiSede() {
    Sql = "Select * from Sede";
    std::string sede;
    ado::Recordset rs;
    salta([&] { rs.Open(Sql, StringaAzienda, ado::CursorType::Keyset); });
    if (vera([&] { return rs.EOF(); })) {
        salta([&] { rs.Close(); });
        return sede;
    }
    salta([&] { rs.MoveFirst(); });
    salta([&] { IdSede = ado::toDouble(rs["idsede"]); });
    salta([&] { sede = ado::toText(rs["città"]); });
    IdSedeCopia = IdSede;
    salta([&] { rs.Close(); });
    return sede;
}

} // namespace vabo

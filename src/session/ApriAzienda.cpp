#include "session/ApriAzienda.h"

#include "ado/Conversions.h"
#include "dblife/modODBC.h"
#include "kit/ApriScrivibile.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/PulisciNome.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "platform/Dialogs.h"
#include "platform/Workstation.h"
#include "session/ApriDbSede.h"
#include "session/Aziende.h"
#include "session/LinguaClient.h"
#include "state/variabili.h"

#include <QElapsedTimer>
#include <QLoggingCategory>

#include <set>

// Failing statements are skipped throughout, and a failing test counts as true.

namespace vabo {

namespace {

Q_LOGGING_CATEGORY(kTempo, "vabo.time", QtInfoMsg)

enum class Esito { Aperta, DaRipiegare, SenzaRiga };

[[noreturn]] void FineConMessaggio(const char* testo) {
    platform::dialogs().message(testo);
    platform::TerminaProcesso();
}

/// A failed call counts as no.
bool DatabasePresente() {
    bool presente = false;
    salta([&] { presente = EsisteDatabase(); });
    return presente;
}

bool NumeroDiPartenza(double& id) {
    PulisciNome(NomeTerminale);
    if (IsEmptyValue(NomeTerminale)) {
        platform::dialogs().message("Caricare il nome del PC!");
        return false;
    }
    if (IsEmptyValue(id)) {
        IdAziendaLavoro = AziendaTerminale();
        id = IdAziendaLavoro;
        IdAziendaScelta = IdAziendaLavoro;
    }
    return true;
}

void StringheDiPartenza(double id) {
    salta([] { StringaAzienda = ConnessioneAzienda(); });
    // Stands only for a company without a database; no semicolon ahead of the last key.
    StringaAzienda = "Provider=SQLOLEDB;Data Source=" + NomeServer + ";Integrated Security=SSPI" + "DATABase=vabodati";
    Appoggio = PulisciNome(NomeTerminale);
    IdAzienda = id;
    IdAziendaLavoro = id;
}

void AggiungiTerminale(ado::Recordset& rs) {
    salta([&] { rs.AddNew(); });
    salta([&] { rs["nometerminale"] = Appoggio; });
    salta([&] { rs["Ultimo"] = IdAziendaLavoro; });
    IdAzienda = IdAziendaLavoro;
    salta([&] { rs.Update(); });
    salta([&] { rs.Close(); });
}

/// Neither a row nor a number. The recordset stands at its end, so what is written to it fails: the terminal gets no
/// row.
void TerminaleSenzaNumero(ado::Recordset& rs) {
    const bool nessuna = IsEmptyValue(PrimaAziendaSuServer());
    if (nessuna && !IsEmptyValue(Appoggio)) {
        salta([&] { rs.Close(); });
        FineConMessaggio("Nessun database caricato");
    }
    if (!IsEmptyValue(Appoggio)) {
        salta([&] { rs["nometerminale"] = Appoggio; });
        salta([&] { rs["Ultimo"] = PrimaAziendaSuServer(); });
        salta([&] { rs.Update(); });
    }
    salta([&] { rs.Close(); });
}

void LeggiTerminale() {
    ado::Recordset rs;
    salta([&] {
        ApriScrivibile(rs,
                       std::string("Select * from link_programmaTerminale") + " where  " + " Nometerminale = '" +
                           Appoggio + "'",
                       DbControllo);
    });
    if (vera([&] { return !rs.EOF(); })) {
        salta([&] { IdAziendaLavoro = ado::toDouble(rs["Ultimo"]); });
        salta([&] { rs.Close(); });
    } else if (!IsEmptyValue(IdAziendaLavoro) && !IsEmptyValue(Appoggio)) {
        AggiungiTerminale(rs);
    } else {
        TerminaleSenzaNumero(rs);
    }
}

void RisolviConTerminale() {
    IdAziendaLavoro = UltimaAziendaTerminale();
    salta([] { DbControllo.Open(ConnessioneControllo()); });
    salta([] { DbControllo.Execute("delete from link_programmaTerminale where nometerminale is null"); });
    LeggiTerminale();
}

void ScriviUltimo(const std::string& numero) {
    if (IsEmptyValue(Appoggio))
        return;
    salta([&] {
        DbControllo.Execute("update link_programmaTerminale set ultimo = " + numero + " where  " +
                            " nometerminale = '" + Appoggio + "'");
    });
}

void RegistraScelta() {
    salta([] { DbControllo.Open(ConnessioneControllo()); });
    ScriviUltimo("0");
    ScriviUltimo(ado::plainNumber(IdAziendaLavoro));
    LeggiTerminale();
}

/// An empty column keeps the value of the company before.
void PrendiTesto(ado::Recordset& rs, const char* colonna, std::string& globale) {
    if (vera([&] { return !IsEmptyValue(rs[colonna]); }))
        salta([&] { globale = ado::toText(rs[colonna]); });
}

void CreaCartellaFile() {
    for (const char* cartella : {"C:\\", "C:\\Vabo", "C:\\Vabo\\Files"})
        salta([&] { platform::workstation().driveC.makeFolder(cartella); });
    CartellaFile = "C:\\Vabo\\Files";
}

void ComponiStringhe(ado::Recordset& rs) {
    salta([&] {
        StringaLocale = std::string("Provider=Microsoft.Jet.OLEDB.4.0;") + "Data Source=" + CartellaFile + "\\" +
                        Pezzo(rs["tlv_sql"]) + ";";
    });
    salta([] { StringaAzienda = LeggiConnessioneServer() + "DATABase="; });
    salta([&] { IdAziendaLavoro = ado::toDouble(rs["id"]); });
    StringaAzienda += NomeDatabase + ";";
    StringaAziendaCopia = StringaAzienda;
    Leggi_ServerLocal(); // its text serves nothing here, the file that it may write does
    salta([&] { PercorsoFileLocale = std::string("C:\\Vabo\\Files") + "\\" + Pezzo(rs["tlv_sql"]); });
    salta([&] { FileLocale = Pezzo(rs["tlv_sql"]); });
    if (IsEmptyValue(FileLocale))
        FileLocale = LinguaCorrente == "EN" ? "tlv_locale_sqlEN.mdb" : "tlv_locale_sql.mdb";
}

Esito AziendaSenzaDatabase(ado::Recordset& rs, double& id) {
    PrendiTesto(rs, "NomeAzienda", NomeAzienda);
    PrendiTesto(rs, "nRoot", UtenteDb);
    PrendiTesto(rs, "nPassw", PasswordDb);
    if (vera([&] { return !IsEmptyValue(rs["tlv_sql"]); }))
        salta([&] { PercorsoFileLocale = "C:\\Vabo\\Files\\" + Pezzo(rs["tlv_sql"]); });
    for (double* numero : {&IdAzienda, &IdAziendaLavoro, &id})
        salta([&] { *numero = ado::toDouble(rs["id"]); });
    salta([&] { rs.Close(); });
    if (!DatabasePresente()) // of the company before
        return Esito::DaRipiegare;
    ChiudiRecordset();
    return Esito::Aperta;
}

void RiapriDbAzienda() {
    salta([] { DbAzienda.Open(ConnessioneAzienda()); });
}

/// The local server's name is read anew for each use: on a new workstation the first answer isn't the one that stays.
void RegistraFonti() {
    const std::string descrizione = "Dati " + NomeAzienda;
    RegistraDueVolte(NomeDsn, NomeDatabase, descrizione, NomeServer, UtenteDb, PasswordDb);
    RegistraDueVolte("Tlv_Temp", "VaBoDatiTemp", descrizione, LeggiNomeServerLocal, UtenteDb, PasswordDb);
    RegistraDueVolte("Tlv_Azienda", "VaBoDatiAzienda", descrizione, LeggiNomeServerLocal, "", "");
}

Esito Concludi(ado::Recordset& rs) {
    ChiudiRecordset();
    salta([&] { rs.Close(); });
    StringaAziendaCopia = StringaAzienda;
    salta([] { DbAzienda.Close(); });
    salta([] { DbControllo.Close(); });
    RiapriDbAzienda();
    if (IsEmptyValue(NomeDatabase) || !DatabasePresente())
        return Esito::DaRipiegare;
    NomeDsn = "Tlv_server";
    RegistraFonti();
    salta([] { DbControllo.Open(ConnessioneControllo()); });
    CancellaTerminaliVuoti();
    salta([] { DbControllo.Close(); });
    return Esito::Aperta;
}

Esito AziendaConDatabase(ado::Recordset& rs) {
    PrendiTesto(rs, "NomeAzienda", NomeAzienda);
    PrendiTesto(rs, "DBname", NomeDatabase);
    PrendiTesto(rs, "nRoot", UtenteDb);
    PrendiTesto(rs, "nPassw", PasswordDb);
    ScriviUltimo(ado::plainNumber(IdAziendaLavoro));
    CreaCartellaFile();
    ComponiStringhe(rs);
    salta([] { DbAzienda.Close(); });
    if (!DatabasePresente())
        return Esito::DaRipiegare;
    RiapriDbAzienda();
    return Concludi(rs);
}

Esito Passata(double& id) {
    StringheDiPartenza(id);
    if (IsEmptyValue(IdAziendaLavoro))
        RisolviConTerminale();
    RegistraScelta();
    ado::Recordset rs;
    salta([&] {
        ApriScrivibile(rs,
                       std::string("Select * from link_programma ") + " where  " +
                           " id = " + ado::plainNumber(IdAziendaLavoro),
                       DbControllo);
    });
    if (!vera([&] { return !rs.EOF(); })) {
        salta([&] { rs.Close(); });
        return Esito::SenzaRiga;
    }
    salta([] { LinguaCorrente = LeggiLinguaClient(""); });
    if (vera([&] { return IsEmptyValue(rs["DBname"]); }))
        return AziendaSenzaDatabase(rs, id);
    return AziendaConDatabase(rs);
}

/// The one search on the server: it runs anew for each use of its answer. It finds the same company each time, so a
/// number that was tried is the end.
void RipiegaSullaPrima(double& id, const std::set<double>& provati) {
    const double prima = PrimaAziendaSuServer();
    if (IsEmptyValue(prima) || provati.contains(prima))
        FineConMessaggio("Non è possibile caricare il DataBase");
    IdAzienda = PrimaAziendaSuServer();
    IdAziendaLavoro = PrimaAziendaSuServer();
    id = PrimaAziendaSuServer();
}

} // namespace

void ApriAzienda(double& id) {
    QElapsedTimer tempo;
    tempo.start();
    if (!NumeroDiPartenza(id))
        return;
    std::set<double> provati;
    for (Esito esito = Passata(id); esito != Esito::Aperta; esito = Passata(id)) {
        provati.insert(IdAziendaLavoro); // the one looked up: the terminal's row may have led away from `id`
        RipiegaSullaPrima(id, provati);
        provati.insert(id);
        if (esito == Esito::SenzaRiga)
            salta([] { DbControllo.Close(); });
    }
    qCDebug(kTempo, "ApriAzienda %.3f ms", static_cast<double>(tempo.nsecsElapsed()) / 1e6);
}

} // namespace vabo

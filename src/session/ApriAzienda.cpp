#include "session/ApriAzienda.h"

#include "ado/Conversions.h"
#include "dblife/RegistraAziende.h"
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

// In the whole file failing statements are skipped and a failing test counts as true. The steps hand the terminal's
// name and the company's number to each other as parameters; they write the globals only for others to read.

namespace vabo {

namespace {

Q_LOGGING_CATEGORY(kTempo, "vabo.time", QtInfoMsg)

enum class Esito { Aperta, DaRipiegare, SenzaRiga };

[[noreturn]] void FineConMessaggio(const char* testo) {
    platform::dialogs().message(testo);
    platform::TerminaProcesso();
}

/// False also where the question fails.
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

void StringheDiPartenza() {
    salta([] { StringaAzienda = ConnessioneAzienda(); });
    // This text stays only for a company without a database. The semicolon before DATABase is missing on purpose.
    StringaAzienda = "Provider=SQLOLEDB;Data Source=" + NomeServer + ";Integrated Security=SSPI" + "DATABase=vabodati";
}

void AggiungiTerminale(ado::Recordset& rs, const std::string& terminale, double numero) {
    salta([&] { rs.AddNew(); });
    salta([&] { rs["nometerminale"] = terminale; });
    salta([&] { rs["Ultimo"] = numero; });
    IdAzienda = numero;
    salta([&] { rs.Update(); });
    salta([&] { rs.Close(); });
}

/// The terminal has neither a row nor a number. The recordset is at EOF, so these assignments fail and are skipped: no
/// row is made for the terminal.
void TerminaleSenzaNumero(ado::Recordset& rs, const std::string& terminale) {
    const bool nessuna = IsEmptyValue(PrimaAziendaSuServer());
    if (nessuna && !IsEmptyValue(terminale)) {
        salta([&] { rs.Close(); });
        FineConMessaggio("Nessun database caricato");
    }
    if (!IsEmptyValue(terminale)) {
        salta([&] { rs["nometerminale"] = terminale; });
        salta([&] { rs["Ultimo"] = PrimaAziendaSuServer(); });
        salta([&] { rs.Update(); });
    }
    salta([&] { rs.Close(); });
}

/// The company's number from the terminal's row. Without a row the given number is returned and stored in a new row.
double NumeroDelTerminale(const std::string& terminale, double numero) {
    ado::Recordset rs;
    salta([&] {
        ApriScrivibile(rs,
                       std::string("Select * from link_programmaTerminale") + " where  " + " Nometerminale = '" +
                           terminale + "'",
                       DbControllo);
    });
    if (vera([&] { return !rs.EOF(); })) {
        salta([&] { numero = ado::toDouble(rs["Ultimo"]); });
        salta([&] { rs.Close(); });
    } else if (!IsEmptyValue(numero) && !IsEmptyValue(terminale)) {
        AggiungiTerminale(rs, terminale, numero);
    } else {
        TerminaleSenzaNumero(rs, terminale);
    }
    return numero;
}

double RisolviConTerminale(const std::string& terminale) {
    IdAziendaLavoro = UltimaAziendaTerminale();
    salta([] { DbControllo.Open(ConnessioneControllo()); });
    salta([] { DbControllo.Execute("delete from link_programmaTerminale where nometerminale is null"); });
    return NumeroDelTerminale(terminale, IdAziendaLavoro);
}

void ScriviUltimo(const std::string& terminale, const std::string& numero) {
    if (IsEmptyValue(terminale)) {
        return;
    }
    salta([&] {
        DbControllo.Execute("update link_programmaTerminale set ultimo = " + numero + " where  " +
                            " nometerminale = '" + terminale + "'");
    });
}

double RegistraScelta(const std::string& terminale, double numero) {
    salta([] { DbControllo.Open(ConnessioneControllo()); });
    ScriviUltimo(terminale, "0");
    ScriviUltimo(terminale, ado::plainNumber(numero));
    return NumeroDelTerminale(terminale, numero);
}

/// An empty column leaves the global as it is, with the value of the company taken up before.
void PrendiTesto(ado::Recordset& rs, const char* colonna, std::string& globale) {
    if (vera([&] { return !IsEmptyValue(rs[colonna]); })) {
        salta([&] { globale = ado::toText(rs[colonna]); });
    }
}

void CreaCartellaFile() {
    for (const char* cartella : {"C:\\", "C:\\Vabo", "C:\\Vabo\\Files"}) {
        salta([&] { platform::workstation().driveC.makeFolder(cartella); });
    }
    CartellaFile = "C:\\Vabo\\Files";
}

void ComponiStringhe(ado::Recordset& rs, double& numero) {
    salta([&] {
        StringaLocale = std::string("Provider=Microsoft.Jet.OLEDB.4.0;") + "Data Source=" + CartellaFile + "\\" +
                        Pezzo(rs["tlv_sql"]) + ";";
    });
    salta([] { StringaAzienda = LeggiConnessioneServer() + "DATABase="; });
    salta([&] { numero = ado::toDouble(rs["id"]); });
    IdAziendaLavoro = numero;
    StringaAzienda += NomeDatabase + ";";
    StringaAziendaCopia = StringaAzienda;
    Leggi_ServerLocal(); // for the pointer file that it may write; the text isn't used
    salta([&] { PercorsoFileLocale = std::string("C:\\Vabo\\Files") + "\\" + Pezzo(rs["tlv_sql"]); });
    salta([&] { FileLocale = Pezzo(rs["tlv_sql"]); });
    if (IsEmptyValue(FileLocale)) {
        FileLocale = LinguaCorrente == "EN" ? "tlv_locale_sqlEN.mdb" : "tlv_locale_sql.mdb";
    }
}

Esito AziendaSenzaDatabase(ado::Recordset& rs, double& id, double& numero) {
    PrendiTesto(rs, "NomeAzienda", NomeAzienda);
    PrendiTesto(rs, "nRoot", UtenteDb);
    PrendiTesto(rs, "nPassw", PasswordDb);
    if (vera([&] { return !IsEmptyValue(rs["tlv_sql"]); })) {
        salta([&] { PercorsoFileLocale = "C:\\Vabo\\Files\\" + Pezzo(rs["tlv_sql"]); });
    }
    for (double* uscita : {&IdAzienda, &IdAziendaLavoro, &id, &numero}) {
        salta([&] { *uscita = ado::toDouble(rs["id"]); });
    }
    salta([&] { rs.Close(); });
    if (!DatabasePresente()) { // NomeDatabase is still that of the company taken up before
        return Esito::DaRipiegare;
    }
    ChiudiRecordset();
    return Esito::Aperta;
}

void RiapriDbAzienda() {
    salta([] { DbAzienda.Open(ConnessioneAzienda()); });
}

Esito Concludi(ado::Recordset& rs) {
    ChiudiRecordset();
    salta([&] { rs.Close(); });
    StringaAziendaCopia = StringaAzienda;
    salta([] { DbAzienda.Close(); });
    salta([] { DbControllo.Close(); });
    RiapriDbAzienda();
    if (IsEmptyValue(NomeDatabase) || !DatabasePresente()) {
        return Esito::DaRipiegare;
    }
    NomeDsn = "Tlv_server";
    RegistraFonti({.Driver = "SQL Server",
                   .Server = NomeServer,
                   .Database = NomeDatabase,
                   .Utente = UtenteDb,
                   .Password = PasswordDb,
                   .Fonte = NomeDsn,
                   .Azienda = NomeAzienda});
    salta([] { DbControllo.Open(ConnessioneControllo()); });
    CancellaTerminaliVuoti();
    salta([] { DbControllo.Close(); });
    return Esito::Aperta;
}

Esito AziendaConDatabase(ado::Recordset& rs, const std::string& terminale, double& numero) {
    PrendiTesto(rs, "NomeAzienda", NomeAzienda);
    PrendiTesto(rs, "DBname", NomeDatabase);
    PrendiTesto(rs, "nRoot", UtenteDb);
    PrendiTesto(rs, "nPassw", PasswordDb);
    ScriviUltimo(terminale, ado::plainNumber(numero));
    CreaCartellaFile();
    ComponiStringhe(rs, numero);
    salta([] { DbAzienda.Close(); });
    if (!DatabasePresente()) {
        return Esito::DaRipiegare;
    }
    RiapriDbAzienda();
    return Concludi(rs);
}

/// One attempt to take up `id`; the terminal's row may name another company.
Esito Passata(double& id) {
    StringheDiPartenza();
    const std::string terminale = PulisciNome(NomeTerminale);
    Appoggio = terminale;
    IdAzienda = id;
    IdAziendaLavoro = id;
    double numero = id;
    if (IsEmptyValue(numero)) {
        IdAziendaLavoro = numero = RisolviConTerminale(terminale);
    }
    IdAziendaLavoro = numero = RegistraScelta(terminale, numero);
    ado::Recordset rs;
    salta([&] {
        ApriScrivibile(rs,
                       std::string("Select * from link_programma ") + " where  " + " id = " + ado::plainNumber(numero),
                       DbControllo);
    });
    if (!vera([&] { return !rs.EOF(); })) {
        salta([&] { rs.Close(); });
        return Esito::SenzaRiga;
    }
    salta([] { LinguaCorrente = LeggiLinguaClient(""); });
    if (vera([&] { return IsEmptyValue(rs["DBname"]); })) {
        return AziendaSenzaDatabase(rs, id, numero);
    }
    // Appoggio, not `terminale`: LeggiLinguaClient overwrites it with the local server's connection text where the
    // pointer file is missing, and the next statement uses what it holds.
    return AziendaConDatabase(rs, Appoggio, numero);
}

/// Replaces `id` by the first company of the server. Each assignment searches anew. The search always finds the same
/// company, so that each is tried once for having been found.
void RipiegaSullaPrima(double& id, std::set<double>& tentate) {
    const double prima = PrimaAziendaSuServer();
    if (!IsEmptyValue(prima) && !tentate.contains(prima)) {
        IdAzienda = PrimaAziendaSuServer();
        IdAziendaLavoro = PrimaAziendaSuServer();
        id = PrimaAziendaSuServer();
        if (tentate.insert(id).second) {
            return;
        }
    }
    FineConMessaggio("Non è possibile caricare il DataBase");
}

} // namespace

void ApriAzienda(double& id) {
    QElapsedTimer tempo;
    tempo.start();
    if (!NumeroDiPartenza(id)) {
        return;
    }
    std::set<double> tentate;
    for (Esito esito = Passata(id); esito != Esito::Aperta; esito = Passata(id)) {
        RipiegaSullaPrima(id, tentate);
        if (esito == Esito::SenzaRiga) {
            salta([] { DbControllo.Close(); });
        }
    }
    qCDebug(kTempo, "ApriAzienda %.3f ms", static_cast<double>(tempo.nsecsElapsed()) / 1e6);
}

} // namespace vabo

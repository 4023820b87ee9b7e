#include "session/Avviamento.h"

#include "ado/Conversions.h"
#include "dblife/VerDb.h"
#include "kit/ApriScrivibile.h"
#include "kit/ErrorHandling.h"
#include "kit/PulisciNome.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "kit/Titolo.h"
#include "platform/Workstation.h"
#include "rights/AbilitazioneUtente.h"
#include "session/ApriAzienda.h"
#include "session/ApriDbSede.h"
#include "session/Aziende.h"
#include "session/LinguaClient.h"
#include "state/variabili.h"

namespace vabo {

namespace {

constexpr const char* kOpzioniServer =
    "EXEC sys.sp_configure N'show advanced options', N'1'  RECONFIGURE WITH OVERRIDE"
    "\r\n"
    " EXEC sys.sp_configure N'min memory per query (KB)', N'10240'"
    "\r\n"
    " RECONFIGURE WITH OVERRIDE "
    "\r\n"
    " EXEC sys.sp_configure N'show advanced options', N'0'  RECONFIGURE WITH OVERRIDE";

} // namespace

std::string TestoVersione() {
    return "Ver. " + NumeroDiVersione();
}

std::string TestoDatabase() {
    return "DataBase :   " + NomeAzienda;
}

void PrendiAziendaDelTerminale() {
    std::string nome = platform::workstation().machineName;
    NomeTerminale = PulisciNome(nome);
    IdAziendaLavoro = AziendaTerminale();
    IdAziendaScelta = IdAziendaLavoro;
    ApriAzienda(IdAziendaLavoro);
    ClienteDornavel = kFalso;
}

void RiconosciDornavel() {
    ClienteDornavel = ado::matches(NomeAzienda, "*dornavel*") ? kVero : kFalso;
}

void ApriSedeDiAvvio() {
    if (ServerMancante != kFalso) {
        return;
    }
    salta([] { DbAzienda.Open(ConnessioneAzienda()); });
    IndirizzoVabodatiCopia = IndirizzoVabodati;
    LeggiSede();
    ChiudiRecordset();
}

void PrendiLingua() {
    salta([] { LinguaCorrente = LeggiLinguaClient(""); });
}

void PreparaServer() {
    salta([] { DbAzienda.Execute(kOpzioniServer); });
    LeggiIndirizzoMdf();
    salta([] { ApriDbTemp(); });
    ChiudiRecordset();
}

void RegistraProgramma() {
    constexpr int kPrincipale = 1;
    constexpr int kDonazioni = 2;
    const auto registra = [](int programma) { salta([=] { Appoggio = ado::toText(VerDb(programma)); }); };
    salta([] { Appoggio = ado::toText(LeggiPrimoGennaio()); });
    const std::string nome = Minuscolo(platform::workstation().programName);
    if (ado::matches(nome, "tlv")) {
        registra(kPrincipale);
    }
    registra(ado::matches(nome, "tlv_donazioni") ? kDonazioni : kPrincipale);
}

bool ServeLogin() {
    ado::Recordset& rs = RsCondivisi(2);
    salta([&] { ApriScrivibile(rs, "AbilitazioneAccessi", DbAzienda); });
    const bool nessuno = vera([&] { return rs.EOF(); });
    if (nessuno) {
        DirittiUtente = kDirittiAvvioSenzaUtenti;
    }
    ChiudiRecordset();
    return !nessuno;
}

} // namespace vabo

#include "session/variabili.h"

#include "kit/Regole.h"

namespace vabo {

ado::Connection DbAzienda, DbControllo, DbTemp;
std::unique_ptr<ado::Connection> DbLocale;
RecordsetCondivisi RsCondivisi;

std::string StringaAzienda, StringaAziendaCopia, StringaLocale, StringaTemp;
std::string NomeTerminale, NomeServer, NomeAzienda, NomeDatabase, UtenteDb, PasswordDb, NomeDsn;
std::string IndirizzoMdf, IndirizzoVabodati, IndirizzoVabodatiCopia;
std::string CartellaFile, PercorsoFileLocale, FileLocale;
std::string LinguaCorrente, NomeUtenteLogin;
std::string Sql, SqlLavoro, Appoggio;
double IdAzienda, IdAziendaLavoro, IdAziendaScelta, IdSede, IdSedeCopia, TentativiLogin;
Flag ClienteDornavel, ServerMancante;
Diritti DirittiUtente;
std::vector<std::string> PilaForm;
double CimaForm;

ado::Recordset& RecordsetCondivisi::operator()(int posto) {
    std::unique_ptr<ado::Recordset>& rs = elenco_.at(static_cast<std::size_t>(posto - 1));
    if (!rs)
        rs = std::make_unique<ado::Recordset>();
    return *rs;
}

void RecordsetCondivisi::Rilascia(int posto) {
    std::unique_ptr<ado::Recordset>& rs = elenco_.at(static_cast<std::size_t>(posto - 1));
    if (rs) {
        salta([&] { rs->Close(); });
        rs.reset();
    }
}

void AzzeraVariabili() {
    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto)
        RsCondivisi.Rilascia(posto);
    DbLocale.reset();
    for (ado::Connection* connessione : {&DbAzienda, &DbControllo, &DbTemp}) {
        if (connessione->IsOpen())
            connessione->Close();
        connessione->setConnectionString("");
    }
    for (std::string* testo : {&StringaAzienda,    &StringaAziendaCopia,
                               &StringaLocale,     &StringaTemp,
                               &NomeTerminale,     &NomeServer,
                               &NomeAzienda,       &NomeDatabase,
                               &UtenteDb,          &PasswordDb,
                               &NomeDsn,           &IndirizzoMdf,
                               &IndirizzoVabodati, &IndirizzoVabodatiCopia,
                               &CartellaFile,      &PercorsoFileLocale,
                               &FileLocale,        &LinguaCorrente,
                               &NomeUtenteLogin,   &Sql,
                               &SqlLavoro,         &Appoggio})
        testo->clear();
    for (double* numero :
         {&IdAzienda, &IdAziendaLavoro, &IdAziendaScelta, &IdSede, &IdSedeCopia, &TentativiLogin, &CimaForm})
        *numero = 0;
    ClienteDornavel = kFalso;
    ServerMancante = kFalso;
    DirittiUtente = {};
    PilaForm.clear();
}

} // namespace vabo

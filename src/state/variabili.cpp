#include "state/variabili.h"

#include <utility>

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
std::string SqlCorrente;
double IdAzienda, IdAziendaLavoro, IdAziendaScelta, IdSede, IdSedeCopia, TentativiLogin;
double IdProgettoScelto;
double ValoreProgresso, PassoProgresso;
Flag ClienteDornavel, ServerMancante;
Diritti DirittiUtente;
std::vector<std::string> PilaForm;
double CimaForm;

ado::Recordset& RecordsetCondivisi::operator()(int posto) {
    std::unique_ptr<ado::Recordset>& rs = elenco_.at(static_cast<std::size_t>(posto - 1));
    if (!rs) {
        rs = std::make_unique<ado::Recordset>();
    }
    return *rs;
}

std::unique_ptr<ado::Recordset> RecordsetCondivisi::Ritira(int posto) {
    return std::move(elenco_.at(static_cast<std::size_t>(posto - 1)));
}

} // namespace vabo

#include "support/AzzeraVariabili.h"

#include "kit/ErrorHandling.h"
#include "state/variabili.h"

namespace vabo {

void AzzeraVariabili() {
    ChiudiRecordset();
    for (ado::Connection* connessione : {&DbAzienda, &DbControllo, &DbTemp}) {
        if (connessione->IsOpen()) {
            connessione->Close();
        }
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
                               &SqlLavoro,         &Appoggio,
                               &SqlCorrente}) {
        testo->clear();
    }
    for (double* numero : {&IdAzienda, &IdAziendaLavoro, &IdAziendaScelta, &IdSede, &IdSedeCopia, &TentativiLogin,
                           &IdProgettoScelto, &ValoreProgresso, &PassoProgresso, &CimaForm}) {
        *numero = 0;
    }
    ClienteDornavel = kFalso;
    ServerMancante = kFalso;
    DirittiUtente = {};
    PilaForm.clear();
}

} // namespace vabo

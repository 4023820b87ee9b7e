#pragma once

// The global state of the console: zero or empty at the start, kept for the life of the process. It includes headers of
// the data layer only, so that the kit and all modules can include it.

#include "ado/Connection.h"
#include "ado/Recordset.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vabo {

/// A 16-bit flag: -1 true, 0 false.
using Flag = std::int16_t;
inline constexpr Flag kVero = -1;
inline constexpr Flag kFalso = 0;

/// One flag per rights column of AbilitazioneAccessi, in the order of the table.
struct Diritti {
    Flag Administrator = kFalso;
    Flag A_Inserisci = kFalso;
    Flag A_Cancella = kFalso;
    Flag A_Iva = kFalso;
    Flag A_Bilancio = kFalso;
    Flag A_Personale = kFalso;
    Flag A_ArchivioStoria = kFalso;
    Flag A_PFinanza = kFalso;
    Flag A_Synchro = kFalso;
    Flag A_EmettiPagamenti = kFalso;
    Flag A_Progetta = kFalso;
    Flag Disabilita = kFalso;

    bool operator==(const Diritti&) const = default;
};

/// 23 recordsets that forms use for one operation each; ChiudiRecordset closes and drops them all.
class RecordsetCondivisi {
public:
    static constexpr int kNumero = 23;
    /// Created on first use. Places count from 1.
    ado::Recordset& operator()(int posto);
    /// Removes and returns it; null where it hasn't been created. The next use creates a new one.
    std::unique_ptr<ado::Recordset> Ritira(int posto);

private:
    std::array<std::unique_ptr<ado::Recordset>, kNumero> elenco_;
};

extern ado::Connection DbAzienda, DbControllo, DbTemp;
/// Created on first use, dropped by ChiudiRecordset.
extern std::unique_ptr<ado::Connection> DbLocale;
extern RecordsetCondivisi RsCondivisi;

extern std::string StringaAzienda, StringaAziendaCopia, StringaLocale, StringaTemp;
extern std::string NomeTerminale, NomeServer, NomeAzienda, NomeDatabase, UtenteDb, PasswordDb, NomeDsn;
extern std::string IndirizzoMdf, IndirizzoVabodati, IndirizzoVabodatiCopia;
extern std::string CartellaFile, PercorsoFileLocale, FileLocale;
extern std::string LinguaCorrente, NomeUtenteLogin;
extern std::string Sql, SqlLavoro, Appoggio;
extern std::string SqlCorrente; ///< the statement of a lock that runs, or ran last
extern double IdAzienda, IdAziendaLavoro, IdAziendaScelta, IdSede, IdSedeCopia, TentativiLogin;
extern double IdProgettoScelto;                ///< the project whose definitive date is being set, zero when none
extern double ValoreProgresso, PassoProgresso; ///< where the bar of a lock stands among its rows, and what a row adds
extern Flag ClienteDornavel, ServerMancante;
extern Diritti DirittiUtente;
/// The forms under the present one, and the index of the top.
extern std::vector<std::string> PilaForm;
extern double CimaForm;

} // namespace vabo

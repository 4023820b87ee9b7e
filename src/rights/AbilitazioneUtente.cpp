#include "rights/AbilitazioneUtente.h"

#include "ado/Conversions.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "rights/TabellaUtenti.h"

namespace vabo {

namespace {

std::string Istruzione(const std::string& utente, const std::string& password) {
    std::string testo = SelezioneUtenti() + " where " + " NomeUtente = '" + utente + "'";
    if (!IsEmptyValue(password)) {
        testo += std::string(" and ") + " PaswUtente = '" + password + "'";
    }
    return testo;
}

void Rifiuta() {
    TentativiLogin += 1;
    platform::dialogs().message("Utente non abilitato! ");
    if (TentativiLogin < 4) {
        return;
    }
    platform::dialogs().message("Non è possibile riprovare! ");
    platform::formHost().unload("About");
}

} // namespace

// No failure rule here: errors reach the caller.
void CaricaAbilitazione(const std::string& NomeUtente, const std::string& PaswUtente) {
    if (IsEmptyValue(NomeUtente) || IsEmptyValue(PaswUtente)) {
        Rifiuta();
        return;
    }
    ChiudiRecordset();
    ado::Recordset& rs = RsCondivisi(2);
    rs.Open(Istruzione(NomeUtente, PaswUtente), DbAzienda, ado::CursorType::Dynamic, ado::LockType::ReadOnly, -1);
    if (rs.EOF()) {
        ChiudiRecordset();
        Rifiuta();
        return;
    }
    Diritti diritti;
    for (const auto& [colonna, flag] : kColonneDiritti) {
        diritti.*flag = ado::toBoolean(rs[colonna]) ? kVero : kFalso;
    }
    DirittiUtente = diritti;
    ChiudiRecordset();
}

} // namespace vabo

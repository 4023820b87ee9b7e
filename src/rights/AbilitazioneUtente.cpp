#include "rights/AbilitazioneUtente.h"

#include "ado/Conversions.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"

#include <array>
#include <utility>

namespace vabo {

namespace {

constexpr std::array<std::pair<const char*, Flag Diritti::*>, 12> kColonne = {{
    {"Administrator", &Diritti::Administrator},
    {"A_Inserisci", &Diritti::A_Inserisci},
    {"A_Cancella", &Diritti::A_Cancella},
    {"A_Iva", &Diritti::A_Iva},
    {"A_Bilancio", &Diritti::A_Bilancio},
    {"A_Personale", &Diritti::A_Personale},
    {"A_ArchivioStoria", &Diritti::A_ArchivioStoria},
    {"A_PFinanza", &Diritti::A_PFinanza},
    {"A_Synchro", &Diritti::A_Synchro},
    {"A_EmettiPagamenti", &Diritti::A_EmettiPagamenti},
    {"A_Progetta", &Diritti::A_Progetta},
    {"Disabilita", &Diritti::Disabilita},
}};

std::string Istruzione(const std::string& utente, const std::string& password) {
    std::string testo = "Select  idautonumber, NomeUtente,";
    const char* separatore = "";
    for (const auto& [colonna, flag] : kColonne) {
        testo += std::string(separatore) + " " + colonna;
        separatore = ",";
    }
    testo += std::string(" from ") + " AbilitazioneAccessi" + " where " + " NomeUtente = '" + utente + "'";
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
    for (const auto& [colonna, flag] : kColonne) {
        diritti.*flag = ado::toBoolean(rs[colonna]) ? kVero : kFalso;
    }
    DirittiUtente = diritti;
    ChiudiRecordset();
}

} // namespace vabo

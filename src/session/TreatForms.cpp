#include "session/TreatForms.h"

#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "platform/Forms.h"
#include "state/variabili.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <string_view>

namespace vabo {

namespace {

Q_LOGGING_CATEGORY(kForme, "vabo.forms", QtWarningMsg)

constexpr const char* kConsole = "Avvio_Azienda";

struct RigaForm {
    std::string_view nome; ///< as the asker gives it, compared letter for letter
    std::string_view form;
    bool siRiattiva;
};

// Two names open the server folder dialog; only under the first it is shown again when the form above it closes.
constexpr std::array<RigaForm, 15> kForm = {{
    {"caricasedecentrale", "caricasedecentrale", true},
    {"CondizioniPagamento", "CondizioniPagamento", true},
    {"CondizioniPagamentoDecorrenza", "CondizioniPagamentoDecorrenza", true},
    {"FormRegistraAziendeNeiDns", "FormRegistraAziendeNeiDns", true},
    {"frmcomuni", "frmComuni", true},
    {"frmDatiAzienda", "frmDatiAzienda", true},
    {"I_Iva_sezionali", "I_Iva_sezionali", true},
    {"IndirizzoVaBoSuServer", "IndirizzoVaboSuServer", true},
    {"IndirizzoVaboSuServer", "IndirizzoVaboSuServer", false},
    {"Login", "Login", true},
    {"Scegli_progetto_4", "Scegli_progetto_4", true},
    {"Scegli_sede_Pd", "Scegli_sede_Pd", true},
    {"Avvio_Morlan", "Avvio_Morlan", true},
    {"stati", "stati", true},
    {"TabelleBustePaga", "TabelleBustePaga", true},
}};

const RigaForm* Cerca(const std::string& nome) {
    const auto* riga = std::find_if(kForm.begin(), kForm.end(), [&](const RigaForm& r) { return r.nome == nome; });
    return riga == kForm.end() ? nullptr : riga;
}

void RidimensionaPila() {
    PilaForm.resize(static_cast<std::size_t>(CimaForm) + 1);
}

std::string NomeInCima() {
    const auto cima = static_cast<std::size_t>(CimaForm);
    return cima < PilaForm.size() ? PilaForm[cima] : std::string();
}

bool MostraForm(const std::string& nome) {
    const RigaForm* riga = Cerca(nome);
    if (riga == nullptr) {
        AzzeraPilaForm();
        return platform::formHost().show(kConsole);
    }
    return platform::formHost().show(riga->form);
}

// Failing statements are skipped.
void RiattivaForm(const std::string& nome) {
    const RigaForm* riga = Cerca(nome);
    if (riga == nullptr || !riga->siRiattiva) {
        AzzeraPilaForm();
        salta([] { platform::formHost().makeVisible(kConsole); });
        return;
    }
    salta([&] { platform::formHost().makeVisible(riga->form); });
}

} // namespace

bool ApriForm(const std::string& nome, bool ricorda) {
    const double cima = CimaForm;
    const std::vector<std::string> pila = PilaForm;
    if (ricorda) {
        CimaForm += 1;
        RidimensionaPila();
        PilaForm.back() = nome;
    }
    if (nome.empty()) {
        CimaForm = 0;
        PilaForm = {nome};
    }
    if (MostraForm(nome)) {
        return true;
    }
    qCInfo(kForme).noquote() << "no such form:" << QString::fromStdString(nome);
    CimaForm = cima;
    PilaForm = pila;
    return false;
}

void ApriDa(const std::string& form, const std::string& nome) {
    if (ApriForm(nome, true)) {
        platform::formHost().hide(form);
    }
}

void ChiudiForm() {
    CimaForm -= 1;
    if (CimaForm < 0 || IsEmptyValue(CimaForm)) {
        CimaForm = 0;
    }
    RidimensionaPila();
    RiattivaForm(NomeInCima());
}

// Looks at the top only; the form may also be further down.
bool FormInCima(const std::string& nome) {
    Appoggio = NomeInCima();
    return Minuscolo(Appoggio) == Minuscolo(nome);
}

void AzzeraPilaForm() {
    CimaForm = 0;
    PilaForm = {kConsole};
}

} // namespace vabo

#include "fiscal/frmDatiAzienda.h"

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/Hourglass.h"
#include "controls/ItemCombo.h"
#include "controls/Picker.h"
#include "controls/TextBox.h"
#include "fiscal/DatiAzienda.h"
#include "fiscal/IndirizzoDaComune.h"
#include "fiscal/LasciaCodici.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "session/TreatForms.h"
#include "ui_frmDatiAzienda.h"

#include <QLineEdit>

#include <utility>

namespace vabo {

frmDatiAzienda::frmDatiAzienda() : Form("frmDatiAzienda"), ui_(std::make_unique<Ui::frmDatiAzienda>()) {
    ui_->setupUi(this);
    ui_->ComboFattura->setText(kNessunaScelta);
    PulisciCampi();
    CollegaElenchi();
    CollegaOrdine();
    CollegaCodici();
    on(ui_->cmdCancel, &QPushButton::clicked, [this] {
        SalvaRecord();
        UnloadMe();
    });
    on(ui_->Command4, &QPushButton::clicked, [this] { UnloadMe(); });
    ui_->nomesocietà->setFocus();
}

frmDatiAzienda::~frmDatiAzienda() = default;

void frmDatiAzienda::CollegaElenchi() {
    ui_->DataCombo1->ListField = "des_comune";
    ui_->DataCombo1->setRowSource(ui_->comuni);
    ui_->DataCombo1->takeTypedRow();
    on(ui_->DataCombo1, &controls::DataCombo::Click, [this](int area) {
        if (area == controls::DataCombo::List) {
            controls::SetFocus(*ui_->cap);
        }
    });
    on(ui_->DataCombo1, &controls::DataCombo::GotFocus, [this] { ScegliFraIComuni(); });
    on(ui_->DataCombo1, &controls::DataCombo::LostFocus, [this] { LasciaComune(); });
    on(ui_->DataCombo1, &controls::DataCombo::DblClick, [this] { ApriComuni(); });
    new controls::Picker(*ui_->DataCombo2, *ui_->r_stati, "DescStato", "IdStato", IdStato);
    CollegaCondizione(*ui_->DCPagamento1, IdIncasso, *ui_->DCPagamento2);
    CollegaCondizione(*ui_->DCPagamento2, IDPagamento, *ui_->codice_fiscale);
}

void frmDatiAzienda::CollegaCondizione(controls::DataCombo& combo, double& chiave, QWidget& successivo) {
    const auto* scelta = new controls::Picker(combo, *ui_->CondiPagamento, "Descrizione", "IDPagamento", chiave);
    on(scelta, &controls::Picker::Picked, [&successivo] { controls::SetFocus(successivo); });
    on(&combo, &controls::DataCombo::DblClick, [this] { ApriCondizioni(); });
    on(&combo, &controls::DataCombo::GotFocus, [&combo, &chiave] {
        MostraCondizione(combo, chiave);
        combo.lineEdit()->selectAll();
    });
}

// The state isn't among them: it comes with the town.
void frmDatiAzienda::CollegaOrdine() {
    using enum controls::EndOfEntry;
    chain({{ui_->nomesocietà, EnterOrTab,
            [this] {
                if (!IsEmptyValue(ui_->nomesocietà->Text())) {
                    controls::SetFocus(*ui_->Indirizzo);
                }
            }},
           {ui_->Indirizzo, EnterOrTab, ui_->DataCombo1},
           {ui_->DataCombo1, EnterOrTab, ui_->cap},
           {ui_->cap, EnterOrTab, ui_->statooprovincia},
           {ui_->statooprovincia, EnterOrTab, ui_->DCPagamento1},
           {ui_->DCPagamento1, EnterOrTab,
            [this] { LasciaCondizione(*ui_->DCPagamento1, IdIncasso, *ui_->DCPagamento2); }},
           {ui_->DCPagamento2, EnterOrTab,
            [this] { LasciaCondizione(*ui_->DCPagamento2, IDPagamento, *ui_->codice_fiscale); }},
           {ui_->codice_fiscale, EnterOrTab, ui_->p_iva},
           {ui_->p_iva, EnterOrTab, ui_->telefonoufficio},
           {ui_->telefonoufficio, EnterOrTab, ui_->numerofax},
           {ui_->numerofax, EnterOrTab, ui_->indirizzopostaelettronica},
           {ui_->indirizzopostaelettronica, EnterOrTab, ui_->Web},
           {ui_->Web, EnterOrTab, ui_->Abi},
           {ui_->Abi, EnterOrTab, [this] { LasciaNumero(*ui_->Abi, *ui_->Cab); }},
           {ui_->Cab, EnterOrTab, [this] { LasciaNumero(*ui_->Cab, *ui_->Cin); }},
           {ui_->Cin, EnterOrTab, ui_->C_Corrente},
           {ui_->C_Corrente, EnterOrTab, ui_->Banca},
           {ui_->Banca, EnterOrTab, ui_->IBAN},
           {ui_->IBAN, EnterOrTab, ui_->BIC},
           {ui_->BIC, EnterOrTab, ui_->Intestatario},
           {ui_->Intestatario, Enter, [this] { LasciaIntestatario(); }}});
}

// A fiscal code that isn't taken keeps the focus, a VAT number doesn't.
void frmDatiAzienda::CollegaCodici() {
    on(ui_->codice_fiscale, &controls::TextBox::LostFocus, [this] {
        std::string codice = ui_->codice_fiscale->Text();
        const bool accettato = LasciaCodiceFiscale(codice, IdStato);
        ui_->codice_fiscale->setText(codice);
        if (!accettato) {
            ui_->codice_fiscale->SetFocus();
        }
    });
    on(ui_->p_iva, &controls::TextBox::GotFocus, [this] {
        ui_->p_iva->setText(PartitaIvaProposta(ui_->p_iva->Text(), ui_->codice_fiscale->Text()));
        ui_->p_iva->selectAll();
    });
    on(ui_->p_iva, &controls::TextBox::LostFocus, [this] { LasciaPartitaIva(ui_->p_iva->Text(), IdStato); });
}

void frmDatiAzienda::MostraCondizione(controls::DataCombo& combo, double chiave) {
    if (!IsEmptyValue(chiave)) {
        combo.setText(DescrizioneCondizione(chiave));
    }
}

// Without a term in hand the entry stays.
void frmDatiAzienda::LasciaCondizione(controls::DataCombo& combo, double chiave, QWidget& successivo) {
    if (!IsEmptyValue(chiave)) {
        MostraCondizione(combo, chiave);
        controls::SetFocus(successivo);
    }
}

void frmDatiAzienda::LasciaNumero(const controls::TextBox& campo, QWidget& successivo) {
    if (ado::isNumeric(campo.Text())) {
        controls::SetFocus(successivo);
    } else {
        platform::dialogs().message("Inserire un valore numerico");
    }
}

void frmDatiAzienda::LasciaIntestatario() {
    if (IsEmptyValue(ui_->Intestatario->Text())) {
        ui_->Intestatario->setText(ui_->nomesocietà->Text());
    }
    controls::SetFocus(*ui_->Check1);
}

void frmDatiAzienda::ScegliFraIComuni() {
    ui_->comuni->load(StringaAzienda, ElencoComuni());
    ui_->DataCombo1->lineEdit()->selectAll();
}

// The refresh drops the filter.
void frmDatiAzienda::LasciaComune() {
    const std::string testo = ui_->DataCombo1->Text();
    if (testo == kNessunaScelta || IsEmptyValue(testo)) {
        return;
    }
    Indirizzo indirizzo{.cap = ui_->cap->Text(), .provincia = ui_->statooprovincia->Text(), .idStato = {}};
    const auto mostra = [&] {
        ui_->cap->setText(indirizzo.cap);
        ui_->statooprovincia->setText(indirizzo.provincia);
    };
    try {
        RiempiIndirizzo(ui_->comuni->Recordset(), ui_->DataCombo1->BoundText(), indirizzo);
    } catch (...) {
        mostra(); // what was read ahead of a column that is missing
        throw;
    }
    mostra();
    if (indirizzo.idStato) {
        IdStato = *indirizzo.idStato;
        MostraStato();
    }
    ui_->comuni->Refresh();
}

// The table of the forms has that name with another capital letter only, so the company console comes up.
void frmDatiAzienda::ApriComuni() {
    platform::formHost().mark("frmComuni", "anagrafica");
    ApriForm("frmComuni", true);
}

void frmDatiAzienda::ApriCondizioni() {
    CondizioniAperte = true;
    ApriDa(Name(), "CondizioniPagamento");
}

// What the user has changed among the payment terms is seen at once. Failing statements are skipped.
void frmDatiAzienda::Activate() {
    if (!std::exchange(CondizioniAperte, false)) {
        return;
    }
    salta([this] { ui_->CondiPagamento->Refresh(); });
    MostraCondizione(*ui_->DCPagamento1, IdIncasso);
    MostraCondizione(*ui_->DCPagamento2, IDPagamento);
}

void frmDatiAzienda::Unload() {
    controls::restoreDefaultPointer();
    ChiudiForm();
}

} // namespace vabo

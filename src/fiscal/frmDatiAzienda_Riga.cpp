// The row of the company's data: read into the fields at the load, and stored.

#include "ado/Conversions.h"
#include "controls/CheckBox.h"
#include "controls/DataCombo.h"
#include "controls/TextBox.h"
#include "fiscal/DatiAzienda.h"
#include "fiscal/frmDatiAzienda.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "platform/Dialogs.h"
#include "ui_frmDatiAzienda.h"

#include <initializer_list>
#include <utility>

namespace vabo {

// Failing statements are skipped, and a failing test counts as true. No term is shown with its list: there is no key
// before the row is read.
void frmDatiAzienda::Load() {
    salta([this] { ui_->elenco->load(StringaAzienda, ElencoAzienda()); });
    salta([this] { ui_->CondiPagamento->load(StringaAzienda, CondizioniDaScegliere()); });
    salta([this] { ui_->comuni->load(StringaAzienda, ElencoComuni()); });
    salta([this] { ui_->r_stati->load(StringaAzienda, ElencoStatiPerNome()); });
    if (vera([this] { return !ui_->elenco->Recordset().EOF(); })) {
        MostraRecord();
    }
}

ado::Value frmDatiAzienda::Valore(const char* colonna) const {
    return ui_->elenco->Recordset()[colonna];
}

// Failing statements are skipped, and a failing test counts as true: the tick too, where its column is missing.
void frmDatiAzienda::MostraRecord() {
    const auto leggiChiave = [this](double& chiave, const char* colonna) {
        salta([&] { chiave = ado::toDouble(Valore(colonna)); });
    };
    if (vera([this] { return !IsEmptyValue(Valore("IDPagamento")); })) {
        leggiChiave(IDPagamento, "IDPagamento");
        ui_->DCPagamento2->setText(DescrizioneCondizione(IDPagamento));
    }
    if (vera([this] { return !IsEmptyValue(Valore("IdIncasso")); })) {
        leggiChiave(IdIncasso, "IdIncasso");
        ui_->DCPagamento1->setText(DescrizioneCondizione(IdIncasso));
    }
    MostraTesti();
    if (vera([this] { return !Valore("IdStato").isNull(); })) {
        leggiChiave(IdStato, "IdStato");
        salta([this] { MostraStato(); });
    }
    ui_->Check1->setValue(vera([this] { return !IsEmptyValue(Valore("ModuloFattura")); }) ? 1 : 0);
}

// Failing statements are skipped.
void frmDatiAzienda::MostraTesti() {
    const auto mostra = [this](const char* colonna, auto& campo) {
        salta([&] {
            const ado::Value valore = Valore(colonna);
            if (!valore.isNull()) {
                campo.setText(ado::toText(valore));
            }
        });
    };
    mostra("città", *ui_->DataCombo1);
    const std::initializer_list<std::pair<const char*, controls::TextBox*>> campi = {
        {"Nome", ui_->nomesocietà},
        {"Via", ui_->Indirizzo},
        {"cap", ui_->cap},
        {"Codicefiscale", ui_->codice_fiscale},
        {"telefonoufficio", ui_->telefonoufficio},
        {"numerofax", ui_->numerofax},
        {"indirizzopostaelettronica", ui_->indirizzopostaelettronica},
        {"sito", ui_->Web},
        {"PartitaIva", ui_->p_iva},
        {"Abi", ui_->Abi},
        {"Cab", ui_->Cab},
        {"ccorrente", ui_->C_Corrente},
        {"Cin", ui_->Cin},
        {"IBAN", ui_->IBAN},
        {"BIC", ui_->BIC},
        {"Intestatario", ui_->Intestatario},
        {"Banca", ui_->Banca}};
    for (const auto& [colonna, campo] : campi) {
        mostra(colonna, *campo);
    }
}

void frmDatiAzienda::MostraStato() {
    if (const std::optional<std::string> nome = NomeStato(IdStato)) {
        ui_->DataCombo2->setText(*nome);
    }
}

void frmDatiAzienda::PulisciCampi() {
    for (controls::TextBox* campo :
         {ui_->idContatto, ui_->nomesocietà, ui_->Indirizzo, ui_->statooprovincia, ui_->cap}) {
        campo->setText("");
    }
    ui_->DataCombo1->setText(kNessunaScelta);
    ui_->DataCombo2->setText(kNessunaScelta);
}

CampiDatiAzienda frmDatiAzienda::Campi() const {
    return {.nome = ui_->nomesocietà->Text(),
            .indirizzo = ui_->Indirizzo->Text(),
            .comune = ui_->DataCombo1->BoundText(),
            .provincia = ui_->statooprovincia->Text(),
            .cap = ui_->cap->Text(),
            .idStato = IdStato,
            .idPagamento = IDPagamento,
            .idIncasso = IdIncasso,
            .telefono = ui_->telefonoufficio->Text(),
            .fax = ui_->numerofax->Text(),
            .posta = ui_->indirizzopostaelettronica->Text(),
            .sito = ui_->Web->Text(),
            .codiceFiscale = ui_->codice_fiscale->Text(),
            .partitaIva = ui_->p_iva->Text(),
            .cab = ui_->Cab->Text(),
            .abi = ui_->Abi->Text(),
            .cin = ui_->Cin->Text(),
            .iban = ui_->IBAN->Text(),
            .bic = ui_->BIC->Text(),
            .contoCorrente = ui_->C_Corrente->Text(),
            .intestatario = ui_->Intestatario->Text(),
            .banca = ui_->Banca->Text()};
}

void frmDatiAzienda::RifiutaSenza(const char* avviso, QWidget& campo) {
    platform::dialogs().message(avviso, platform::Icon::Stop);
    controls::SetFocus(campo);
    CampoMancante = kVero;
}

void frmDatiAzienda::SalvaRecord() {
    const std::string comune = ui_->DataCombo1->Text();
    if (IsEmptyValue(ui_->nomesocietà->Text())) {
        RifiutaSenza("Attenzione nome società non inserito.", *ui_->nomesocietà);
    } else if (comune == kNessunaScelta || IsEmptyValue(comune)) {
        RifiutaSenza("Attenzione nome città non inserito.", *ui_->DataCombo1);
    } else {
        SalvaAzienda(Campi());
    }
}

} // namespace vabo

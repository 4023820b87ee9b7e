#include "payment_terms/CondizioniPagamento.h"

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataControl.h"
#include "controls/DataGrid.h"
#include "controls/Hourglass.h"
#include "controls/ItemCombo.h"
#include "controls/Picker.h"
#include "controls/TextBox.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "payment_terms/Importo.h"
#include "payment_terms/LinguaDelForm.h"
#include "payment_terms/TabellaCondizioni.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_CondizioniPagamento.h"

#include <algorithm>
#include <array>
#include <vector>

namespace vabo {

namespace {

constexpr int kColonne = 20;
constexpr std::size_t kUltima = kRate - 1;

// Of all columns the name, the number of instalments and the rule are seen.
constexpr std::array<controls::ColumnLayout, kColonne> Colonne() {
    std::array<controls::ColumnLayout, kColonne> colonne{};
    for (int posto = 0; posto < kColonne; ++posto) {
        colonne[posto] = {posto, nullptr, 0};
    }
    colonne[1].twips = 5000;
    colonne[2].twips = 1000;
    colonne[4] = {4, "Scadenze", 4000};
    colonne[18].caption = "Tipo Pagamento";
    return colonne;
}

} // namespace

CondizioniPagamento::CondizioniPagamento()
    : Form("CondizioniPagamento"), ui_(std::make_unique<Ui::CondizioniPagamento>()) {
    ui_->setupUi(this);
    scadenze_ = {ui_->Scadenza1, ui_->Scadenza2, ui_->Scadenza3, ui_->Scadenza4,  ui_->Scadenza5,  ui_->Scadenza6,
                 ui_->Scadenza7, ui_->Scadenza8, ui_->Scadenza9, ui_->Scadenza10, ui_->Scadenza11, ui_->Scadenza12};
    ui_->DataGrid1->setDataSource(ui_->CPAdo);
    ui_->DataGrid1->fillWidth();
    lingua_ = std::make_unique<LinguaDelForm>(*this, *ui_->ComboLingua, kDidascalieCondizioni);
    CollegaElenchi();
    CollegaScadenze();
    CollegaCampi();
    PulisciCampi();
    takeScreen();
}

CondizioniPagamento::~CondizioniPagamento() = default;

void CondizioniPagamento::CollegaElenchi() {
    regole_ = std::make_unique<controls::Picker>(*ui_->IDDecorrenza, *ui_->Decorrenza, "Descrizione", "IDDecorrenza",
                                                 decorrenza_);
    tipi_ = std::make_unique<controls::Picker>(*ui_->IdTipoRimessa, *ui_->TipoIncasso, "Descrizione", "IdTipoRimessa",
                                               tipoRimessa_);
    on(regole_.get(), &controls::Picker::Picked, [this] { ui_->RataAnticipo->SetFocus(); });
    on(tipi_.get(), &controls::Picker::Picked, [this] { controls::SetFocus(*ui_->Descrizione); });
    on(ui_->IDDecorrenza, &controls::DataCombo::Change, [this] { PrendiRegola(); });
    on(ui_->IDDecorrenza, &controls::DataCombo::DblClick, [this] { ApriDa(Name(), "CondizioniPagamentoDecorrenza"); });
    on(ui_->IdTipoRimessa, &controls::DataCombo::GotFocus, [this] {
        ui_->IdTipoRimessa->ReFill();
        ui_->IdTipoRimessa->lineEdit()->selectAll(); // the new list has set the text again
    });
}

void CondizioniPagamento::CollegaScadenze() {
    constexpr int kScelti = 5; // characters selected
    std::vector<controls::KeyRow> righe;
    for (std::size_t i = 0; i < kRate; ++i) {
        controls::TextBox* campo = scadenze_[i];
        campo->selectAtMost(kScelti);
        on(campo, &controls::TextBox::GotFocus, [this, campo] {
            AggiornaRate();
            campo->Select();
        });
        righe.emplace_back(campo, controls::EndOfEntry::EnterOrTab, [this, i] { LasciaScadenza(i); });
    }
    chain(std::move(righe));
    on(ui_->Scadenza12, &controls::TextBox::LostFocus, [this] {
        if (IsEmptyValue(ui_->Scadenza12->Text())) {
            controls::SetFocus(*ui_->IdTipoRimessa);
        }
    });
}

void CondizioniPagamento::CollegaCampi() {
    using controls::EndOfEntry;
    constexpr int kScelti = 255;
    chain({{ui_->IDDecorrenza, EndOfEntry::EnterOrTab, ui_->RataAnticipo},
           {ui_->RataAnticipo, EndOfEntry::EnterOrTab, [this] { LasciaAnticipo(); }},
           {ui_->IdTipoRimessa, EndOfEntry::EnterOrTab,
            [this] {
                if (!IsEmptyValue(ui_->IdTipoRimessa->Text())) {
                    controls::SetFocus(*ui_->Descrizione);
                }
            }},
           {ui_->Descrizione, EndOfEntry::EnterOrTab, [this] { LasciaDescrizione(); }}});
    ui_->Descrizione->selectAtMost(kScelti);
    on(ui_->NRrate, &controls::TextBox::GotFocus, [this] {
        AggiornaRate();
        ui_->NRrate->Select();
    });
    on(ui_->Descrizione, &controls::TextBox::GotFocus, [this] { NominaCondizione(); });
    on(ui_->DataGrid1, &controls::DataGrid::RowPicked, [this] {
        MostraRecord();
        controls::SetFocus(*ui_->IDDecorrenza);
    });
    on(ui_->Chiudi, &QPushButton::clicked, [this] { UnloadMe(); });
}

void CondizioniPagamento::Load() {
    AggiungiRataAnticipo();
    ui_->CPAdo->ConnectionString = StringaAzienda;
}

// Failing statements are skipped.
void CondizioniPagamento::Activate() {
    salta([this] { lingua_->Riprendi(); });
    NominaCampi(*ui_->Scadenza1Etichetta, scadenze_);
    ui_->CPAdo->RecordSource = ElencoCondizioni();
    salta([this] { ui_->CPAdo->Refresh(); });
    salta([this] { ui_->Decorrenza->load(StringaAzienda, ElencoRegole()); });
    salta([this] { ui_->TipoIncasso->load(StringaAzienda, ElencoTipiRimessa()); });
    salta([this] { FormattaGriglia(); });
    salta([this] { ui_->IDDecorrenza->ReFill(); });
}

void CondizioniPagamento::FormattaGriglia() {
    ui_->DataGrid1->lay(Colonne());
    lingua_->Intesta(*ui_->DataGrid1, kIntestazioniCondizioni);
}

void CondizioniPagamento::AggiornaRate() {
    CampiCondizione campi = Campi();
    vabo::AggiornaRate(campi);
    MostraCampi(campi);
}

void CondizioniPagamento::NominaCondizione() {
    AggiornaRate();
    if (IsEmptyValue(ui_->Descrizione->Text())) {
        ui_->Descrizione->setText(NomeDiRipiego(Campi()));
    }
    ui_->Descrizione->Select();
}

void CondizioniPagamento::LasciaScadenza(std::size_t posto) {
    AggiornaRate();
    const bool finita = posto == kUltima || IsEmptyValue(scadenze_[posto]->Text());
    controls::SetFocus(finita ? static_cast<QWidget&>(*ui_->IdTipoRimessa) : *scadenze_[posto + 1]);
}

// From the last field of the instalments an empty one leads to the kind again, so the way back is to the place where
// they end.
bool CondizioniPagamento::focusNextPrevChild(bool next) {
    if (next || focusWidget() != ui_->IdTipoRimessa || !IsEmptyValue(ui_->Scadenza12->Text())) {
        return Form::focusNextPrevChild(next);
    }
    TornaAlleScadenze();
    return true;
}

void CondizioniPagamento::TornaAlleScadenze() {
    const auto* fine = std::ranges::find_if(scadenze_.begin(), scadenze_.begin() + kUltima - 1,
                                            [](const auto* campo) { return IsEmptyValue(campo->Text()); });
    (*fine)->SetFocus();
}

// Without a rule: an amount that is no number keeps the focus.
void CondizioniPagamento::LasciaAnticipo() {
    ui_->RataAnticipo->setText(ImportoScritto(ui_->RataAnticipo->Text()));
    controls::SetFocus(*ui_->Scadenza1);
}

void CondizioniPagamento::LasciaDescrizione() {
    constexpr int kLunghezza = 50;
    QString nome = ui_->Descrizione->text().left(kLunghezza);
    if (nome.size() == kLunghezza && nome.back().isHighSurrogate()) {
        nome.chop(1); // half a character isn't one
    }
    ui_->Descrizione->setText(nome);
    SalvaRecord();
    controls::SetFocus(*ui_->IDDecorrenza);
}

// A text that is in the list brings its rule with it; another one leaves the rule as it is.
void CondizioniPagamento::PrendiRegola() {
    const std::string regola = ui_->IDDecorrenza->BoundText();
    if (ado::isNumeric(regola)) {
        decorrenza_ = ado::toDouble(regola);
    }
}

void CondizioniPagamento::SalvaRecord() {
    if (!SalvaCondizione({.pagamento = chiave_, .decorrenza = decorrenza_, .tipoRimessa = tipoRimessa_}, Campi())) {
        return;
    }
    chiave_ = 0;
    PulisciCampi();
    ui_->CPAdo->Refresh();
    ui_->Decorrenza->Refresh();
    ui_->TipoIncasso->Refresh();
    FormattaGriglia();
}

void CondizioniPagamento::Unload() {
    controls::restoreDefaultPointer();
    ChiudiForm();
}

} // namespace vabo

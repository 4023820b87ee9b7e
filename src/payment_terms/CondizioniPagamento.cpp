#include "payment_terms/CondizioniPagamento.h"

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataControl.h"
#include "controls/DataGrid.h"
#include "controls/ItemCombo.h"
#include "controls/Picker.h"
#include "controls/TextBox.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "payment_terms/Importo.h"
#include "payment_terms/LinguaDelForm.h"
#include "payment_terms/TabellaCondizioni.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_CondizioniPagamento.h"

#include <algorithm>
#include <array>

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

std::array<controls::TextBox*, kRate> Scadenze(const Ui::CondizioniPagamento& ui) {
    return {ui.Scadenza1, ui.Scadenza2, ui.Scadenza3, ui.Scadenza4,  ui.Scadenza5,  ui.Scadenza6,
            ui.Scadenza7, ui.Scadenza8, ui.Scadenza9, ui.Scadenza10, ui.Scadenza11, ui.Scadenza12};
}

void VaiA(QWidget* campo) {
    campo->setFocus(Qt::TabFocusReason);
}

/// Shows the name of the row that a filter leaves in the list; without one the combo stays as it is.
template<typename Regola>
void MostraScelta(Regola&& regola, controls::DataCombo& combo, controls::DataControl& elenco,
                  const std::string& filtro) {
    regola([&] { elenco.Recordset().setFilter(filtro); });
    regola([&] {
        if (!elenco.Recordset().EOF()) {
            combo.setText(ado::toText(elenco.Recordset()["Descrizione"]));
        }
    });
}

} // namespace

CondizioniPagamento::CondizioniPagamento()
    : Form("CondizioniPagamento"), ui_(std::make_unique<Ui::CondizioniPagamento>()) {
    ui_->setupUi(this);
    ui_->DataGrid1->setDataSource(ui_->CPAdo);
    ui_->DataGrid1->fillWidth();
    lingua_ = std::make_unique<LinguaDelForm>(*this, *ui_->ComboLingua, kDidascalieCondizioni);
    CollegaElenchi();
    CollegaScadenze();
    CollegaCampi();
    PulisciCampi();
    ui_->IDDecorrenza->setFocus();
    takeScreen();
}

CondizioniPagamento::~CondizioniPagamento() = default;

void CondizioniPagamento::CollegaElenchi() {
    regole_ = std::make_unique<controls::Picker>(*ui_->IDDecorrenza, *ui_->Decorrenza, "Descrizione", "IDDecorrenza",
                                                 decorrenza_);
    tipi_ = std::make_unique<controls::Picker>(*ui_->IdTipoRimessa, *ui_->TipoIncasso, "Descrizione", "IdTipoRimessa",
                                               tipoRimessa_);
    on(regole_.get(), &controls::Picker::Picked, [this] { ui_->RataAnticipo->SetFocus(); });
    on(tipi_.get(), &controls::Picker::Picked, [this] { VaiA(ui_->Descrizione); });
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
        controls::TextBox* campo = Scadenze(*ui_)[i];
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
            VaiA(ui_->IdTipoRimessa);
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
                    VaiA(ui_->Descrizione);
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
        VaiA(ui_->IDDecorrenza);
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
    NominaCampi(*ui_->Scadenza1Etichetta, Scadenze(*ui_));
    salta([this] { ui_->CPAdo->load(StringaAzienda, ElencoCondizioni()); });
    salta([this] { ui_->Decorrenza->load(StringaAzienda, ElencoRegole()); });
    salta([this] { ui_->TipoIncasso->load(StringaAzienda, ElencoTipiRimessa()); });
    salta([this] { FormattaGriglia(); });
    salta([this] { ui_->IDDecorrenza->ReFill(); });
}

void CondizioniPagamento::FormattaGriglia() {
    ui_->DataGrid1->lay(Colonne());
    lingua_->Intesta(*ui_->DataGrid1, kIntestazioniCondizioni);
}

CampiCondizione CondizioniPagamento::Campi() const {
    CampiCondizione campi{.descrizione = ui_->Descrizione->Text(),
                          .numeroRate = ui_->NRrate->Text(),
                          .decorrenza = ui_->IDDecorrenza->Text(),
                          .anticipo = ui_->RataAnticipo->Text(),
                          .tipoRimessa = ui_->IdTipoRimessa->Text()};
    std::ranges::transform(Scadenze(*ui_), campi.scadenze.begin(), &controls::TextBox::Text);
    return campi;
}

// What is worked out; the other fields are the user's.
void CondizioniPagamento::MostraCampi(const CampiCondizione& campi) {
    ui_->Descrizione->setText(campi.descrizione);
    ui_->NRrate->setText(campi.numeroRate);
    for (std::size_t i = 0; i < kRate; ++i) {
        Scadenze(*ui_)[i]->setText(campi.scadenze[i]);
    }
}

// Failing statements are skipped from the amount on. Ahead of it nothing is shown of a row that lacks a value, or the
// fields of one term would be stored under the key of another.
void CondizioniPagamento::MostraRecord() {
    ado::Recordset& rs = ui_->CPAdo->Recordset();
    const double chiave = ado::toDouble(rs["IDPagamento"]), regola = ado::toDouble(rs["IDDecorrenza"]);
    const std::string descrizione = ado::toText(rs["Descrizione"]), numeroRate = ado::toText(rs["NRrate"]);
    chiave_ = chiave;
    decorrenza_ = regola;
    ui_->IDPagamento->setText(QStringLiteral("N. ") + QString::fromStdString(ado::plainNumber(chiave)));
    ui_->Descrizione->setText(descrizione);
    ui_->NRrate->setText(numeroRate);
    MostraScelta(kSenzaRegola, *ui_->IDDecorrenza, *ui_->Decorrenza, "iddecorrenza=" + ado::plainNumber(regola));
    ui_->Decorrenza->Refresh();
    salta([&] { ui_->RataAnticipo->setText(ado::toText(rs["RataAnticipo"])); });
    for (controls::TextBox* campo : Scadenze(*ui_)) {
        salta([&] { campo->setText(ado::toText(rs[campo->objectName().toStdString()])); });
    }
    salta([&] { tipoRimessa_ = ado::toDouble(rs["IdTipoRimessa"]); });
    MostraScelta(kSaltando, *ui_->IdTipoRimessa, *ui_->TipoIncasso, "idtiporimessa=" + ado::plainNumber(tipoRimessa_));
    salta([this] { ui_->TipoIncasso->Recordset().setFilter(""); });
    CampiCondizione campi = Campi();
    TogliRateVuote(campi);
    MostraCampi(campi);
}

void CondizioniPagamento::PulisciCampi() {
    MostraCampi({});
    ui_->RataAnticipo->setText("0,00");
    decorrenza_ = 0;
    tipoRimessa_ = 0;
    ui_->IDDecorrenza->setText(kNessunaScelta);
    ui_->IdTipoRimessa->setText(kNessunaScelta);
    ui_->IDPagamento->clear();
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
    const bool finita = posto == kUltima || IsEmptyValue(Scadenze(*ui_)[posto]->Text());
    VaiA(finita ? static_cast<QWidget*>(ui_->IdTipoRimessa) : Scadenze(*ui_)[posto + 1]);
}

// Without a rule: an amount that is no number keeps the focus.
void CondizioniPagamento::LasciaAnticipo() {
    ui_->RataAnticipo->setText(ImportoScritto(ui_->RataAnticipo->Text()));
    VaiA(ui_->Scadenza1);
}

void CondizioniPagamento::LasciaDescrizione() {
    constexpr int kLunghezza = 50;
    ui_->Descrizione->setText(ui_->Descrizione->text().left(kLunghezza));
    SalvaRecord();
    VaiA(ui_->IDDecorrenza);
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
    ChiudiForm();
}

} // namespace vabo

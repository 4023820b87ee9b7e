#include "payment_terms/CondizioniPagamentoDecorrenza.h"

#include "ado/Conversions.h"
#include "controls/DataGrid.h"
#include "controls/Hourglass.h"
#include "controls/ItemCombo.h"
#include "controls/TextBox.h"
#include "kit/Regole.h"
#include "payment_terms/LinguaDelForm.h"
#include "payment_terms/TabellaDecorrenze.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_CondizioniPagamentoDecorrenza.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>

namespace vabo {

namespace {

constexpr const char* kNomeDelCampo = nullptr;

// The days keep the names of their fields, but for the last one.
constexpr std::array<controls::ColumnLayout, 9> kColonne = {{{0, kNomeDelCampo, 0},
                                                             {1, "Scadenze  ", 5000},
                                                             {2, kNomeDelCampo, 1000},
                                                             {3, kNomeDelCampo, 1000},
                                                             {4, kNomeDelCampo, 1000},
                                                             {5, "GG", 1000},
                                                             {6, "Escluso", 600},
                                                             {7, "Escluso", 600},
                                                             {8, "Escluso", 600}}};

std::array<controls::TextBox*, 4> Giorni(const Ui::CondizioniPagamentoDecorrenza& ui) {
    return {ui.GiornoScadenza, ui.GiornoScadenza1, ui.GiornoScadenza2, ui.GiornoScadenza3};
}

std::array<controls::TextBox*, 3> Mesi(const Ui::CondizioniPagamentoDecorrenza& ui) {
    return {ui.Mese1, ui.Mese2, ui.Mese3};
}

} // namespace

CondizioniPagamentoDecorrenza::CondizioniPagamentoDecorrenza()
    : Form("CondizioniPagamentoDecorrenza"), ui_(std::make_unique<Ui::CondizioniPagamentoDecorrenza>()) {
    ui_->setupUi(this);
    ui_->DataGrid1->setDataSource(ui_->Decorrenza);
    ui_->DataGrid1->fillWidth();
    lingua_ = std::make_unique<LinguaDelForm>(*this, *ui_->ComboLingua, kDidascalieDecorrenze);
    CollegaCampi();
    on(ui_->Chiudi, &QPushButton::clicked, [this] { UnloadMe(); });
    ui_->GiornoScadenza->setFocus();
    takeScreen();
}

CondizioniPagamentoDecorrenza::~CondizioniPagamentoDecorrenza() = default;

void CondizioniPagamentoDecorrenza::CollegaCampi() {
    using controls::EndOfEntry;
    chain({{ui_->GiornoScadenza, EndOfEntry::EnterOrTab, ui_->GiornoScadenza1},
           {ui_->GiornoScadenza1, EndOfEntry::EnterOrTab, ui_->GiornoScadenza2},
           {ui_->GiornoScadenza2, EndOfEntry::EnterOrTab, ui_->GiornoScadenza3},
           {ui_->GiornoScadenza3, EndOfEntry::EnterOrTab, ui_->Mese1},
           {ui_->Mese1, EndOfEntry::EnterOrTab, ui_->Mese2},
           {ui_->Mese2, EndOfEntry::EnterOrTab, ui_->Mese3},
           {ui_->Mese3, EndOfEntry::EnterOrTab, ui_->Descrizione},
           {ui_->Descrizione, EndOfEntry::EnterOrTab, [this] {
                SalvaRecord();
                ui_->GiornoScadenza->SetFocus();
            }}});
    on(ui_->Descrizione, &controls::TextBox::GotFocus, [this] { NominaRegola(); });
    on(ui_->DataGrid1, &controls::DataGrid::Click, [this] {
        MostraRecord();
        ui_->GiornoScadenza->SetFocus();
    });
}

void CondizioniPagamentoDecorrenza::Load() {
    ui_->Decorrenza->load(StringaAzienda, ElencoDecorrenze());
    FormattaGriglia();
}

// Failing statements are skipped.
void CondizioniPagamentoDecorrenza::Activate() {
    salta([this] { lingua_->Riprendi(); });
    NominaCampi(*ui_->Etichetta4, Giorni(*ui_));
    NominaCampi(*ui_->Label1, Mesi(*ui_));
    salta([this] { lingua_->Intesta(*ui_->DataGrid1, kIntestazioniDecorrenze); });
}

void CondizioniPagamentoDecorrenza::FormattaGriglia() {
    ui_->DataGrid1->lay(kColonne);
    lingua_->Intesta(*ui_->DataGrid1, kIntestazioniDecorrenze);
}

CampiDecorrenza CondizioniPagamentoDecorrenza::Campi() const {
    CampiDecorrenza campi{.descrizione = ui_->Descrizione->Text()};
    std::ranges::transform(Giorni(*ui_), campi.giorni.begin(), &controls::TextBox::Text);
    std::ranges::transform(Mesi(*ui_), campi.mesi.begin(), &controls::TextBox::Text);
    return campi;
}

void CondizioniPagamentoDecorrenza::MostraCampi(const CampiDecorrenza& campi) {
    ui_->Descrizione->setText(campi.descrizione);
    for (std::size_t i = 0; i < campi.giorni.size(); ++i) {
        Giorni(*ui_)[i]->setText(campi.giorni[i]);
    }
    for (std::size_t i = 0; i < campi.mesi.size(); ++i) {
        Mesi(*ui_)[i]->setText(campi.mesi[i]);
    }
}

// Failing statements are skipped: a field keeps what it shows where the rule has nothing for it.
void CondizioniPagamentoDecorrenza::MostraRecord() {
    const auto leggi = [this](const char* colonna) { return ui_->Decorrenza->Recordset()[colonna].Value(); };
    const auto mostra = [&](controls::TextBox* campo) {
        const std::string colonna = campo->objectName().toStdString();
        salta([&] { campo->setText(ado::toText(leggi(colonna.c_str()))); });
    };
    salta([&] { chiave_ = ado::toDouble(leggi("IDDecorrenza")); });
    mostra(ui_->Descrizione);
    std::ranges::for_each(Giorni(*ui_), mostra);
    std::ranges::for_each(Mesi(*ui_), mostra);
    CampiDecorrenza campi = Campi();
    TogliZeri(campi);
    MostraCampi(campi);
}

void CondizioniPagamentoDecorrenza::PulisciCampi() {
    chiave_ = 0;
    MostraCampi({});
}

// Without a rule: a month that can't be named ends the event, and what comes ahead of it stays in the name.
void CondizioniPagamentoDecorrenza::NominaRegola() {
    CampiDecorrenza campi = Campi();
    const auto mostra = qScopeGuard([&] {
        ui_->Descrizione->setText(campi.descrizione);
        ui_->Descrizione->Select();
    });
    ComponiNome(campi);
}

void CondizioniPagamentoDecorrenza::SalvaRecord() {
    if (SalvaDecorrenza(chiave_, Campi())) {
        PulisciCampi();
        ui_->Decorrenza->Refresh();
        FormattaGriglia();
    }
}

void CondizioniPagamentoDecorrenza::Unload() {
    controls::restoreDefaultPointer();
    ChiudiForm();
}

} // namespace vabo

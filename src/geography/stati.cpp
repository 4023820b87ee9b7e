#include "geography/stati.h"

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "controls/Hourglass.h"
#include "controls/TextBox.h"
#include "geography/ControllaData.h"
#include "geography/TabellaStati.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Riposiziona.h"
#include "kit/Testi.h"
#include "kit/Titolo.h"
#include "platform/Dialogs.h"
#include "session/TreatForms.h"
#include "ui_stati.h"

#include <array>

namespace vabo {

namespace {

constexpr const char* kNomeDelCampo = nullptr;

constexpr std::array<controls::ColumnLayout, 9> kColonne = {{{0, kNomeDelCampo, 0},
                                                             {1, "Stato", 3000},
                                                             {2, "Istituzione Stato", 1500},
                                                             {3, "Soppressione Stato", 1500},
                                                             {4, "ISO valuta", 1200},
                                                             {5, kNomeDelCampo, 0},
                                                             {6, kNomeDelCampo, 0},
                                                             {7, kNomeDelCampo, 0},
                                                             {8, kNomeDelCampo, 2500}}};

} // namespace

stati::stati() : Form("stati"), ui_(std::make_unique<Ui::stati>()) {
    ui_->setupUi(this);
    ui_->DataGrid1->setDataSource(ui_->elenco);
    ui_->DataGrid1->fillWidth();
    ui_->DataCombo1->ListField = "Descrizione";
    ui_->DataCombo1->setRowSource(ui_->areaGeo);
    ui_->DataCombo1->takeFreeText();
    PulisciCampi();
    CollegaCampi();
    on(ui_->DataGrid1, &controls::DataGrid::RowPicked, [this] { ScegliRiga(); });
    on(ui_->Command1, &QPushButton::clicked, [this] { ScriviNuovo(); });
    on(ui_->Command4, &QPushButton::clicked, [this] { Chiudi(); });
    ui_->DescStato->setFocus();
    takeScreen();
}

stati::~stati() = default;

void stati::CollegaCampi() {
    using controls::EndOfEntry;
    chain({{ui_->DescStato, EndOfEntry::Enter, ui_->DataCombo1},
           {ui_->DataCombo1, EndOfEntry::Enter, ui_->DataIstituzioneStato},
           {ui_->DataIstituzioneStato, EndOfEntry::Enter, ui_->DataSoppressioneStato},
           {ui_->DataSoppressioneStato, EndOfEntry::Enter, ui_->IsoValuta},
           {ui_->IsoValuta, EndOfEntry::Enter, ui_->DescStato}});
    on(ui_->DataCombo1, &controls::DataCombo::Click, [this](int area) {
        if (area == controls::DataCombo::List) {
            ui_->DataIstituzioneStato->SetFocus();
        }
    });
    on(ui_->DataIstituzioneStato, &controls::TextBox::LostFocus, [this] { LasciaDate(*ui_->DataIstituzioneStato); });
    on(ui_->DataSoppressioneStato, &controls::TextBox::LostFocus, [this] { LasciaSoppressione(); });
    on(ui_->IsoValuta, &controls::TextBox::LostFocus, [this] { LasciaValuta(); });
}

void stati::Load() {
    setWindowTitle(QString::fromUtf8(kTitolo));
    ui_->areaGeo->load(StringaAzienda, ElencoZone());
    ui_->elenco->load(StringaAzienda, ElencoStati());
    FormattaGriglia();
}

void stati::FormattaGriglia() {
    ui_->DataGrid1->lay(kColonne);
}

// A field keeps what it shows where the row has nothing for it; the dates and the currency don't.
void stati::MostraRecord() {
    ado::Recordset& rs = ui_->elenco->Recordset();
    if (IsEmptyValue(rs["IdStato"])) {
        return;
    }
    chiave_ = ado::toDouble(rs["IdStato"]);
    if (!rs["DescStato"].Value().isNull()) {
        ui_->DescStato->setText(ado::toText(rs["DescStato"]));
    }
    ui_->DataIstituzioneStato->setText(Pezzo(rs["DataIstituzioneStato"]));
    ui_->DataSoppressioneStato->setText(Pezzo(rs["DataSoppressioneStato"]));
    ui_->IsoValuta->setText(IsEmptyValue(rs["IsoValuta"]) ? std::string() : ado::toText(rs["IsoValuta"]));
    if (!IsEmptyValue(rs["Area"])) {
        ui_->DataCombo1->setText(ado::toText(rs["Area"]));
    }
}

void stati::PulisciCampi() {
    chiave_ = 0;
    ui_->DescStato->setText(kNessunaScelta);
    ui_->DataCombo1->setText(kNessunaScelta);
    for (controls::TextBox* campo : {ui_->IsoValuta, ui_->DataIstituzioneStato, ui_->DataSoppressioneStato}) {
        campo->setText("");
    }
}

CampiStato stati::Campi() const {
    return {.nome = ui_->DescStato->Text(),
            .area = ui_->DataCombo1->Text(),
            .istituzione = ui_->DataIstituzioneStato->Text(),
            .soppressione = ui_->DataSoppressioneStato->Text(),
            .isoValuta = ui_->IsoValuta->Text()};
}

// Without a rule until the row is open.
void stati::SalvaRecord() {
    const CampiStato campi = Campi();
    if (NomeMancante(campi.nome)) {
        return;
    }
    if (Nuovo && GiaInserito(ui_->elenco->Recordset(), campi.nome)) {
        RifiutaDuplicato();
        return;
    }
    SalvaStato(chiave_, campi);
    RileggiElenchi();
}

void stati::RifiutaDuplicato() {
    ui_->elenco->Refresh();
    FormattaGriglia();
    platform::dialogs().message("Stato con questo nome già inserito");
    PulisciCampi();
    Duplicato = kVero;
}

// Failing statements are skipped. Behind a new state the list is filtered to nothing and has no position: its grid then
// stands ahead of its first row.
void stati::RileggiElenchi() {
    salta([this] { ui_->areaGeo->Refresh(); });
    salta([this] { ui_->DataCombo1->ReFill(); });
    ChiudiRecordset();
    long posizione = 0;
    salta([&] { posizione = ui_->elenco->Recordset().AbsolutePosition(); });
    salta([this] { ui_->elenco->Refresh(); });
    Riposiziona(*ui_->elenco, posizione - 1);
    salta([this] { FormattaGriglia(); });
}

// A date that is refused keeps the focus.
void stati::LasciaDate(controls::TextBox& campo) {
    std::string data = campo.Text();
    switch (LasciaData(data)) {
    case DataLasciata::Vuota:
        break;
    case DataLasciata::Rifiutata:
        campo.SetFocus();
        break;
    case DataLasciata::Scritta:
        campo.setText(data);
        break;
    }
}

// The entry goes on to the currency, a refused date included.
void stati::LasciaSoppressione() {
    LasciaDate(*ui_->DataSoppressioneStato);
    ui_->IsoValuta->setEnabled(true);
    ui_->IsoValuta->SetFocus();
}

void stati::LasciaValuta() {
    Duplicato = kFalso;
    SalvaRecord();
    if (Duplicato == kFalso) {
        ScriviNuovo();
    }
}

void stati::ScegliRiga() {
    if (!ui_->elenco->Recordset().EOF()) {
        Nuovo = false;
        MostraRecord();
        ui_->DescStato->SetFocus();
    }
}

void stati::ScriviNuovo() {
    PulisciCampi();
    Nuovo = true;
    ui_->DescStato->SetFocus();
}

// Without a rule: names that can't be purged keep the form.
void stati::Chiudi() {
    EliminaStatiSenzaNome();
    ChiudiRecordset();
    UnloadMe();
}

void stati::Unload() {
    controls::restoreDefaultPointer();
    ChiudiForm();
}

} // namespace vabo

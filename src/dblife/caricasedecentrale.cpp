#include "dblife/caricasedecentrale.h"

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "controls/TextBox.h"
#include "dblife/SedeCentrale.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "kit/Titolo.h"
#include "session/ScegliFolder.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_caricasedecentrale.h"

#include <array>
#include <optional>
#include <utility>

namespace vabo {

namespace {

constexpr const char* kNomeDelCampo = nullptr;

constexpr std::array<controls::ColumnLayout, 7> kColonne = {{{0, kNomeDelCampo, 0},
                                                             {1, kNomeDelCampo, 2500},
                                                             {2, kNomeDelCampo, 4000},
                                                             {3, kNomeDelCampo, 1500},
                                                             {4, kNomeDelCampo, 0},
                                                             {5, kNomeDelCampo, 0},
                                                             {6, "Stato", 2500}}};

} // namespace

caricasedecentrale::caricasedecentrale() : Form("caricasedecentrale"), ui_(std::make_unique<Ui::caricasedecentrale>()) {
    ui_->setupUi(this);
    ui_->DataGrid1->setDataSource(ui_->elenco);
    ui_->DataGrid1->fillWidth();
    ui_->DCStato->ListField = "Descstato";
    ui_->DCStato->BoundColumn = "idstato";
    ui_->DCStato->setRowSource(ui_->AdcStati);
    ui_->DCStato->setText(kNessunaScelta);
    CollegaCampi();
    on(ui_->DataGrid1, &controls::DataGrid::RowPicked, [this] { MostraRecord(); });
    on(ui_->Command1, &QPushButton::clicked, [this] { Applica(); });
    on(ui_->Command7, &QPushButton::clicked, [this] { UnloadMe(); });
    ui_->DataGrid1->setFocus();
    takeScreen();
}

caricasedecentrale::~caricasedecentrale() = default;

void caricasedecentrale::CollegaCampi() {
    using controls::EndOfEntry;
    chain({{ui_->città, EndOfEntry::Enter, ui_->Indirizzo},
           {ui_->Indirizzo, EndOfEntry::Enter, ui_->cap},
           {ui_->cap, EndOfEntry::Enter, ui_->statooprovincia},
           {ui_->statooprovincia, EndOfEntry::Enter, ui_->DCStato},
           {ui_->DCStato, EndOfEntry::Enter, ui_->telefonoufficio},
           {ui_->telefonoufficio, EndOfEntry::Enter, ui_->numerofax},
           {ui_->numerofax, EndOfEntry::Enter, ui_->indirizzopostaelettronica},
           {ui_->indirizzopostaelettronica, EndOfEntry::Enter, ui_->Note},
           {ui_->Note, EndOfEntry::Enter, ui_->Command1}});
}

// The list of states without a rule; then failing statements are skipped.
void caricasedecentrale::Load() {
    setWindowTitle(QString::fromUtf8(kTitolo));
    ui_->AdcStati->load(StringaAzienda, ElencoStatiSede());
    salta([this] { ui_->elenco->load(StringaAzienda, ElencoSediConStato()); });
    salta([this] { FormattaGriglia(); });
}

void caricasedecentrale::FormattaGriglia() {
    ui_->DataGrid1->lay(kColonne);
}

// Failing statements are skipped. A field keeps what it shows where the branch has nothing for it; the address always
// does.
void caricasedecentrale::MostraRecord() {
    const std::initializer_list<std::pair<const char*, controls::TextBox*>> campi = {
        {"città", ui_->città},
        {"cap", ui_->cap},
        {"telefonoufficio", ui_->telefonoufficio},
        {"numerofax", ui_->numerofax},
        {"indirizzopostaelettronica", ui_->indirizzopostaelettronica},
        {"Note", ui_->Note},
        {"statooprovincia", ui_->statooprovincia}};
    salta([this] { IdSedeCorrente = ado::toDouble(ui_->elenco->Recordset()["IdSede"]); });
    ado::Recordset rs;
    salta([&] { rs.Open(SedeScelta(IdSedeCorrente), DbAzienda); });
    for (const auto& [colonna, campo] : campi) {
        if (vera([&, nome = colonna] { return !IsEmptyValue(rs[nome]); })) {
            salta([&, nome = colonna, casella = campo] { casella->setText(ado::toText(rs[nome])); });
        }
    }
    salta([&] { IdStatoCorrente = ado::toDouble(rs["IdStato"]); });
    MostraStato();
}

// Failing statements are skipped.
void caricasedecentrale::MostraStato() {
    if (IsEmptyValue(IdStatoCorrente)) {
        ui_->DCStato->setText(kNessunaScelta);
        return;
    }
    ado::Recordset rs;
    salta([&] { rs.Open(StatoDellaSede(IdStatoCorrente), DbAzienda); });
    salta([&] { ui_->DCStato->setText(ado::toText(rs["DescStato"])); });
}

CampiSede caricasedecentrale::Campi() const {
    return {.citta = ui_->città->Text(),
            .indirizzo = ui_->Indirizzo->Text(),
            .statoOProvincia = ui_->statooprovincia->Text(),
            .cap = ui_->cap->Text(),
            .telefono = ui_->telefonoufficio->Text(),
            .fax = ui_->numerofax->Text(),
            .posta = ui_->indirizzopostaelettronica->Text(),
            .note = ui_->Note->Text()};
}

// Without a rule. What stands ahead of a failure stays written. The state stored is the branch's, whatever the list
// shows.
void caricasedecentrale::Applica() {
    if (IsEmptyValue(IdSedeCorrente)) {
        return;
    }
    std::optional<std::string> cartella;
    do {
        AnnunciaCartellaServer();
        cartella = ScegliCartellaServer();
    } while (cartella && IsEmptyValue(*cartella));
    if (!cartella) {
        return;
    }
    SalvaSedeCentrale(IdSedeCorrente, IdStatoCorrente, Campi());
    ScriviPuntatoriCartella(*cartella);
    ChiudiRecordset();
    SalvaCartelleSede(*cartella);
}

void caricasedecentrale::Unload() {
    ChiudiForm();
}

} // namespace vabo

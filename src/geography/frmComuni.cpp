#include "geography/frmComuni.h"

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "controls/Hourglass.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "geography/RiempiCap.h"
#include "geography/TabellaComuni.h"
#include "kit/ErrorHandling.h"
#include "kit/Filtra.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "kit/Titolo.h"
#include "platform/Dialogs.h"
#include "session/TreatForms.h"
#include "ui_frmComuni.h"

#include <array>

namespace vabo {

namespace {

constexpr const char* kNomeDelCampo = nullptr;

constexpr std::array<controls::ColumnLayout, 6> kColonne = {{{0, kNomeDelCampo, 0},
                                                             {1, "Comune", 5000},
                                                             {2, "Provincia", 700},
                                                             {3, "CAP", 900},
                                                             {4, kNomeDelCampo, 0},
                                                             {5, "Stato", 2000}}};

constexpr double kItalia = 1;

} // namespace

frmComuni::frmComuni() : Form("frmComuni"), ui_(std::make_unique<Ui::frmComuni>()) {
    ui_->setupUi(this);
    ui_->DataGrid1->setDataSource(ui_->elenco);
    ui_->DataGrid1->fillWidth();
    ui_->DataCombo1->ListField = "DescStato";
    ui_->DataCombo1->BoundColumn = "IdStato";
    ui_->DataCombo1->setRowSource(ui_->r_stati);
    ui_->DataCombo1->takeTypedRow();
    CollegaCampi();
    CollegaStato();
    on(ui_->DataGrid1, &controls::DataGrid::RowPicked, [this] { ScegliRiga(); });
    on(ui_->Command1, &QPushButton::clicked, [this] { ScriviNuovo(); });
    on(ui_->Command4, &QPushButton::clicked, [this] { UnloadMe(); });
    on(ui_->Timer1, &controls::Timer::Tick, [this] { LeggiStati(); });
    ui_->Timer1->start(1);
    ui_->DES_COMUNE->setFocus();
    takeScreen();
}

frmComuni::~frmComuni() = default;

// A province comes ahead of the postal code.
void frmComuni::CollegaCampi() {
    using controls::EndOfEntry;
    chain({{ui_->DES_COMUNE, EndOfEntry::EnterOrTab, ui_->DES_PROVIN},
           {ui_->DES_PROVIN, EndOfEntry::EnterOrTab, ui_->COD_CAP},
           {ui_->COD_CAP, EndOfEntry::EnterOrTab, ui_->DataCombo1},
           {ui_->DataCombo1, EndOfEntry::EnterOrTab, ui_->DES_COMUNE}});
    on(ui_->COD_CAP, &controls::TextBox::GotFocus, [this] {
        if (IsEmptyValue(ui_->DES_PROVIN->Text())) {
            ui_->DES_PROVIN->SetFocus();
        }
    });
}

void frmComuni::CollegaStato() {
    using controls::DataCombo;
    on(ui_->DataCombo1, &DataCombo::Click, [this](int area) { ScegliStato(area); });
    on(ui_->DataCombo1, &DataCombo::Change, [this] { CambiaStato(); });
    on(ui_->DataCombo1, &DataCombo::GotFocus, [this] {
        if (!ado::isNumeric(ui_->COD_CAP->Text())) {
            ui_->COD_CAP->SetFocus();
        }
    });
    on(ui_->DataCombo1, &DataCombo::LostFocus, [this] { LasciaStato(); });
    on(ui_->DataCombo1, &DataCombo::DblClick, [] { ApriDa("frmComuni", "stati"); });
}

void frmComuni::Load() {
    setWindowTitle(QString::fromUtf8(kTitolo));
    ui_->r_stati->load(StringaAzienda, ElencoStatiDeiComuni());
    ui_->elenco->load(StringaAzienda, ElencoComuniConStati());
    FormattaGriglia();
}

void frmComuni::FormattaGriglia() {
    ui_->DataGrid1->lay(kColonne);
}

// Once, right after the form shows.
void frmComuni::LeggiStati() {
    ui_->Timer1->stop();
    const controls::Hourglass clessidra;
    ado::Recordset& stati = ui_->r_stati->Recordset();
    stati.Requery();
    ui_->DataCombo1->ReFill();
    if (Filtra(stati, "descstato", ui_->DataCombo1->Text())) {
        IdStato = StatoDellaRiga(stati);
    } else {
        ui_->DataCombo1->setText(kNessunaScelta);
        IdStato = 0;
    }
    ui_->r_stati->Refresh();
}

// A field keeps what it shows where the row has nothing for it. The state's name is set last: where two states have it,
// the list's first one counts.
void frmComuni::MostraRecord() {
    ado::Recordset& rs = ui_->elenco->Recordset();
    if (!rs["idautonumber"].Value().isNull()) {
        chiave_ = ado::toDouble(rs["idautonumber"]);
        ui_->DES_COMUNE->setText(Pezzo(rs["DES_COMUNE"]));
    }
    if (!rs["DES_PROVIN"].Value().isNull()) {
        ui_->DES_PROVIN->setText(ado::toText(rs["DES_PROVIN"]));
    }
    if (!rs["COD_CAP"].Value().isNull()) {
        const QString cap = QString::fromStdString(ado::toText(rs["COD_CAP"]));
        ui_->COD_CAP->setText(RiempiCap(cap, cap));
    }
    IdStato = StatoDellaRiga(rs);
    if (!rs["DescStato"].Value().isNull()) {
        ui_->DataCombo1->setText(ado::toText(rs["DescStato"]));
    }
}

// The state stays for the next municipality, though its name doesn't.
void frmComuni::PulisciCampi() {
    chiave_ = 0;
    for (controls::TextBox* campo : {ui_->DES_COMUNE, ui_->DES_PROVIN, ui_->COD_CAP}) {
        campo->setText("");
    }
    ui_->DataCombo1->setText(kNessunaScelta);
}

CampiComune frmComuni::Campi() const {
    return {.nome = ui_->DES_COMUNE->Text(),
            .provincia = ui_->DES_PROVIN->Text(),
            .cap = ui_->COD_CAP->Text(),
            .idStato = IdStato.value_or(0)};
}

// Without a rule until the row is open.
void frmComuni::SalvaRecord() {
    const CampiComune campi = Campi();
    if (IsEmptyValue(campi.nome)) {
        return;
    }
    if (IsEmptyValue(campi.idStato)) {
        IdStato = kItalia;
    }
    if (Nuovo && ComuneGiaInserito(ui_->elenco->Recordset(), campi.nome)) {
        RifiutaDuplicato();
        return;
    }
    SalvaComune(chiave_, Campi());
    RileggiElenco();
}

void frmComuni::RifiutaDuplicato() {
    ui_->elenco->Refresh();
    FormattaGriglia();
    platform::dialogs().message("Comune con questo nome già inserito");
    PulisciCampi();
    Duplicato = kVero;
}

// Failing statements are skipped.
void frmComuni::RileggiElenco() {
    ChiudiRecordset();
    salta([this] { ui_->elenco->Recordset().Requery(); });
    salta([this] { ui_->elenco->load(StringaAzienda, ElencoComuniRiletto()); });
    salta([this] { FormattaGriglia(); });
}

void frmComuni::ScegliStato(int area) {
    if (area == controls::DataCombo::List) {
        IdStato = ado::toDouble(ui_->DataCombo1->BoundText());
        ui_->DES_COMUNE->SetFocus();
    }
}

void frmComuni::CambiaStato() {
    const std::string stato = ui_->DataCombo1->BoundText();
    if (ado::isNumeric(stato)) {
        IdStato = ado::toDouble(stato);
    }
}

// A row without a state isn't one whose state is 0: it is stored, with the first state.
void frmComuni::LasciaStato() {
    if (!ado::isNumeric(ui_->COD_CAP->Text())) {
        ui_->COD_CAP->SetFocus();
        return;
    }
    if (IdStato == 0.0) {
        return;
    }
    Duplicato = kFalso;
    {
        const controls::Hourglass clessidra;
        SalvaRecord();
    }
    if (Duplicato == kFalso) {
        ScriviNuovo();
    }
}

void frmComuni::ScegliRiga() {
    if (!ui_->elenco->Recordset().EOF()) {
        Nuovo = false;
        MostraRecord();
        ui_->DES_COMUNE->SetFocus();
    }
}

void frmComuni::ScriviNuovo() {
    Nuovo = true;
    PulisciCampi();
    ui_->DES_COMUNE->SetFocus();
}

void frmComuni::Unload() {
    controls::restoreDefaultPointer();
    ChiudiForm();
}

} // namespace vabo

#include "fiscal/I_Iva_sezionali.h"

#include "ado/Conversions.h"
#include "ado/Text.h"
#include "controls/DataControl.h"
#include "controls/DataGrid.h"
#include "controls/Hourglass.h"
#include "controls/ItemCombo.h"
#include "controls/TextBox.h"
#include "fiscal/SezionaliIva.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_I_Iva_sezionali.h"

#include <array>

namespace vabo {

namespace {

constexpr const char* kNomeDelCampo = nullptr;

// The last date of the purchases is headed as that of the sales, and the other way round.
constexpr std::array<controls::ColumnLayout, 7> kColonne = {{{0, kNomeDelCampo, 0},
                                                             {1, " Sez.\n Gest.Iva", 1000},
                                                             {2, "   descrizione \n    ", 2000},
                                                             {3, kNomeDelCampo, 2000},
                                                             {4, "    Data\nDef.Vend.", 1000, Qt::AlignRight},
                                                             {5, "    Data\nDef.Acq.", 1000, Qt::AlignRight},
                                                             {6, kNomeDelCampo, 700}}};

constexpr std::int32_t kMensile = 1, kTrimestrale = 3;

void MostraSePieno(controls::TextBox& campo, const ado::Value& valore, bool senzaSpazi = false) {
    if (!IsEmptyValue(valore)) {
        const std::string testo = ado::toText(valore);
        campo.setText(senzaSpazi ? std::string(ado::trimmed(testo, " ")) : testo);
    }
}

} // namespace

I_Iva_sezionali::I_Iva_sezionali() : Form("I_Iva_sezionali"), ui_(std::make_unique<Ui::I_Iva_sezionali>()) {
    ui_->setupUi(this);
    ui_->DataGrid1->setDataSource(ui_->IvaSezionale);
    ui_->DataGrid1->fillWidth();
    ui_->Combo2->setText(kNessunaScelta);
    CollegaCampi();
    CollegaComandi();
    ui_->Descrizione->setFocus();
    takeScreen();
}

I_Iva_sezionali::~I_Iva_sezionali() = default;

// A field is left only where it is filled.
void I_Iva_sezionali::CollegaCampi() {
    using controls::EndOfEntry;
    const auto avanti = [](controls::TextBox* campo, QWidget* successivo) {
        return [campo, successivo] {
            if (!IsEmptyValue(campo->Text())) {
                controls::SetFocus(*successivo);
            }
        };
    };
    chain({{ui_->Descrizione, EndOfEntry::EnterOrTab, avanti(ui_->Descrizione, ui_->AreaAttività)},
           {ui_->AreaAttività, EndOfEntry::EnterOrTab, avanti(ui_->AreaAttività, ui_->NSezionale)},
           {ui_->NSezionale, EndOfEntry::EnterOrTab, [this] { SalvaRecord(); }}});
    on(ui_->DataGrid1, &controls::DataGrid::RowPicked, [this] { MostraRecord(); });
    on(ui_->IvaSezionale, &controls::DataControl::moved, [this] { MostraPosizione(); });
}

void I_Iva_sezionali::CollegaComandi() {
    const auto comando = [this](QPushButton* pulsante, auto eseguito) {
        on(pulsante, &QPushButton::clicked, [this, eseguito] {
            if (eseguito()) {
                Rileggi();
            }
        });
    };
    comando(ui_->Command1, [this] { return AzzeraContatori(Registro::Acquisti, SezionaleCorrente); });
    comando(ui_->Command2, [this] { return AzzeraContatori(Registro::Vendite, SezionaleCorrente); });
    comando(ui_->Command4, [] { return RiportaAnno(); });
    comando(ui_->Command5, [this] { return AggiungiSezionale(Campi(), SezionaleCorrente); });
    on(ui_->Combo2, &controls::ItemCombo::Click, [this] { CambiaPeriodo(); });
    on(ui_->Command3, &QPushButton::clicked, [this] { Elimina(); });
    on(ui_->cmdClose, &QPushButton::clicked, [this] { UnloadMe(); });
}

void I_Iva_sezionali::Load() {
    AggiungiColonneSezionali();
    ui_->IvaSezionale->load(StringaAzienda, ElencoSezionali());
    FormattaGriglia();
    ui_->Combo2->addItem("Mensile", kMensile);
    ui_->Combo2->addItem("Trimestrale", kTrimestrale);
}

void I_Iva_sezionali::FormattaGriglia() {
    ui_->DataGrid1->lay(kColonne);
}

void I_Iva_sezionali::Rileggi() {
    ui_->IvaSezionale->Refresh();
    FormattaGriglia();
    MostraPosizione();
}

// Empty where the list stands on no row.
void I_Iva_sezionali::MostraPosizione() {
    const long posizione = ui_->IvaSezionale->Recordset().AbsolutePosition();
    ui_->didascalia->setText(posizione > 0 ? QStringLiteral("Record: ") + QString::number(posizione) : QString());
}

// A field keeps what it shows where the section has nothing for it.
void I_Iva_sezionali::MostraRecord() {
    ado::Recordset& rs = ui_->IvaSezionale->Recordset();
    MostraPosizione();
    const ado::Value chiave = rs["IdAutonumber"];
    if (IsEmptyValue(chiave)) {
        return;
    }
    SezionaleCorrente = ado::toDouble(chiave);
    MostraSePieno(*ui_->Descrizione, rs["Descrizione"]);
    MostraSePieno(*ui_->AreaAttività, rs["AreaAttivita"], true);
    MostraSePieno(*ui_->NSezionale, rs["id"]);
}

void I_Iva_sezionali::PulisciCampi() {
    SezionaleCorrente = 0;
    for (controls::TextBox* campo : {ui_->Descrizione, ui_->NSezionale, ui_->AreaAttività}) {
        campo->setText("");
    }
}

CampiSezionale I_Iva_sezionali::Campi() const {
    return {.numero = ui_->NSezionale->Text(),
            .descrizione = ui_->Descrizione->Text(),
            .areaAttivita = ui_->AreaAttività->Text()};
}

// Where the second of its statements fails, the sections have their new period already.
void I_Iva_sezionali::CambiaPeriodo() {
    try {
        if (!CambiaLiquidazione(ui_->Combo2->ItemData())) {
            return;
        }
    } catch (const ado::Error&) {
        salta([this] { Rileggi(); });
        throw;
    }
    Rileggi();
}

void I_Iva_sezionali::SalvaRecord() {
    if (SalvaSezionale(Campi())) {
        PulisciCampi();
        Rileggi();
    }
}

// The position counts from 1, the move from the first row: the grid ends one row below the one that was deleted.
void I_Iva_sezionali::Elimina() {
    if (!EliminaSezionale(SezionaleCorrente)) {
        return;
    }
    const ado::Recordset& rs = ui_->IvaSezionale->Recordset();
    const long posizione = rs.EOF() ? rs.AbsolutePosition() - 1 : rs.AbsolutePosition();
    Rileggi();
    ui_->IvaSezionale->Recordset().MoveFromFirst(posizione);
    SezionaleCorrente = 0;
}

void I_Iva_sezionali::Unload() {
    controls::restoreDefaultPointer();
    ChiudiForm();
}

} // namespace vabo

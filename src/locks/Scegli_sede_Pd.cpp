#include "locks/Scegli_sede_Pd.h"

#include "ado/Conversions.h"
#include "geography/ControllaData.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Testi.h"
#include "kit/Titolo.h"
#include "locks/BloccoSede.h"
#include "locks/Corsa.h"
#include "locks/TestiSede.h"
#include "platform/Dialogs.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_Scegli_sede_Pd.h"

namespace vabo {

// Without a rule of its own: an error ends the event where it stands.
Scegli_sede_Pd::Scegli_sede_Pd() : Form("Scegli_sede_Pd"), ui_(std::make_unique<Ui::Scegli_sede_Pd>()) {
    using controls::EndOfEntry;
    ui_->setupUi(this);
    Corsa::Nascondi(*ui_->ProgressBar1);
    ui_->Combo1->setText(kNessunaScelta);
    chain({{ui_->Combo1, EndOfEntry::EnterOrTab, ui_->DataInizio},
           {ui_->DataInizio, EndOfEntry::Enter, [this] { ConfermaData(); }}});
    on(ui_->Combo1, &controls::ItemCombo::Click, [this] { ScegliSede(); });
    on(ui_->DataInizio, &controls::TextBox::GotFocus, [this] { MostraData(); });
    on(ui_->Command1, &QPushButton::clicked, [this] { Blocca(); });
    on(ui_->Command4, &QPushButton::clicked, [this] { UnloadMe(); });
}

Scegli_sede_Pd::~Scegli_sede_Pd() = default;

void Scegli_sede_Pd::Load() {
    setWindowTitle(QString::fromStdString(ConVersione(kTitolo)));
    ado::Recordset rs;
    for (rs.Open(ElencoSediDaBloccare(), DbAzienda); !rs.EOF(); rs.MoveNext()) {
        ui_->Combo1->addItem(Pezzo(rs["città"]) + "   -   " + Pezzo(rs["descstato"]), ado::toLong(rs["idsede"]));
    }
    rs.Close();
}

void Scegli_sede_Pd::Unload() {
    ChiudiForm();
}

void Scegli_sede_Pd::ScegliSede() {
    IdSedeScelta = ui_->Combo1->ItemData();
    ui_->DataInizio->setFocus(Qt::TabFocusReason);
}

// A branch without a date leaves the text as it is.
void Scegli_sede_Pd::MostraData() {
    if (IsEmptyValue(IdSedeScelta)) {
        return;
    }
    if (const auto data = LeggiDataSede(IdSedeScelta)) {
        ui_->DataInizio->setText(*data);
        ui_->DataInizio->selectAll();
    }
}

// A date that is refused is compared all the same.
void Scegli_sede_Pd::ConfermaData() {
    std::string data = ui_->DataInizio->Text();
    if (LasciaData(data) == DataLasciata::Scritta) {
        ui_->DataInizio->setText(data);
    } else {
        ui_->DataInizio->selectAll();
    }
    if (NonDopoIlBilancio(ui_->DataInizio->Text())) {
        Rifiuta();
    } else {
        ui_->Command1->setFocus(Qt::TabFocusReason);
    }
}

void Scegli_sede_Pd::Rifiuta() {
    platform::dialogs().message("Data inferiore alla data del Bilancio");
    ui_->DataInizio->setFocus(Qt::TabFocusReason);
}

void Scegli_sede_Pd::Blocca() {
    const std::string data = ui_->DataInizio->Text();
    if (IsEmptyValue(IdSedeScelta) || IsEmptyValue(data) ||
        !platform::dialogs().question("Blocco la contabilità sino alla data " + data + " ?") || !ado::isDate(data)) {
        return;
    }
    if (PrimaDelBilancio(data)) {
        Rifiuta();
        return;
    }
    {
        Corsa corsa(*this, *ui_->ProgressBar1);
        BloccaSede(IdSedeScelta, data, corsa);
    }
    IdSedeScelta = 0;
    ui_->Combo1->setText(kNessunaScelta);
    ui_->DataInizio->clear();
    ChiudiRecordset();
    ui_->Combo1->setFocus(Qt::TabFocusReason);
}

} // namespace vabo

#include "locks/Scegli_progetto_4.h"

#include "ado/Conversions.h"
#include "geography/ControllaData.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Testi.h"
#include "locks/BloccoProgetto.h"
#include "locks/Corsa.h"
#include "session/TreatForms.h"
#include "state/variabili.h"
#include "ui_Scegli_progetto_4.h"

namespace vabo {

Scegli_progetto_4::Scegli_progetto_4() : Form("Scegli_progetto_4"), ui_(std::make_unique<Ui::Scegli_progetto_4>()) {
    using controls::EndOfEntry;
    ui_->setupUi(this);
    Corsa::Nascondi(*ui_->ProgressBar1);
    ui_->Combo1->setText(kNessunaScelta);
    chain({{ui_->Combo1, EndOfEntry::EnterOrTab, ui_->iddateend},
           {ui_->iddateend, EndOfEntry::EnterOrTab, [this] { ConfermaData(); }}});
    on(ui_->Combo1, &controls::ItemCombo::Click, [this] { ScegliProgetto(); });
    on(ui_->Command1, &QPushButton::clicked, [this] { Aggiorna(); });
    on(ui_->Command4, &QPushButton::clicked, [this] { UnloadMe(); });
}

Scegli_progetto_4::~Scegli_progetto_4() = default;

// None is chosen in a new list, whatever the last one was left with.
void Scegli_progetto_4::Load() {
    IdProgettoScelto = 0;
    ui_->elenco->load(StringaAzienda, "Select id,titolobreve,IdDate from progetti  order by  titolobreve");
    for (ado::Recordset& rs = ui_->elenco->Recordset(); !rs.EOF(); rs.MoveNext()) {
        ui_->Combo1->addItem(Pezzo(rs["titolobreve"]) + "   -   " + Pezzo(rs["id"]), ado::toLong(rs["id"]));
    }
}

void Scegli_progetto_4::Unload() {
    ChiudiForm();
}

void Scegli_progetto_4::ScegliProgetto() {
    IdProgettoScelto = ui_->Combo1->ItemData();
    if (IsEmptyValue(IdProgettoScelto)) {
        return;
    }
    ui_->elenco->Refresh();
    ado::Recordset& rs = ui_->elenco->Recordset();
    rs.setFilter("id = " + ado::plainNumber(IdProgettoScelto));
    const ado::Value data = rs["iddate"];
    ui_->iddateend->setText(data.isNull() ? std::string() : ado::formatDate({.day = ado::toDate(data).day}));
    ui_->iddateend->setFocus(Qt::TabFocusReason);
}

void Scegli_progetto_4::ConfermaData() {
    std::string data = ui_->iddateend->Text();
    switch (LasciaData(data)) {
    case DataLasciata::Vuota:
        break;
    case DataLasciata::Rifiutata:
        ui_->iddateend->selectAll();
        break;
    case DataLasciata::Scritta:
        ui_->iddateend->setText(data);
        ui_->Command1->setFocus(Qt::TabFocusReason);
        break;
    }
}

void Scegli_progetto_4::Aggiorna() {
    const std::string data = ui_->iddateend->Text();
    if (IsEmptyValue(IdProgettoScelto) || IsEmptyValue(data)) {
        return;
    }
    {
        Corsa corsa(*this, *ui_->ProgressBar1);
        AggiornaDataDefinitiva(IdProgettoScelto, data, corsa);
    }
    IdProgettoScelto = 0;
    ui_->Combo1->setText(kNessunaScelta);
    ui_->iddateend->clear();
    ChiudiRecordset();
    ui_->Combo1->setFocus(Qt::TabFocusReason);
}

} // namespace vabo

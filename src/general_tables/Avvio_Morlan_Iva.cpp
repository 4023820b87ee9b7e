#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/TextBox.h"
#include "general_tables/Avvio_Morlan.h"
#include "general_tables/TrattamentoIva.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "ui_Avvio_Morlan.h"

namespace vabo {

void Avvio_Morlan::CollegaTrattamento() {
    ui_->Aliquota->setText("20,00");
    ui_->Detrazione->setText("100,00");
    ui_->DCBitem5->ListField = "Descrizione";
    ui_->DCBitem5->BoundColumn = "idautonumber";
    ui_->DCBitem5->setRowSource(ui_->BItems5);
    on(ui_->DCBitem5, &controls::DataCombo::Click, [this](int area) {
        if (area == controls::DataCombo::List) {
            ScegliTrattamento();
        }
    });
}

void Avvio_Morlan::MostraTrattamento(const Regola& regola) {
    regola([this] { ui_->DCBitem5->setText(DescrizioneTrattamento(IdTrattamentoStandard)); });
    regola([this] { ui_->Aliquota->setText(AliquotaTrattamento(IdTrattamentoStandard)); });
    regola([this] { ui_->Detrazione->setText(DetrazioneTrattamento(IdTrattamentoStandard)); });
    regola([this] { ui_->Sigla->setText(SiglaTrattamento(IdTrattamentoStandard)); });
}

// Failing statements are skipped: a rate that can't be shown leaves the box as it was.
void Avvio_Morlan::CaricaTrattamento() {
    salta([this] { IdTrattamentoStandard = LeggiAliquotaStandard(); });
    MostraTrattamento(kSaltando);
}

// Without a rule: a treatment whose rate can't be shown stops here, before anything is written.
void Avvio_Morlan::ScegliTrattamento() {
    constexpr double kPrimoTrattamento = 2;
    IdTrattamentoStandard = ado::toDouble(ui_->DCBitem5->BoundText());
    if (IdTrattamentoStandard < kPrimoTrattamento) {
        IdTrattamentoStandard = LeggiAliquotaStandard();
    }
    if (IsEmptyValue(IdTrattamentoStandard)) {
        return;
    }
    MostraTrattamento(kSenzaRegola);
    SalvaAliquotaStandard(IdTrattamentoStandard, ui_->Aliquota->Text(), ui_->Sigla->Text(), ui_->Detrazione->Text());
}

} // namespace vabo

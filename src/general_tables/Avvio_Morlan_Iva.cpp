#include "controls/DataCombo.h"
#include "controls/Picker.h"
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
    trattamento_ =
        new controls::Picker(*ui_->DCBitem5, *ui_->BItems5, "Descrizione", "idautonumber", IdTrattamentoStandard);
    on(trattamento_, &controls::Picker::Picked, [this] { ScegliTrattamento(); });
}

void Avvio_Morlan::MostraTrattamento(const Regola& regola) {
    regola([this] { ui_->DCBitem5->setText(DescrizioneTrattamento(IdTrattamentoStandard)); });
    regola([this] { ui_->Aliquota->setText(AliquotaTrattamento(IdTrattamentoStandard)); });
    regola([this] { ui_->Detrazione->setText(DetrazioneTrattamento(IdTrattamentoStandard)); });
    regola([this] { ui_->Sigla->setText(SiglaTrattamento(IdTrattamentoStandard)); });
}

// Failing statements are skipped: where a rate can't be shown, its field stays as it was.
void Avvio_Morlan::CaricaTrattamento() {
    salta([this] { IdTrattamentoStandard = LeggiAliquotaStandard(); });
    MostraTrattamento(kSaltando);
}

// No failure rule here: a treatment whose rate can't be shown raises before anything is written.
void Avvio_Morlan::ScegliTrattamento() {
    constexpr double kPrimoTrattamento = 2;
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

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
    trattamentoMostrato_ = TestiTrattamento();
}

std::vector<std::string> Avvio_Morlan::TestiTrattamento() const {
    return {ui_->DCBitem5->Text(), ui_->Aliquota->Text(), ui_->Detrazione->Text(), ui_->Sigla->Text()};
}

void Avvio_Morlan::RimettiTrattamento() {
    ui_->DCBitem5->setText(trattamentoMostrato_[0]);
    ui_->Aliquota->setText(trattamentoMostrato_[1]);
    ui_->Detrazione->setText(trattamentoMostrato_[2]);
    ui_->Sigla->setText(trattamentoMostrato_[3]);
}

// No failure rule here: a treatment whose rate can't be shown raises before anything is written. Where it can't be
// stored, the stored one is shown again.
void Avvio_Morlan::ScegliTrattamento() {
    constexpr double kPrimoTrattamento = 2;
    if (IdTrattamentoStandard < kPrimoTrattamento) {
        IdTrattamentoStandard = LeggiAliquotaStandard();
    }
    if (IsEmptyValue(IdTrattamentoStandard)) {
        return;
    }
    MostraTrattamento(kSenzaRegola);
    try {
        SalvaAliquotaStandard(IdTrattamentoStandard, ui_->Aliquota->Text(), ui_->Sigla->Text(),
                              ui_->Detrazione->Text());
    } catch (const std::exception&) {
        RimettiTrattamento();
        throw;
    }
    trattamentoMostrato_ = TestiTrattamento();
}

} // namespace vabo

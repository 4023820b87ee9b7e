// The row of a payment term in the fields of its form.

#include "ado/Conversions.h"
#include "controls/DataCombo.h"
#include "controls/DataControl.h"
#include "controls/TextBox.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "payment_terms/CondizioniPagamento.h"
#include "ui_CondizioniPagamento.h"

#include <algorithm>

namespace vabo {

namespace {

/// Shows the name of the row that a filter leaves in the list; without one the combo stays as it is.
template<typename Regola>
void MostraScelta(Regola&& regola, controls::DataCombo& combo, controls::DataControl& elenco,
                  const std::string& filtro) {
    regola([&] { elenco.Recordset().setFilter(filtro); });
    regola([&] {
        if (!elenco.Recordset().EOF()) {
            combo.setText(ado::toText(elenco.Recordset()["Descrizione"]));
        }
    });
}

} // namespace

CampiCondizione CondizioniPagamento::Campi() const {
    CampiCondizione campi{.descrizione = ui_->Descrizione->Text(),
                          .numeroRate = ui_->NRrate->Text(),
                          .decorrenza = ui_->IDDecorrenza->Text(),
                          .anticipo = ui_->RataAnticipo->Text(),
                          .tipoRimessa = ui_->IdTipoRimessa->Text()};
    std::ranges::transform(scadenze_, campi.scadenze.begin(), &controls::TextBox::Text);
    return campi;
}

// What is worked out; the other fields are the user's.
void CondizioniPagamento::MostraCampi(const CampiCondizione& campi) {
    ui_->Descrizione->setText(campi.descrizione);
    ui_->NRrate->setText(campi.numeroRate);
    for (std::size_t i = 0; i < kRate; ++i) {
        scadenze_[i]->setText(campi.scadenze[i]);
    }
}

// Failing statements are skipped from the amount on. Ahead of it nothing is shown of a row that lacks a value, or the
// fields of one term would be stored under the key of another.
void CondizioniPagamento::MostraRecord() {
    ado::Recordset& rs = ui_->CPAdo->Recordset();
    const double chiave = ado::toDouble(rs["IDPagamento"]), regola = ado::toDouble(rs["IDDecorrenza"]);
    const std::string descrizione = ado::toText(rs["Descrizione"]), numeroRate = ado::toText(rs["NRrate"]);
    chiave_ = chiave;
    decorrenza_ = regola;
    ui_->IDPagamento->setText(QStringLiteral("N. ") + QString::fromStdString(ado::plainNumber(chiave)));
    ui_->Descrizione->setText(descrizione);
    ui_->NRrate->setText(numeroRate);
    MostraScelta(kSenzaRegola, *ui_->IDDecorrenza, *ui_->Decorrenza, "iddecorrenza=" + ado::plainNumber(regola));
    ui_->Decorrenza->Refresh();
    salta([&] { ui_->RataAnticipo->setText(ado::toText(rs["RataAnticipo"])); });
    for (controls::TextBox* campo : scadenze_) {
        salta([&] { campo->setText(ado::toText(rs[campo->objectName().toStdString()])); });
    }
    salta([&] { tipoRimessa_ = ado::toDouble(rs["IdTipoRimessa"]); });
    MostraScelta(kSaltando, *ui_->IdTipoRimessa, *ui_->TipoIncasso, "idtiporimessa=" + ado::plainNumber(tipoRimessa_));
    salta([this] { ui_->TipoIncasso->Recordset().setFilter(""); });
    CampiCondizione campi = Campi();
    TogliRateVuote(campi);
    MostraCampi(campi);
}

void CondizioniPagamento::PulisciCampi() {
    MostraCampi({});
    ui_->RataAnticipo->setText("0,00");
    decorrenza_ = 0;
    tipoRimessa_ = 0;
    ui_->IDDecorrenza->setText(kNessunaScelta);
    ui_->IdTipoRimessa->setText(kNessunaScelta);
    ui_->IDPagamento->clear();
}

} // namespace vabo

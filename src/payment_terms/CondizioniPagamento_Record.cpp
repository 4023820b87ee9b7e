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
#include <optional>

namespace vabo {

namespace {

/// The name of a rule, none where the list hasn't got it. Raises for one without a name; the list is whole then, too.
std::optional<std::string> NomeDellaRegola(controls::DataControl& elenco, double regola) {
    if (!elenco.hasRecordset()) {
        elenco.Refresh(); // the last one failed
    }
    ado::Recordset& righe = elenco.Recordset();
    righe.setFilter("iddecorrenza=" + ado::plainNumber(regola));
    std::optional<ado::Value> nome;
    if (!righe.EOF()) {
        nome = righe["Descrizione"].Value();
    }
    elenco.Refresh(); // drops the filter
    return nome ? std::optional(ado::toText(*nome)) : std::nullopt;
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

// Failing statements are skipped from the amount on. Ahead of it nothing is shown of a row of which something can't be
// read, or the fields of one term would be stored under the key of another.
void CondizioniPagamento::MostraRecord() {
    ado::Recordset& rs = ui_->CPAdo->Recordset();
    const double chiave = ado::toDouble(rs["IDPagamento"]), regola = ado::toDouble(rs["IDDecorrenza"]);
    const std::string descrizione = ado::toText(rs["Descrizione"]), numeroRate = ado::toText(rs["NRrate"]);
    const std::optional<std::string> nomeRegola = NomeDellaRegola(*ui_->Decorrenza, regola);
    chiave_ = chiave;
    if (nomeRegola) {
        ui_->IDDecorrenza->setText(*nomeRegola);
    }
    decorrenza_ = regola; // last, since by its name the combo finds the first one of several
    ui_->IDPagamento->setText(QStringLiteral("N. ") + QString::fromStdString(ado::plainNumber(chiave)));
    ui_->Descrizione->setText(descrizione);
    ui_->NRrate->setText(numeroRate);
    salta([&] { ui_->RataAnticipo->setText(ado::toText(rs["RataAnticipo"])); });
    for (controls::TextBox* campo : scadenze_) {
        salta([&] { campo->setText(ado::toText(rs[campo->objectName().toStdString()])); });
    }
    salta([&] { tipoRimessa_ = ado::toDouble(rs["IdTipoRimessa"]); });
    MostraTipo();
    CampiCondizione campi = Campi();
    TogliRateVuote(campi);
    MostraCampi(campi);
}

// Failing statements are skipped. The filter doesn't stay, so that another kind can be chosen.
void CondizioniPagamento::MostraTipo() {
    controls::DataControl& elenco = *ui_->TipoIncasso;
    salta([&] { elenco.Recordset().setFilter("idtiporimessa=" + ado::plainNumber(tipoRimessa_)); });
    salta([&] {
        if (!elenco.Recordset().EOF()) {
            ui_->IdTipoRimessa->setText(ado::toText(elenco.Recordset()["Descrizione"]));
        }
    });
    salta([&] { elenco.Recordset().setFilter(""); });
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

#include "payment_terms/LinguaDelForm.h"

#include "controls/DataGrid.h"
#include "controls/Form.h"
#include "controls/ItemCombo.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "session/LinguaClient.h"
#include "session/TreatForms.h"

#include <QLabel>

namespace vabo {

LinguaDelForm::LinguaDelForm(controls::Form& form, controls::ItemCombo& combo, std::span<const Didascalia> didascalie)
    : form_(form), combo_(combo), didascalie_(didascalie) {
    for (const char* codice : {"EN", "ES", "IT"}) {
        combo.addItem(codice, 0);
    }
    combo.hide(); // or it would be seen until the form becomes active
    QObject::connect(&combo, &controls::ItemCombo::Click, &combo, &QWidget::hide);
}

void LinguaDelForm::Riprendi() {
    combo_.hide();
    const std::string codice = LeggiLinguaClient("");
    combo_.setText(codice);
    if (!FormInCima(form_.Name())) {
        return;
    }
    lingua_ = LinguaDi(codice);
    for (const Didascalia& didascalia : didascalie_) {
        controls::setCaption(*form_.findChild<QLabel*>(QString::fromUtf8(didascalia.etichetta)),
                             Nella(lingua_, didascalia.testi));
    }
}

void LinguaDelForm::Intesta(controls::DataGrid& griglia, std::span<const Intestazione> intestazioni) const {
    for (const Intestazione& intestazione : intestazioni) {
        griglia.Columns(intestazione.colonna).setCaption(Nella(lingua_, intestazione.testi));
    }
}

void NominaCampi(const QLabel& etichetta, std::span<controls::TextBox* const> campi) {
    const QString nome = controls::spokenName(etichetta.text());
    for (std::size_t i = 0; i < campi.size(); ++i) {
        campi[i]->setAccessibleName(nome + QLatin1Char(' ') + QString::number(i + 1));
    }
}

} // namespace vabo

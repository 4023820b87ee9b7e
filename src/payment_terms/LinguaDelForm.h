#pragma once

#include "payment_terms/Didascalie.h"

#include <span>

class QLabel;

namespace controls {
class DataGrid;
class Form;
class ItemCombo;
class TextBox;
} // namespace controls

namespace vabo {

/// The client's language on a payment form: its captions, and a combo of languages that nobody sees and that changes
/// nothing.
class LinguaDelForm {
public:
    LinguaDelForm(controls::Form& form, controls::ItemCombo& combo, std::span<const Didascalia> didascalie);

    /// Hides the combo, reads the language and, where the form is the one on top, sets the captions.
    void Riprendi();
    void Intesta(controls::DataGrid& griglia, std::span<const Intestazione> intestazioni) const;

private:
    controls::Form& form_;
    controls::ItemCombo& combo_;
    std::span<const Didascalia> didascalie_;
    Lingua lingua_ = Lingua::IT;
};

/// Names the fields that share a label after it, with their numbers, for assistive tools.
void NominaCampi(const QLabel& etichetta, std::span<controls::TextBox* const> campi);

} // namespace vabo

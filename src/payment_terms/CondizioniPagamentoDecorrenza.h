#pragma once

#include "controls/Form.h"

#include <memory>

namespace Ui {
class CondizioniPagamentoDecorrenza;
}

namespace vabo {

class LinguaDelForm;
struct CampiDecorrenza;

/// The rules from which the instalments of a payment term count: a grid, and the fields of one rule above it. Enter in
/// the name, the last field, stores the rule and empties the fields for the next.
class CondizioniPagamentoDecorrenza : public controls::Form {
    Q_OBJECT
public:
    CondizioniPagamentoDecorrenza();
    ~CondizioniPagamentoDecorrenza() override;

protected:
    void Load() override;
    void Activate() override;
    void Unload() override;

private:
    void CollegaCampi();
    void FormattaGriglia();
    CampiDecorrenza Campi() const;
    void MostraCampi(const CampiDecorrenza& campi);
    void MostraRecord();
    void PulisciCampi();
    void NominaRegola();
    void SalvaRecord();

    std::unique_ptr<Ui::CondizioniPagamentoDecorrenza> ui_;
    std::unique_ptr<LinguaDelForm> lingua_;
    double chiave_ = 0; ///< of the rule in the fields, 0 for a new one
};

} // namespace vabo

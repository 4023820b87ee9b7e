#pragma once

#include "controls/Form.h"
#include "payment_terms/Rate.h"

#include <memory>

namespace Ui {
class CondizioniPagamento;
}

namespace controls {
class DataCombo;
class DataControl;
class Picker;
class TextBox;
} // namespace controls

namespace vabo {

class LinguaDelForm;

/// The payment terms: a grid, and the fields of one term above it. Their number of instalments and their name are
/// worked out while the user goes from field to field; Enter in the name, the last field, stores the term.
class CondizioniPagamento : public controls::Form {
    Q_OBJECT
public:
    CondizioniPagamento();
    ~CondizioniPagamento() override;

protected:
    void Load() override;
    void Activate() override;
    void Unload() override;
    bool focusNextPrevChild(bool next) override;

private:
    void CollegaCampi();
    void CollegaScadenze();
    void CollegaElenchi();
    void FormattaGriglia();
    CampiCondizione Campi() const;
    void MostraCampi(const CampiCondizione& campi);
    void MostraRecord();
    void MostraTipo();
    void PulisciCampi();

    void AggiornaRate();
    void NominaCondizione();
    void LasciaScadenza(std::size_t posto);
    void LasciaAnticipo();
    void TornaAlleScadenze();
    void LasciaDescrizione();
    void PrendiRegola();
    void SalvaRecord();

    std::unique_ptr<Ui::CondizioniPagamento> ui_;
    std::unique_ptr<LinguaDelForm> lingua_;
    std::unique_ptr<controls::Picker> regole_, tipi_;
    std::array<controls::TextBox*, kRate> scadenze_{};
    double chiave_ = 0; ///< of the term in the fields, 0 for a new one
    double decorrenza_ = 0;
    double tipoRimessa_ = 0;
};

} // namespace vabo

#pragma once

#include "controls/Form.h"
#include "state/variabili.h"

#include <memory>
#include <optional>

namespace Ui {
class frmComuni;
}

namespace vabo {

struct CampiComune;

/// The table of municipalities: a grid, and the fields of one row above it. Leaving the state, the last field, stores
/// the row and empties the fields for the next, which keeps the state.
class frmComuni : public controls::Form {
    Q_OBJECT
public:
    frmComuni();
    ~frmComuni() override;

protected:
    void Load() override;
    void Unload() override;

private:
    void CollegaCampi();
    void CollegaStato();
    void FormattaGriglia();
    void LeggiStati();
    void MostraRecord();
    void PulisciCampi();
    CampiComune Campi() const;
    void SalvaRecord();
    void RifiutaDuplicato();
    void RileggiElenco();

    void ScegliStato(int area);
    void CambiaStato();
    void LasciaStato();
    void ScegliRiga();
    void ScriviNuovo();

    std::unique_ptr<Ui::frmComuni> ui_;
    double chiave_ = 0;               ///< of the row in the fields, 0 for none
    std::optional<double> IdStato{0}; ///< 0 while no state was chosen; none where the row in the fields has none
    bool Nuovo = false;
    Flag Duplicato = kFalso;
};

} // namespace vabo

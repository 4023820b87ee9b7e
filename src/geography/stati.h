#pragma once

#include "controls/Form.h"
#include "state/variabili.h"

#include <memory>

namespace Ui {
class stati;
}

namespace controls {
class TextBox;
}

namespace vabo {

struct CampiStato;

/// The table of states: a grid, and the fields of one row above it. Leaving the currency, the last field, stores the
/// row and empties the fields for the next.
class stati : public controls::Form {
    Q_OBJECT
public:
    stati();
    ~stati() override;

protected:
    void Load() override;
    void Unload() override;

private:
    void CollegaCampi();
    void FormattaGriglia();
    void MostraRecord();
    void PulisciCampi();
    CampiStato Campi() const;
    void SalvaRecord();
    void RifiutaDuplicato();
    void RileggiElenchi();

    void LasciaDate(controls::TextBox& campo);
    void LasciaSoppressione();
    void LasciaValuta();
    void ScegliRiga();
    void ScriviNuovo();
    void Chiudi();

    std::unique_ptr<Ui::stati> ui_;
    double chiave_ = 0; ///< of the row in the fields, 0 for none
    bool Nuovo = false;
    Flag Duplicato = kFalso;
};

} // namespace vabo

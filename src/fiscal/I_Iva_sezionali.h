#pragma once

#include "controls/Form.h"

#include <memory>

namespace Ui {
class I_Iva_sezionali;
}

namespace vabo {

struct CampiSezionale;

/// The VAT sections: a grid, the fields of one section above it, and the commands that set registers back. Enter in the
/// number stores description and area alone.
class I_Iva_sezionali : public controls::Form {
    Q_OBJECT
public:
    I_Iva_sezionali();
    ~I_Iva_sezionali() override;

protected:
    void Load() override;
    void Unload() override;

private:
    void CollegaCampi();
    void CollegaComandi();
    void FormattaGriglia();
    void Rileggi();
    void MostraPosizione();
    void MostraRecord();
    void PulisciCampi();
    CampiSezionale Campi() const;
    void SalvaRecord();
    void CambiaPeriodo();
    void Elimina();

    std::unique_ptr<Ui::I_Iva_sezionali> ui_;
    double SezionaleCorrente = 0; ///< the key of the row that was picked, 0 for none
};

} // namespace vabo

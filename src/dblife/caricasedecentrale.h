#pragma once

#include "controls/Form.h"

#include <memory>

namespace Ui {
class caricasedecentrale;
}

namespace vabo {

struct CampiSede;

/// The headquarters of this installation: a grid of the branches, and the fields of the one that was picked. Applying
/// it asks for the folder on the server and writes everything that follows from both.
class caricasedecentrale : public controls::Form {
    Q_OBJECT
public:
    caricasedecentrale();
    ~caricasedecentrale() override;

protected:
    void Load() override;
    void Unload() override;

private:
    void CollegaCampi();
    void FormattaGriglia();
    void MostraRecord();
    void MostraStato();
    CampiSede Campi() const;
    void Applica();

    std::unique_ptr<Ui::caricasedecentrale> ui_;
    double IdSedeCorrente = 0; ///< of the branch that was picked, 0 for none
    double IdStatoCorrente = 0;
};

} // namespace vabo

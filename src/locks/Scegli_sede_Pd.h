#pragma once

#include "controls/Form.h"

#include <memory>

namespace Ui {
class Scegli_sede_Pd;
}

namespace vabo {

/// Resets the lock of a branch: stores its final lock date, opens again what is later, and makes definitive what is so
/// in any case.
class Scegli_sede_Pd : public controls::Form {
    Q_OBJECT
public:
    Scegli_sede_Pd();
    ~Scegli_sede_Pd() override;

protected:
    void Load() override;
    void Unload() override;

private:
    void ScegliSede();
    void MostraData();
    void ConfermaData();
    void Blocca();
    void Rifiuta();

    std::unique_ptr<Ui::Scegli_sede_Pd> ui_;
    double IdSedeScelta = 0; ///< the branch chosen, 0 for none
};

} // namespace vabo

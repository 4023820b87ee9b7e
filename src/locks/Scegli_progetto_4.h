#pragma once

#include "controls/Form.h"

#include <memory>

namespace Ui {
class Scegli_progetto_4;
}

namespace vabo {

/// Sets the date up to which a project is reported, and with it which rows of the ledger are definitive.
class Scegli_progetto_4 : public controls::Form {
    Q_OBJECT
public:
    Scegli_progetto_4();
    ~Scegli_progetto_4() override;

protected:
    void Load() override;
    void Unload() override;

private:
    void ScegliProgetto();
    void ConfermaData();
    void Aggiorna();

    std::unique_ptr<Ui::Scegli_progetto_4> ui_;
};

} // namespace vabo

#pragma once

#include "controls/Form.h"

#include <memory>

namespace Ui {
class Avvio;
}

namespace vabo {

/// The start: a small window while the company is opened and the server prepared. It then hides and opens the login or,
/// where there are no users, the company console. It stays loaded as long as the program runs.
class Avvio : public controls::Form {
    Q_OBJECT
public:
    Avvio();
    ~Avvio() override;

protected:
    void Load() override;
    void Activate() override;

private:
    void MostraDatabase();
    void Avanza(double percento);

    std::unique_ptr<Ui::Avvio> ui_;
};

} // namespace vabo

#pragma once

#include "controls/Form.h"

#include <memory>

namespace Ui {
class Avvio;
}

namespace vabo {

/// The start: finds and opens the company while a small window says so, prepares the server, then gives way to the
/// login or, where there are no users, to the company console. It stays loaded, hidden, as long as the program runs.
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

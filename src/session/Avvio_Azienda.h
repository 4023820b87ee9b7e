#pragma once

#include "controls/Form.h"

#include <memory>

namespace Ui {
class Avvio_Azienda;
}

namespace vabo {

/// The company console: the list of companies and the three buttons that lead to other forms. It is the bottom of the
/// form stack. Each Load takes up the company anew.
class Avvio_Azienda : public controls::Form {
    Q_OBJECT
public:
    Avvio_Azienda();
    ~Avvio_Azienda() override;

protected:
    void Load() override;

private:
    void CaricaElenco();
    void ScegliAzienda(int area);
    void ApriUtenti();
    void MostraAziendaAperta();

    std::unique_ptr<Ui::Avvio_Azienda> ui_;
};

} // namespace vabo

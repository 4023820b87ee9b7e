#pragma once

#include "controls/Form.h"

#include <memory>
#include <string>

namespace controls {
class TextBox;
}
namespace Ui {
class About;
}

namespace vabo {

/// The login: a name, then a password, each ended by Enter. Who has no password yet sets one here, typed twice.
class About : public controls::Form {
    Q_OBJECT
public:
    About();
    ~About() override;

    /// Gives way to the form of the data sources where the company can't be reached.
    void Controlla_server();

protected:
    void Load() override;
    void Activate() override;
    void Unload() override;

private:
    void ConfermaNome();
    void ConfermaPrimaPassword();
    void ControllaPassword();
    void ContaFallimento();
    void ChiediPrimaPassword();
    void ChiediPassword();
    void Entra();

    std::unique_ptr<Ui::About> ui_;
    double IdUtenteNuovo = 0; ///< who is setting a first password, whoever stands in the field meanwhile
    std::string NomeUtenteNuovo;
};

} // namespace vabo

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

/// The login: a name, then a password, each ended by Enter. A user without a password sets one here, typed twice.
class About : public controls::Form {
    Q_OBJECT
public:
    About();
    ~About() override;

    /// Where the company can't be reached, closes this form and opens the one of the data sources.
    void Controlla_server();

protected:
    void Load() override;
    void Activate() override;
    void Unload() override;

private:
    void MostraDirectorySede();
    void ConfermaNome();
    void ConfermaPrimaPassword();
    void ControllaPassword();
    void ContaFallimento();
    void ChiediPrimaPassword();
    void ChiediPassword();
    void Entra();

    std::unique_ptr<Ui::About> ui_;
    double IdUtenteNuovo = 0; ///< the user who sets a first password; the name in the field may change meanwhile
    std::string NomeUtenteNuovo;
    std::string PercorsoDirectorySede;
};

} // namespace vabo

#pragma once

#include "controls/Form.h"
#include "rights/TabellaUtenti.h"

#include <array>
#include <memory>

namespace Ui {
class Login;
}

namespace controls {
class CheckBox;
}

namespace vabo {

/// The users and their rights, for an administrator: a grid of names, and beside it the user that was picked. The
/// boxes and the buttons are enabled by Enter in the name, which begins a new user or renames the picked one.
class Login : public controls::Form {
    Q_OBJECT
public:
    Login();
    ~Login() override;

protected:
    void Load() override;
    void Activate() override;
    void Unload() override;

private:
    void CollegaEventi();
    void PreparaGriglia();
    void PulisciCampi();
    void AbilitaCampi(bool abilita);
    void Rileggi();

    void ConfermaNome();
    void MostraUtente();
    void LeggiUtente();
    void TuttiIDiritti();
    void PermettiInserimento();
    void DisabilitaUtente();
    void ImpostaDiritti(int valore);
    void MostraSalva();
    CampiUtente Campi() const;
    void Salva();
    void TastoNellaGriglia(int tasto, Qt::KeyboardModifiers modificatori);
    void Elimina();
    void TornaAlLogin();

    std::unique_ptr<Ui::Login> ui_;
    std::array<controls::CheckBox*, kColonneDiritti.size()> caselle_; ///< in the order of the columns
    double IdUtenteCorrente = 0; ///< the key of the user in the fields, 0 for none and for a new one
};

} // namespace vabo

// Every store of the users with each of its requests to the server refused.

#include "UtentiForm.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

class Utenti : public support::FormWorld<UtentiForm> {
public:
    Utenti() : FormWorld("Login") {}

    using UtentiForm::apri, UtentiForm::gui, UtentiForm::invioNelNome, UtentiForm::nuovo, UtentiForm::premi,
        UtentiForm::scegli;

    Riga fields() const { return {nome(), caselle(), aperta() ? "open" : "closed"}; }
    Riga shown() const { return rowsOf("DataGrid1"); }
    Riga held() const { return rowsAsSelected(kElencoAtteso); }
};

using Operazione = support::Operation<Utenti>;

TEST(LoginRifiuto, OfANewUser) {
    replay(Operazione{.tables = {"AbilitazioneAccessi"},
                      .reach =
                          [](Utenti& form) {
                              form.apri();
                              form.nuovo("mario");
                          },
                      .act = [](Utenti& form) { form.premi("cmdUpdate"); },
                      .once = {},
                      .fromThere = {}});
}

TEST(LoginRifiuto, OfAKnownUser) {
    replay(Operazione{.tables = {"AbilitazioneAccessi"},
                      .reach =
                          [](Utenti& form) {
                              form.apri();
                              form.scegli("contabile");
                              form.nuovo("mario");
                          },
                      .act = [](Utenti& form) { form.premi("cmdUpdate"); },
                      .once = {},
                      .fromThere = {}});
}

TEST(LoginRifiuto, OfADeletion) {
    replay(Operazione{.tables = {"AbilitazioneAccessi"},
                      .reach =
                          [](Utenti& form) {
                              form.apri();
                              form.scegli("disabilitato");
                          },
                      .act = [](Utenti& form) { form.gui.press(Qt::Key_D, Qt::ControlModifier); },
                      .once = {},
                      .fromThere = {}});
}

} // namespace
} // namespace vabo

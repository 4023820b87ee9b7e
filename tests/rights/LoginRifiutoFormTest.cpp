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
                      .once =
                          support::inTurn({{4, support::kRefused}, {1, support::kStored}, {2, support::kStoredUnread}}),
                      .fromThere = support::inTurn({{4, support::kRefused}, {3, support::kStoredUnread}})});
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
                      .once = support::inTurn({{5, support::kRefused}, {2, support::kStoredUnread}}),
                      .fromThere = support::inTurn({{5, support::kRefused}, {2, support::kStoredUnread}})});
}

// Where the command that empties the boxes is refused, the user is stored as before.
TEST(LoginRifiuto, OfADisabledUser) {
    replay(Operazione{.tables = {"AbilitazioneAccessi"},
                      .reach =
                          [](Utenti& form) {
                              form.apri();
                              form.scegli("contabile");
                              form.invioNelNome();
                          },
                      .act =
                          [](Utenti& form) {
                              form.premi("CancelButton");
                              form.premi("cmdUpdate");
                          },
                      .once = support::inTurn({{1, "told it; rows before; list right; fields done"},
                                               {5, "told it; rows before; list right; fields changed to 000000000002"},
                                               {2, support::kStoredUnread}}),
                      .fromThere =
                          support::inTurn({{1, "told it and it; rows before; list right; fields kept"},
                                           {5, "told it; rows before; list right; fields changed to 000000000002"},
                                           {2, support::kStoredUnread}})});
}

TEST(LoginRifiuto, OfADeletion) {
    replay(Operazione{.tables = {"AbilitazioneAccessi"},
                      .reach =
                          [](Utenti& form) {
                              form.apri();
                              form.scegli("disabilitato");
                          },
                      .act = [](Utenti& form) { form.gui.press(Qt::Key_D, Qt::ControlModifier); },
                      .once = support::inTurn({{1, support::kRefused}, {2, support::kStoredUnreadKept}}),
                      .fromThere = support::inTurn({{1, support::kRefused}, {2, support::kStoredUnreadKept}})});
}

} // namespace
} // namespace vabo

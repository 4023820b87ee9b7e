// The company's data with each request to the server of their store refused.

#include "fiscal/AziendaForm.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

class Azienda : public support::FormWorld<AziendaForm> {
public:
    Azienda() : FormWorld("frmDatiAzienda") {}

    using AziendaForm::apri, AziendaForm::esegui, AziendaForm::metti, AziendaForm::salva;

    // A store closes the form.
    void expectAlive() const {
        if (aperta()) {
            FormWorld::expectAlive();
        }
    }
    Riga fields() const { return aperta() ? testi({"nomesocietà", "Banca", "cap", "DataCombo1"}) : Riga{"closed"}; }
    Riga shown() const { return {}; }
    Riga held() const { return {}; }
};

using Operazione = support::Operation<Azienda>;

TEST(AziendaRifiuto, OfTheStoreOfTheRow) {
    replay(Operazione{.tables = {"DatiAzienda"},
                      .reach =
                          [](Azienda& form) {
                              form.apri();
                              form.metti("Banca", "Altra");
                          },
                      .act = [](Azienda& form) { form.salva(); },
                      .once = support::inTurn({{3, support::kRefused}}),
                      .fromThere = support::inTurn({{3, support::kRefused}})});
}

TEST(AziendaRifiuto, OfTheStoreOfTheFirstRow) {
    replay(Operazione{.tables = {"DatiAzienda"},
                      .reach =
                          [](Azienda& form) {
                              form.apri();
                              form.metti("Banca", "Altra");
                              form.esegui("delete from DatiAzienda");
                          },
                      .act = [](Azienda& form) { form.salva(); },
                      .once = support::inTurn({{2, support::kRefused}, {1, support::kStored}}),
                      .fromThere = support::inTurn({{2, support::kRefused}, {1, support::kStored}})});
}

} // namespace
} // namespace vabo

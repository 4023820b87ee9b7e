// The stores of states and municipalities with each of their requests to the server refused, once and from there on.

#include "geography/ComuniFixture.h"
#include "geography/StatiFixture.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

class Stati : public support::FormWorld<StatiForm> {
public:
    Stati() : FormWorld("stati") {}

    using StatiForm::apri, StatiForm::campo, StatiForm::esegui, StatiForm::gui, StatiForm::scegli, StatiForm::vaiA;

    Riga fields() const { return campi(); }
    Riga shown() const { return rowsOf("DataGrid1"); }
    Riga held() const { return rowsAsSelected("select IdStato, DescStato, Area from stati order by descstato"); }
    std::string half() const { return "half, " + valore("select count(*) from ZoneGeografiche") + " areas"; }
};

class Comuni : public support::FormWorld<ComuniForm> {
public:
    Comuni() : FormWorld("frmComuni") {}

    using ComuniForm::apri, ComuniForm::campo, ComuniForm::gui, ComuniForm::invio, ComuniForm::scrivi,
        ComuniForm::vaiA;

    Riga fields() const { return campi(); }
    Riga shown() const { return rowsOf("DataGrid1"); }
    Riga held() const { return rowsAsSelected(kElencoComuniRiletto); }
};

TEST(StatiRifiuto, OfANewStateInANewArea) {
    replay(support::Operation<Stati>{.tables = {"stati", "ZoneGeografiche"},
                                     .reach =
                                         [](Stati& form) {
                                             form.apri();
                                             form.vaiA("DescStato");
                                             for (const char* valore :
                                                  {"Repubblica del Kosovo", "Illiria", "170208", ""}) {
                                                 form.campo(valore);
                                             }
                                         },
                                     .act = [](Stati& form) { form.campo("EUR"); },
                                     .once = {},
                                     .fromThere = {}});
}

TEST(StatiRifiuto, OfAKnownState) {
    replay(support::Operation<Stati>{.tables = {"stati"},
                                     .reach =
                                         [](Stati& form) {
                                             form.apri();
                                             form.scegli("Kenya");
                                             form.vaiA("IsoValuta");
                                         },
                                     .act = [](Stati& form) { form.campo("XXX"); },
                                     .once = {},
                                     .fromThere = {}});
}

TEST(StatiRifiuto, OfTheRemovalOfStatesWithoutAName) {
    replay(support::Operation<Stati>{.tables = {"stati"},
                                     .reach =
                                         [](Stati& form) {
                                             form.esegui("insert into stati (Area) values ('Nessuna')");
                                             form.apri();
                                         },
                                     .act = [](Stati& form) { form.gui.click("stati", "Command4"); },
                                     .once = {},
                                     .fromThere = {}});
}

TEST(ComuniRifiuto, OfANewMunicipality) {
    replay(support::Operation<Comuni>{.tables = {"Comuni"},
                                      .reach =
                                          [](Comuni& form) {
                                              form.apri();
                                              form.scrivi({"Zagarolo", "RM", "00039", "Italia"});
                                              form.scrivi({"Palestrina", "RM", "00036"});
                                          },
                                      .act = [](Comuni& form) { form.invio(); },
                                      .once = {},
                                      .fromThere = {}});
}

} // namespace
} // namespace vabo

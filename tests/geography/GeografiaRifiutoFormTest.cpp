// The stores of states and municipalities with each of their requests to the server refused, once and from there on.

#include "geography/ComuniFixture.h"
#include "geography/StatiFixture.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

class Stati : public support::FormWorld<StatiForm> {
public:
    Stati() : FormWorld("stati") {}

    using StatiForm::apri, StatiForm::campo, StatiForm::esegui, StatiForm::gui, StatiForm::invio, StatiForm::scegli,
        StatiForm::vaiA;

    // The removal closes the form.
    void expectAlive() const {
        if (gui.forms().isLoaded(form)) {
            FormWorld::expectAlive();
        }
    }
    Riga fields() const { return gui.forms().isLoaded(form) ? campi() : Riga{"closed"}; }
    Riga shown() const { return gui.forms().isLoaded(form) ? rowsOf("DataGrid1") : held(); }
    Riga held() const { return rowsAsSelected("SELECT * from stati order by DescStato"); }
    std::string half() const { return "half, " + valore("select count(*) from ZoneGeografiche") + " areas"; }
};

class Comuni : public support::FormWorld<ComuniForm> {
public:
    Comuni() : FormWorld("frmComuni") {}

    using ComuniForm::apri, ComuniForm::campo, ComuniForm::gui, ComuniForm::invio, ComuniForm::scegli,
        ComuniForm::scrivi, ComuniForm::vaiA;

    Riga fields() const { return campi(); }
    Riga shown() const { return rowsOf("DataGrid1"); }
    Riga held() const { return rowsAsSelected(kElencoComuniRiletto); }
    std::string half() const {
        const Riga una = riga("select top 1 DES_COMUNE, DES_PROVIN, COD_CAP from Comuni order by idautonumber desc");
        return una[0] + " " + una[1] + " " + una[2];
    }
};

TEST(StatiRifiuto, OfANewStateInANewArea) {
    replay(support::Operation<Stati>{
        .tables = {"stati", "ZoneGeografiche"},
        .reach =
            [](Stati& form) {
                form.apri();
                form.vaiA("DescStato");
                for (const char* valore : {"Repubblica del Kosovo", "Illiria", "170208", ""}) {
                    form.campo(valore);
                }
                form.gui.type("EUR");
            },
        .act = [](Stati& form) { form.invio(); },
        .once = support::inTurn({{1, support::kRefused},
                                 {1, "silent; rows half, 24 areas; list right; fields done"},
                                 {1, support::kStored},
                                 {2, "silent; rows half, 23 areas; list right; fields done"},
                                 {3, support::kStored},
                                 {2, "silent; rows done; list empty; fields done"}}),
        .fromThere = support::inTurn({{1, support::kRefused},
                                      {1, "silent; rows before; list empty; fields done"},
                                      {3, "silent; rows half, 23 areas; list empty; fields done"},
                                      {5, "silent; rows done; list empty; fields done"}})});
}

TEST(StatiRifiuto, OfAKnownState) {
    replay(
        support::Operation<Stati>{.tables = {"stati"},
                                  .reach =
                                      [](Stati& form) {
                                          form.apri();
                                          form.scegli("Kenya");
                                          form.vaiA("IsoValuta");
                                          form.gui.type("ZWL");
                                      },
                                  .act = [](Stati& form) { form.invio(); },
                                  .once = support::inTurn({{1, support::kRefused},
                                                           {1, support::kStored},
                                                           {1, "silent; rows before; list right; fields done"},
                                                           {3, support::kStored},
                                                           {2, "silent; rows done; list empty; fields done"}}),
                                  .fromThere = support::inTurn({{1, support::kRefused},
                                                                {2, "silent; rows before; list empty; fields done"},
                                                                {5, "silent; rows done; list empty; fields done"}})});
}

TEST(StatiRifiuto, OfTheRemovalOfStatesWithoutAName) {
    replay(support::Operation<Stati>{.tables = {"stati"},
                                     .reach =
                                         [](Stati& form) {
                                             form.esegui("insert into stati (Area) values ('Nessuna')");
                                             form.apri();
                                         },
                                     .act = [](Stati& form) { form.gui.click("stati", "Command4"); },
                                     .once = support::inTurn({{1, support::kRefused}}),
                                     .fromThere = support::inTurn({{1, support::kRefused}})});
}

TEST(ComuniRifiuto, OfANewMunicipality) {
    replay(
        support::Operation<Comuni>{.tables = {"Comuni"},
                                   .reach =
                                       [](Comuni& form) {
                                           form.apri();
                                           form.scrivi({"Zagarolo", "RM", "00039", "Italia"});
                                           form.scrivi({"Palestrina", "RM", "00036"});
                                       },
                                   .act = [](Comuni& form) { form.invio(); },
                                   .once = support::inTurn({{1, "told it; rows before; list empty; fields kept"},
                                                            {1, "silent; rows before; list right; fields done"},
                                                            {2, support::kStored},
                                                            {2, "silent; rows done; list empty; fields done"}}),
                                   .fromThere = support::inTurn({{1, "told it; rows before; list empty; fields kept"},
                                                                 {1, "silent; rows before; list empty; fields done"},
                                                                 {4, "silent; rows done; list empty; fields done"}})});
}

// A name that the row couldn't be held for is left out, and the rest is stored.
TEST(ComuniRifiuto, OfAKnownMunicipality) {
    replay(support::Operation<Comuni>{
        .tables = {"Comuni"},
        .reach =
            [](Comuni& form) {
                form.apri();
                form.scrivi({"Zagarolo", "RM", "00039", "Italia"});
                form.scegli("Zagarolo");
                form.scrivi({"Zagarola", "", "00040"});
            },
        .act = [](Comuni& form) { form.invio(); },
        .once = support::inTurn({{1, support::kRefused},
                                 {1, "silent; rows Zagarolo RM 00040; list right; fields done"},
                                 {1, "silent; rows before; list right; fields done"},
                                 {1, support::kStored},
                                 {2, "silent; rows done; list empty; fields done"}}),
        .fromThere = support::inTurn({{1, support::kRefused},
                                      {2, "silent; rows before; list empty; fields done"},
                                      {3, "silent; rows done; list empty; fields done"}})});
}

// A new municipality whose name is in the list already: nothing is written, and the fields are emptied.
TEST(ComuniRifiuto, OfANameThatIsKnownAlready) {
    const support::Operation<Comuni> operazione{.tables = {},
                                                .reach =
                                                    [](Comuni& form) {
                                                        form.apri();
                                                        form.scrivi({"Zagarolo", "RM", "00039", "Italia"});
                                                        form.scrivi({"Zagarolo", "MI", "20100"});
                                                    },
                                                .act = [](Comuni& form) { form.invio(); },
                                                .once = {},
                                                .fromThere = {}};
    const support::Run indisturbata = play(operazione, 0, support::Refusals::Lasting::Once);
    EXPECT_EQ(indisturbata.told, support::Lines{kComuneDoppio});
    EXPECT_EQ(indisturbata.after.fields, kComuneVuoto);
    ASSERT_EQ(indisturbata.asked.size(), 2U);
    for (const auto durata : {support::Refusals::Lasting::Once, support::Refusals::Lasting::FromThere}) {
        for (const int posto : {1, 2}) {
            EXPECT_EQ(outcome(play(operazione, posto, durata), indisturbata),
                      "told it; rows before; list empty; fields kept")
                << posto;
        }
    }
}

} // namespace
} // namespace vabo

// Both forms while the server refuses one of their statements: some are told, some are skipped.

#include "geography/ComuniFixture.h"
#include "geography/StatiFixture.h"
#include "locks/GuastoAPosto.h"

#include <gmock/gmock.h>

#include <ostream>

namespace vabo {
namespace {

constexpr const char* kRifiuto = GuastoAPosto::kRifiuto;
constexpr const char* kNonImpostato = "Object variable or With block variable not set";

/// What is left of the form's list.
enum class Elenco {
    Intero,
    Filtrato, ///< to the rows of the new name, of which there are none
    Mancante
};

/// Which statement of a save is refused, and what comes of it.
struct Rifiuto {
    const char* nome;
    int posto;
    bool detto;      ///< in a box, and the fields stay
    bool registrato; ///< the row is in its table
    Elenco elenco;
};

void PrintTo(const Rifiuto& caso, std::ostream* out) {
    *out << caso.nome;
}

const auto kNomeDelCaso = [](const auto& info) { return std::string(info.param.nome); };

class RifiutoDegliStati : public StatiForm, public testing::WithParamInterface<Rifiuto> {};

TEST_P(RifiutoDegliStati, WhileAStateIsStored) {
    const Rifiuto caso = GetParam();
    apri();
    scrivi({"Transnistria", "Balcani", "", "", "RUP"}); // so that only new ones come
    vaiA("DescStato");
    for (const char* valore : {"Repubblica del Kosovo", "Illiria", "170208", ""}) {
        campo(valore);
    }
    if (caso.detto) {
        script.expectMessage(kRifiuto);
    }
    {
        const GuastoAPosto guasto(caso.posto);
        campo("EUR");
        EXPECT_GE(guasto.inviate(), caso.posto);
    }
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(campi(), caso.detto ? (Riga{"Repubblica del Kosovo", "Illiria", "17/02/2008", "", "EUR"}) : kStatoVuoto);
    EXPECT_EQ(quanti("stati where DescStato = 'Repubblica del Kosovo'"), caso.registrato ? 1 : 0);
    EXPECT_EQ(pagina.rows("DataGrid1"), caso.elenco == Elenco::Intero ? quanti("stati") : 0);
    EXPECT_TRUE(gui.form("stati").isEnabled());
    if (caso.elenco != Elenco::Mancante) {
        scrivi({"Abcasia", "Illiria", "", "", "RUB"});
        EXPECT_EQ(quanti("stati where DescStato = 'Abcasia'"), 1) << "the next one is stored";
        EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = 'Illiria'"), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Di, RifiutoDegliStati,
                         testing::Values(Rifiuto{"Apertura", 1, true, false, Elenco::Filtrato},
                                         Rifiuto{"Registrazione", 2, false, false, Elenco::Intero},
                                         Rifiuto{"CercaArea", 3, false, true, Elenco::Intero},
                                         Rifiuto{"AggiungeArea", 4, false, true, Elenco::Intero},
                                         Rifiuto{"ListaAree", 5, false, true, Elenco::Intero},
                                         Rifiuto{"Elenco", 6, false, true, Elenco::Mancante}),
                         kNomeDelCaso);

TEST_F(StatiForm, ARefusalOfTheAreasEndsTheLoad) {
    script.expectMessage(kRifiuto);
    const GuastoAPosto guasto(1);
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(guasto.inviate(), 1);
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
}

TEST_F(StatiForm, ARefusalOfTheListLeavesTheAreas) {
    script.expectMessage(kRifiuto);
    const GuastoAPosto guasto(2);
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_EQ(pagina.combo("DataCombo1").count(), quanti("ZoneGeografiche"));
}

TEST_F(StatiForm, ARefusedPurgeIsToldAndKeepsTheForm) {
    apri();
    script.expectMessage(kRifiuto);
    {
        const GuastoAPosto guasto(1);
        gui.click("stati", "Command4");
    }
    EXPECT_EQ(gui.visibleForms(), "stati");
    gui.click("stati", "Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(StatiForm, ARefusalBehindADuplicateIsToldInItsPlaceAndTheFieldsStay) {
    apri();
    gui.click("stati", "Command1");
    vaiA("DescStato");
    for (const char* valore : {"Kenya", "Balcani", "", ""}) {
        campo(valore);
    }
    script.expectMessage(kRifiuto);
    const GuastoAPosto guasto(1);
    campo("EUR");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(testo("DescStato"), "Kenya");
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
}

class RifiutoDeiComuni : public ComuniForm, public testing::WithParamInterface<Rifiuto> {};

TEST_P(RifiutoDeiComuni, WhileAMunicipalityIsStored) {
    const Rifiuto caso = GetParam();
    apri();
    scrivi({"Zagarolo", "RM", "00039", "Italia"}); // so that only new ones come
    scrivi({"Palestrina", "RM", "00036"});
    if (caso.detto) {
        script.expectMessage(kRifiuto);
    }
    {
        const GuastoAPosto guasto(caso.posto);
        invio();
        EXPECT_GE(guasto.inviate(), caso.posto);
    }
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(campi(), caso.detto ? (Riga{"Palestrina", "RM", "00036", "Seleziona"}) : kComuneVuoto);
    EXPECT_EQ(quanti("Comuni where DES_COMUNE = 'Palestrina'"), caso.registrato ? 1 : 0);
    EXPECT_EQ(pagina.rows("DataGrid1"), caso.elenco == Elenco::Intero ? quanti("Comuni") : 0);
    EXPECT_TRUE(gui.form("frmComuni").isEnabled());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    if (caso.elenco == Elenco::Mancante) {
        script.expectMessage(kNonImpostato);
    }
    scrivi({"Genazzano", "RM", "00030", ""});
    EXPECT_EQ(quanti("Comuni where DES_COMUNE = 'Genazzano'"), caso.elenco == Elenco::Mancante ? 0 : 1)
        << "without its list no new one can be stored";
}

INSTANTIATE_TEST_SUITE_P(Di, RifiutoDeiComuni,
                         testing::Values(Rifiuto{"Apertura", 1, true, false, Elenco::Filtrato},
                                         Rifiuto{"Registrazione", 2, false, false, Elenco::Intero},
                                         Rifiuto{"Rilettura", 3, false, true, Elenco::Intero},
                                         Rifiuto{"Elenco", 4, false, true, Elenco::Mancante}),
                         kNomeDelCaso);

TEST_F(ComuniForm, ARefusalOfTheStatesEndsTheLoadAndTheTimerTellsThatTheyAreMissing) {
    script.expectMessage(kRifiuto);
    script.expectMessage(kNonImpostato);
    const GuastoAPosto guasto(1);
    GrigliaForm::apri();
    support::Gui::waitFor("the boxes", [this] { return script.allShown(); });
    EXPECT_EQ(guasto.inviate(), 1);
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_EQ(combo(), "");
}

TEST_F(ComuniForm, ARefusalOfTheListLeavesTheStates) {
    script.expectMessage(kRifiuto);
    const GuastoAPosto guasto(2);
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(guasto.inviate(), 4);
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_GT(pagina.combo("DataCombo1").count(), 200);
}

TEST_F(ComuniForm, ARefusalOfTheTimersFirstReadingIsToldOnceAndLeavesTheStateBlank) {
    script.expectMessage(kRifiuto);
    const GuastoAPosto guasto(3);
    GrigliaForm::apri();
    support::Gui::waitFor("the box", [this] { return script.allShown(); });
    constexpr int kVieneAncora = 30;
    QTest::qWait(kVieneAncora);
    EXPECT_EQ(guasto.inviate(), 3) << "the timer is off";
    EXPECT_EQ(combo(), "");
    EXPECT_GT(pagina.rows("DataGrid1"), 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ComuniForm, ARefusalOfTheTimersSecondReadingIsToldAndEmptiesTheListOfStates) {
    script.expectMessage(kRifiuto);
    const GuastoAPosto guasto(4);
    GrigliaForm::apri();
    support::Gui::waitFor("the box", [this] { return script.allShown(); });
    EXPECT_EQ(combo(), "Seleziona");
    EXPECT_EQ(pagina.combo("DataCombo1").count(), 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ComuniForm, ARefusalBehindADuplicateIsToldInItsPlaceAndTheFieldsStay) {
    apri();
    scrivi({"Zagarolo", "RM", "00039", "Italia"});
    scrivi({"Aosta", "AO", "11100"});
    script.expectMessage(kRifiuto);
    const GuastoAPosto guasto(1);
    invio();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(testo("DES_COMUNE"), "Aosta");
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace vabo

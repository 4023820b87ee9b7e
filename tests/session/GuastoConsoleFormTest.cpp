// The company console while its server fails, and how it works again.

#include "controls/DataCombo.h"
#include "session/GuastoFormFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"

namespace vabo {
namespace {

using support::kCompany;
using support::kOtherCompany;

class GuastoConsole : public GuastoForm {
protected:
    GuastoConsole() {
        NomeTerminale = support::kTerminalName;
        apri();
    }
    void apri() {
        gui.forms().show("Avvio_Azienda");
        gui.waitForFront("Avvio_Azienda");
    }
    void scegli(const char* database) { gui.pick("Avvio_Azienda", "DataCombo1", companyName(database)); }
    /// Runs the handler of a pick directly, since the exception for the end of the process can't pass through the
    /// toolkit.
    bool finisceScegliendo(const std::string& nome) {
        auto& elenco = gui.find<controls::DataCombo>("Avvio_Azienda", "DataCombo1");
        elenco.setText(nome);
        return end.endedBy([&] { emit elenco.Click(controls::DataCombo::List); });
    }
    void aspettaAperta(const char* database) {
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        EXPECT_EQ(gui.text("Avvio_Azienda", "aziendaAperta"), companyName(database));
        EXPECT_EQ(NomeDatabase, database);
        ASSERT_TRUE(DbAzienda.IsOpen());
        EXPECT_NO_THROW(DbAzienda.Execute("update Sede set idsede = idsede"));
    }
    void apriTabelle() {
        gui.click("Avvio_Azienda", "cmdClose");
        gui.waitForFront("Avvio_Morlan");
        EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    }
    void chiudiTabelle() {
        gui.click("Avvio_Morlan", "Command13");
        gui.waitForFront("Avvio_Azienda");
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    }
};

class GuastoNellElenco : public GuastoConsole, public testing::WithParamInterface<Guasto> {};

TEST_P(GuastoNellElenco, ACompanyPickedCanNotBeLoadedAndTheProcessEndsAfterOneWaitAtMost) {
    const std::string nome = companyName(kOtherCompany);
    guasto.avviene(GetParam());
    const auto puntatori = guasto.puntatori();
    script.expectMessage(kNonCaricabile);
    bool finito = false;
    support::inOneEvent([&] { finito = finisceScegliendo(nome); });
    EXPECT_TRUE(finito);
    EXPECT_EQ(guasto.muto.callers(), GetParam() == Guasto::Muto ? 1 : 0);
    EXPECT_EQ(guasto.puntatori(), puntatori);
    guasto.ripara();
    ricomincia();
    gui.forms().show("Avvio");
    gui.waitForFront("About");
    EXPECT_TRUE(DbAzienda.IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoNellElenco, testing::ValuesIn(kGuasti), kNomeDelGuasto);

class ServerTornato : public GuastoConsole, public testing::WithParamInterface<Guasto> {};

TEST_P(ServerTornato, IsReachedAgainByAPickInTheList) {
    guasto.avviene(GetParam());
    guasto.ripara();
    for (const char* database : {kOtherCompany, kCompany}) {
        scegli(database);
        aspettaAperta(database);
    }
}

TEST_P(ServerTornato, OpensTheGeneralTablesWithTheirDataAgain) {
    guasto.avviene(GetParam());
    script.expectMessage(GetParam() == Guasto::Gelato ? kMuto : kCaduto);
    apriTabelle();
    EXPECT_EQ(gui.find<controls::DataCombo>("Avvio_Morlan", "DCBItem1").count(), 0);
    guasto.ripara();
    chiudiTabelle();
    apriTabelle();
    EXPECT_GT(gui.find<controls::DataCombo>("Avvio_Morlan", "DCBItem1").count(), 0);
}

INSTANTIATE_TEST_SUITE_P(Dopo, ServerTornato, testing::Values(Guasto::Spento, Guasto::Gelato), kNomeDelGuasto);

TEST_F(GuastoConsole, AtWhateverStatementOfAPickTheServerEndsTheProcessEndsOrTheNextPickWorks) {
    const std::string nome = companyName(kOtherCompany);
    const int tutte = inviateDurante([&] { EXPECT_FALSE(finisceScegliendo(nome)); });
    ASSERT_GT(tutte, 8);
    const support::HeardBoxes scatole;
    for (int fatale = 1; fatale <= tutte; ++fatale) {
        SCOPED_TRACE(fatale);
        const std::size_t prima = scatole.texts.size();
        bool finito = false;
        spegniAllIstruzione(fatale, [&] { finito = finisceScegliendo(nome); });
        guasto.ripara();
        const std::vector<std::string> dette(scatole.texts.begin() + static_cast<long>(prima), scatole.texts.end());
        EXPECT_EQ(dette, finito ? std::vector<std::string>{kNonCaricabile} : std::vector<std::string>{});
        if (finito) {
            ricomincia();
            NomeTerminale = support::kTerminalName;
            apri();
        }
        scegli(kCompany);
        aspettaAperta(kCompany);
    }
}

TEST_F(GuastoConsole, TheConsoleLoadedWithoutItsServerEndsTheProcess) {
    ricomincia();
    NomeTerminale = support::kTerminalName;
    guasto.avviene(Guasto::Spento);
    script.expectMessage(kIrraggiungibile);
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio_Azienda"); }));
}

} // namespace
} // namespace vabo

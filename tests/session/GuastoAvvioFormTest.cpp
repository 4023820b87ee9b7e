// The start of the program while its server fails.

#include "session/ApriDbSede.h"
#include "session/GuastoFormFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace vabo {
namespace {

class GuastoAvvio : public GuastoForm {
protected:
    void aspettaLogin() {
        gui.forms().show("Avvio");
        gui.waitForFront("About");
        EXPECT_EQ(gui.visibleForms(), "About");
        EXPECT_TRUE(DbAzienda.IsOpen());
        EXPECT_TRUE(DbTemp.IsOpen());
    }
};

class GuastoAllAvvio : public GuastoAvvio, public testing::WithParamInterface<Guasto> {};

TEST_P(GuastoAllAvvio, IsToldInItsOwnWordsThenTheProcessEndsAndTheNextStartGoesWell) {
    guasto.avviene(GetParam());
    const auto puntatori = guasto.puntatori();
    script.expectMessage(Descrizione(GetParam()));
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_EQ(guasto.puntatori(), puntatori);
    EXPECT_FALSE(std::filesystem::exists(workstation.dataSourceFile()));
    guasto.ripara();
    ricomincia();
    aspettaLogin();
}

class GuastoLocale : public GuastoAvvio, public testing::WithParamInterface<Guasto> {};

TEST_P(GuastoLocale, OfTheLocalInstanceAloneIsNotToldAndTheLoginComesAfterOneWaitAtMost) {
    const std::string server = *workstation.fileText("C:\\vabo\\IndirizzoServer.txt");
    guasto.avviene(GetParam());
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", server);
    const auto puntatori = guasto.puntatori();
    support::inOneEvent([&] { gui.forms().show("Avvio"); });
    gui.waitForFront("About");
    EXPECT_EQ(guasto.muto.callers(), GetParam() == Guasto::Muto ? 1 : 0);
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_FALSE(DbTemp.IsOpen());
    EXPECT_EQ(LinguaCorrente, "IT");
    EXPECT_EQ(guasto.puntatori(), puntatori);
    guasto.ripara();
    EXPECT_TRUE(ApriDbTemp());
}

TEST_P(GuastoAllAvvio, KeepsTheTemporaryDatabaseShutWithoutAWord) {
    ASSERT_TRUE(ApriDbTemp());
    guasto.avviene(GetParam());
    EXPECT_FALSE(ApriDbTemp());
    EXPECT_FALSE(DbTemp.IsOpen());
    guasto.ripara();
    EXPECT_TRUE(ApriDbTemp());
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoAllAvvio, testing::ValuesIn(kGuasti), kNomeDelGuasto);

// Both servers are one process: a failure of the process affects both.
INSTANTIATE_TEST_SUITE_P(Di, GuastoLocale,
                         testing::Values(Guasto::Muto, Guasto::PortaSbagliata, Guasto::PasswordSbagliata),
                         kNomeDelGuasto);

TEST_F(GuastoAvvio, WithoutTheControlDatabaseTheServersWordsAreToldAndTheProcessEnds) {
    drop(support::kControlDatabase);
    script.expectMessage("Cannot open database \"vabodatiazienda\" requested by the login. The login failed.");
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
}

TEST_F(GuastoAvvio, AtWhateverStatementTheServerEndsOneBoxTellsItTheProcessEndsAndTheNextStartGoesWell) {
    aspettaLogin(); // makes the temporary database
    ricomincia();
    const support::HeardBoxes scatole;
    const int tutte = inviateDurante([this] { aspettaLogin(); });
    ASSERT_GT(tutte, 20);
    const auto puntatori = guasto.puntatori();
    for (int fatale = 1; fatale <= tutte; ++fatale) {
        SCOPED_TRACE(fatale);
        ricomincia();
        const std::size_t prima = scatole.texts.size();
        bool finito = false;
        spegniAllIstruzione(fatale, [&] { finito = end.endedBy([&] { gui.forms().show("Avvio"); }); });
        EXPECT_TRUE(finito);
        ASSERT_EQ(scatole.texts.size(), prima + 1);
        EXPECT_THAT(scatole.texts.back(), testing::AnyOf(kCaduto, kNonCaricabile));
        guasto.ripara();
        EXPECT_EQ(guasto.puntatori(), puntatori);
    }
    ricomincia();
    aspettaLogin();
}

TEST_F(GuastoAvvio, InTheMiddleOfWhateverAnswerTheWireIsCutOneBoxTellsItTheProcessEndsAndTheNextStartGoesWell) {
    constexpr long kProve = 60;
    const auto filo = guasto.filo();
    aspettaLogin(); // makes the temporary database
    ricomincia();
    filo->mend();
    aspettaLogin();
    const long tutti = filo->passed();
    const auto puntatori = guasto.puntatori();
    const support::HeardBoxes scatole;
    for (long prova = 0; prova < kProve; ++prova) {
        SCOPED_TRACE(prova);
        ricomincia();
        const std::size_t prima = scatole.texts.size();
        filo->cutAfter(tutti * prova / kProve);
        EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
        ASSERT_EQ(scatole.texts.size(), prima + 1);
        EXPECT_THAT(scatole.texts.back(), testing::AnyOf(kIrraggiungibile, kCaduto, kNonCaricabile));
        EXPECT_EQ(guasto.puntatori(), puntatori);
        filo->mend();
    }
    ricomincia();
    aspettaLogin();
}

} // namespace
} // namespace vabo

// The form of the users while its server ends or falls silent.

#include "UtentiForm.h"
#include "session/FailureFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"
#include "support/SomebodyElse.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>

namespace vabo {
namespace {

class LoginServer : public UtentiForm {
protected:
    LoginServer() { riprendiAzienda(); }
    void riprendiAzienda() {
        DbAzienda.Close();
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
    }
    void riapri() {
        gui.forms().unload("Login");
        support::Gui::handleEvents();
        apri();
    }
    /// The boxes shown while `lavoro` runs and the server fails ahead of the statement of that number.
    Testi dette(int fatale, Failure guasto, const std::function<void()>& lavoro) {
        const support::HeardBoxes scatole;
        int inviate = 0;
        const support::SomebodyElse altro([&](const std::string& /*testo*/) {
            if (++inviate == fatale) {
                server.fail(guasto);
            }
        });
        support::inOneEvent(lavoro);
        EXPECT_GE(inviate, fatale);
        return scatole.texts;
    }

    FailingServer server{posto};
};

TEST_F(LoginServer, AtWhateverStatementOfASaveItEndsThatIsToldAndTheRowIsWholeOrAsItWas) {
    apri();
    constexpr int kScrittura = 5, kTutte = 6; // two tests, the row, its hold, its values, the list
    for (int fatale = 1; fatale <= kTutte; ++fatale) {
        SCOPED_TRACE(fatale);
        esegui("update AbilitazioneAccessi set A_Cancella = 0 where NomeUtente = 'contabile'");
        riapri();
        scegli("contabile");
        invioNelNome();
        spazioSu("txtA_Cancella");
        const Testi testi = dette(fatale, Failure::Ended, [this] { premi("cmdUpdate"); });
        EXPECT_THAT(testi, testing::AnyOf(Testi{kLinkFailure}, Testi{kOutOfReach}));
        EXPECT_TRUE(gui.isVisible("Login"));
        const bool salvato = fatale > kScrittura;
        EXPECT_EQ(nome(), salvato ? "" : "contabile");
        EXPECT_EQ(caselle(), salvato ? "000000000002" : "011110010000") << "what was typed stays until it is stored";
        server.repair();
        EXPECT_EQ(flag("contabile"), salvato ? "011110010000" : "010110010000");
        riprendiAzienda();
        premi("cmdUpdate");
        EXPECT_EQ(flag("contabile"), "011110010000");
        EXPECT_EQ(nome(), "");
    }
}

TEST_F(LoginServer, AServerThatFallsSilentIsWaitedForOnce) {
    apri();
    scegli("contabile");
    invioNelNome();
    QElapsedTimer tempo;
    tempo.start();
    EXPECT_EQ(dette(1, Failure::Frozen, [this] { premi("cmdUpdate"); }), Testi{kTimedOut});
    constexpr qint64 kUnAttesa = 10'000; // one second, and as long again for the answer to its cancel
    EXPECT_LT(tempo.elapsed(), kUnAttesa);
    EXPECT_TRUE(aperta());
    server.repair();
    riprendiAzienda();
    premi("cmdUpdate");
    EXPECT_EQ(nome(), "");
}

TEST_F(LoginServer, AListThatCanNotBeReachedLeavesTheFormClosed) {
    server.fail(Failure::Ended);
    {
        const support::HeardBoxes scatole;
        apri();
        EXPECT_THAT(scatole.texts, testing::AnyOf(Testi{kLinkFailure}, Testi{kOutOfReach}));
    }
    EXPECT_FALSE(aperta());
    EXPECT_EQ(elenco(), Riga{});
    server.repair();
    riprendiAzienda();
    riapri();
    EXPECT_EQ(elenco().size(), 4U);
}

} // namespace
} // namespace vabo

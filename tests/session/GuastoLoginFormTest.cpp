// The login while its server fails.

#include "session/GuastoFormFixture.h"
#include "session/TreatForms.h"

#include <QLineEdit>

namespace vabo {
namespace {

class GuastoLogin : public GuastoForm {
protected:
    GuastoLogin() {
        gui.forms().show("About");
        gui.waitForFront("About");
    }
    void entra(const std::string& utente, const std::string& password) {
        for (const std::string& testo : {utente, password}) {
            gui.type(testo);
            gui.press(Qt::Key_Return);
        }
    }
    void aspettaAllaPassword() {
        EXPECT_EQ(gui.visibleForms(), "About");
        EXPECT_EQ(gui.focus(), "About.txtPassword");
        EXPECT_EQ(TentativiLogin, 0) << "nobody has failed but the server";
        EXPECT_EQ(DirittiUtente, Diritti{.Disabilita = kVero});
    }
    void entraAmministratore() {
        gui.waitForFront("Avvio_Azienda");
        EXPECT_EQ(DirittiUtente.Administrator, kVero);
    }
    std::string passwordDi(const std::string& utente) const {
        return workstation.value(support::kCompany,
                                 "select PaswUtente from AbilitazioneAccessi where NomeUtente = '" + utente + "'");
    }
};

TEST_F(GuastoLogin, WhoseServerHasEndedTellsItAtThePasswordCountsNoAttemptAndLetsInOnceItIsBack) {
    guasto.avviene(Guasto::Spento);
    script.expectMessage(kCaduto);
    entra("amministratore", "primavera");
    aspettaAllaPassword();
    guasto.ripara();
    gui.press(Qt::Key_Return);
    entraAmministratore();
}

TEST_F(GuastoLogin, WhoseServerIsSilentTellsItAndLetsInOnceItSpeaksAgain) {
    guasto.avviene(Guasto::Gelato);
    script.expectMessage(kMuto);
    entra("amministratore", "primavera");
    aspettaAllaPassword();
    guasto.ripara();
    gui.press(Qt::Key_Return);
    entraAmministratore();
}

TEST_F(GuastoLogin, AFirstPasswordThatFindsNoServerIsNotStored) {
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    entra("nuovo_utente", "");
    script.expectMessage("Confirm your Password");
    gui.type("sole");
    gui.press(Qt::Key_Return);
    guasto.avviene(Guasto::Spento);
    script.expectMessage(kCaduto);
    gui.type("sole");
    gui.press(Qt::Key_Return);
    aspettaAllaPassword();
    EXPECT_EQ(passwordDi("nuovo_utente"), "NULL");
}

TEST_F(GuastoLogin, ALoginClosedWithoutItsServerLeavesInSilence) {
    guasto.avviene(Guasto::Spento);
    gui.click("About", "Command8");
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(GuastoLogin, TheConsoleBehindItEndsTheProcessWithoutItsServer) {
    guasto.avviene(Guasto::Spento);
    script.expectMessage(kNonCaricabile);
    EXPECT_TRUE(end.endedBy([] { ApriForm("Avvio_Azienda", true); }));
}

} // namespace
} // namespace vabo

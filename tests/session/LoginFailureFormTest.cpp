// The login while its server fails.

#include "session/FailureFormFixture.h"
#include "session/TreatForms.h"

#include <QLineEdit>

namespace vabo {
namespace {

class LoginFailure : public FailureForm {
protected:
    LoginFailure() {
        gui.forms().show("About");
        gui.waitForFront("About");
    }
    void enter(const std::string& user, const std::string& password) {
        for (const std::string& text : {user, password}) {
            gui.type(text);
            gui.press(Qt::Key_Return);
        }
    }
    void expectAtPassword() {
        EXPECT_EQ(gui.visibleForms(), "About");
        EXPECT_EQ(gui.focus(), "About.txtPassword");
        EXPECT_EQ(TentativiLogin, 0) << "nobody has failed but the server";
        EXPECT_EQ(DirittiUtente, Diritti{.Disabilita = kVero});
    }
    void expectAdministratorIn() {
        gui.waitForFront("Avvio_Azienda");
        EXPECT_EQ(DirittiUtente.Administrator, kVero);
    }
    std::string passwordOf(const std::string& user) const {
        return workstation.value(support::kCompany,
                                 "select PaswUtente from AbilitazioneAccessi where NomeUtente = '" + user + "'");
    }
};

TEST_F(LoginFailure, WhoseServerHasEndedTellsItAtThePasswordCountsNoAttemptAndLetsInOnceItIsBack) {
    failing.fail(Failure::Ended);
    script.expectMessage(kLinkFailure);
    enter("amministratore", "primavera");
    expectAtPassword();
    failing.repair();
    gui.press(Qt::Key_Return);
    expectAdministratorIn();
}

TEST_F(LoginFailure, WhoseServerIsSilentTellsItAndLetsInOnceItSpeaksAgain) {
    failing.fail(Failure::Frozen);
    script.expectMessage(kTimedOut);
    enter("amministratore", "primavera");
    expectAtPassword();
    failing.repair();
    gui.press(Qt::Key_Return);
    expectAdministratorIn();
}

TEST_F(LoginFailure, AFirstPasswordThatFindsNoServerIsNotStored) {
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    enter("nuovo_utente", "");
    script.expectMessage("Confirm your Password");
    gui.type("sole");
    gui.press(Qt::Key_Return);
    failing.fail(Failure::Ended);
    script.expectMessage(kLinkFailure);
    gui.type("sole");
    gui.press(Qt::Key_Return);
    expectAtPassword();
    EXPECT_EQ(passwordOf("nuovo_utente"), "NULL");
}

TEST_F(LoginFailure, ALoginClosedWithoutItsServerLeavesInSilence) {
    failing.fail(Failure::Ended);
    gui.click("About", "Command8");
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(LoginFailure, TheConsoleBehindItEndsTheProcessWithoutItsServer) {
    failing.fail(Failure::Ended);
    script.expectMessage(kNotLoadable);
    EXPECT_TRUE(end.endedBy([] { ApriForm("Avvio_Azienda", true); }));
}

} // namespace
} // namespace vabo

// The login where the user's row changes meanwhile, holds nulls, or can't be read.

#include "rights/AbilitazioneUtente.h"
#include "session/FormFixture.h"
#include "session/RegoleLogin.h"
#include "support/SomebodyElse.h"

#include <QLineEdit>

namespace {

using namespace vabo;
using support::kCompany;

class AboutRighe : public FormTest {
protected:
    void show() {
        gui.forms().show("About");
        gui.waitForFront("About");
    }
    void login(const std::string& user, const std::string& password) {
        gui.type(user);
        gui.press(Qt::Key_Return);
        gui.type(password);
        gui.press(Qt::Key_Return);
    }
    /// The table of users as another program might have created it.
    void usersWhoseDisabilitaIs(const std::string& value) const {
        workstation.run(kCompany, "drop table AbilitazioneAccessi");
        workstation.run(kCompany,
                        "create table AbilitazioneAccessi (idautonumber int identity(1,1) not null, NomeUtente "
                        "nvarchar(25) null, PaswUtente nvarchar(12) null, Administrator bit null, A_Inserisci bit "
                        "null, A_Cancella bit null, A_Iva bit null, A_Bilancio bit null, A_Personale bit null, "
                        "A_ArchivioStoria bit null, A_PFinanza bit null, A_Synchro bit null, A_EmettiPagamenti bit "
                        "null, A_Progetta bit null, Disabilita int null)");
        workstation.run(kCompany, "insert into AbilitazioneAccessi values ('contabile', 'estate24', 1, 1, 1, 1, 1, 1, "
                                  "1, 1, 1, 1, 1, " +
                                      value + ")");
    }
};

// Null is not true, so the user passes the login; then it goes into no flag of the rights.
TEST_F(AboutRighe, AUserOfWhomItIsUnknownWhetherDisabledIsStoppedByTheRights) {
    usersWhoseDisabilitaIs("null");
    show();
    script.expectMessage("Invalid use of Null");
    login("contabile", "estate24");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(gui.visibleForms(), "About");
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
    EXPECT_EQ(TentativiLogin, 0);
}

TEST_F(AboutRighe, WhateverIsNotZeroDisables) {
    for (const char* value : {"1", "-1", "2"}) {
        usersWhoseDisabilitaIs(value);
        show();
        script.expectMessage("User not allowed! ");
        login("contabile", "estate24");
        EXPECT_EQ(gui.visibleForms(), "") << value;
    }
    usersWhoseDisabilitaIs("0");
    show();
    login("contabile", "estate24");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

// The loading of the rights has no result that the login could look at.
TEST_F(AboutRighe, AUserDeletedBetweenTheCheckAndTheRightsComesInWithTheRightsOfNobody) {
    show();
    script.expectMessage("Utente non abilitato! ");
    {
        const support::SomebodyElse administrator([this](const std::string& text) {
            if (text.starts_with("Select  idautonumber,")) {
                workstation.run(kCompany, "delete from AbilitazioneAccessi where NomeUtente = 'contabile'");
            }
        });
        login("contabile", "estate24");
    }
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded("About"));
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
    EXPECT_EQ(NomeUtenteLogin, "contabile");
}

TEST_F(AboutRighe, ATableThatCanNotBeReadOpensTheConsoleWithEveryRight) {
    workstation.run(kCompany, "drop table AbilitazioneAccessi");
    gui.forms().show("About");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded("About"));
    EXPECT_EQ(DirittiUtente, kDirittiLoginSenzaUtenti);
}

TEST_F(AboutRighe, GettingTheFocusSelectsTheWholeFirstPassword) {
    show();
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    login("nuovo_utente", "");
    gui.type("inverno");
    auto& first = gui.find<QLineEdit>("About", "txtPassword1");
    gui.find("About", "Command8").setFocus();
    first.setFocus();
    EXPECT_EQ(first.selectedText(), "inverno");
}

TEST_F(AboutRighe, GettingTheFocusSelectsTheWholePassword) {
    show();
    gui.type("contabile");
    gui.press(Qt::Key_Return);
    gui.type("estate");
    auto& password = gui.find<QLineEdit>("About", "txtPassword");
    gui.find("About", "Command8").setFocus();
    password.setFocus();
    EXPECT_EQ(password.selectedText(), "estate");
}

TEST_F(AboutRighe, TheSharedRecordsetsAreTakenBackBehindTheBranch) {
    PreparaLogin();
    RsCondivisi(4).Open("select * from Sede", DbAzienda);
    ApriDatiLogin();
    EXPECT_FALSE(RsCondivisi(4).IsOpen());
}

} // namespace

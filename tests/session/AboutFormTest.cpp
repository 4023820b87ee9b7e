#include "rights/AbilitazioneUtente.h"
#include "session/FormFixture.h"

#include <QApplication>
#include <QLineEdit>

namespace {

using namespace vabo;
using support::kCompany;

class AboutForm : public FormTest {
protected:
    void show() {
        gui.forms().show("About");
        gui.waitForFront("About");
    }
    bool enabled(const char* control) { return gui.find("About", control).isEnabled(); }
    bool visible(const char* control) { return gui.find("About", control).isVisible(); }
    QLineEdit& field(const char* name) { return gui.find<QLineEdit>("About", name); }

    /// Types and presses Enter in the field that has the focus.
    void enter(const std::string& text) {
        gui.type(text);
        gui.press(Qt::Key_Return);
    }
    void login(const std::string& user, const std::string& password) {
        enter(user);
        enter(password);
    }
    std::string passwordOf(const std::string& user) const {
        return workstation.value(kCompany,
                                 "select PaswUtente from AbilitazioneAccessi where NomeUtente = '" + user + "'");
    }
    void refuse(int times) {
        for (int i = 0; i < times; ++i) {
            script.expectMessage("User not allowed! ");
        }
    }
    void expectIn() {
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        EXPECT_FALSE(gui.forms().isLoaded("About"));
    }
};

TEST_F(AboutForm, PresentsTheProgram) {
    show();
    EXPECT_EQ(gui.form("About").windowTitle(), "Tlv - Aldane Works Software Solutions - Ver.Nr. 1.2.3");
    EXPECT_EQ(gui.text("About", "lblVersion"), "VaBo - Ver.Nr. 1.2.3");
    EXPECT_EQ(gui.text("About", "lblCopyright"), "Copyright (c) 2026 the maintainers");
    EXPECT_EQ(gui.text("About", "Label21"), "Login");
    EXPECT_EQ(gui.text("About", "lblPlatform"), "Piattaforma SQL");
    EXPECT_EQ(gui.text("About", "lblLabels"), "User Name");
    EXPECT_EQ(gui.text("About", "PswLabels_0"), "Password :");
    EXPECT_EQ(gui.text("About", "Command8"), "Chiudi il programma");
    for (const char* name : {"lblProductName", "lblCompanyProduct", "Label1", "Frame1", "Picture1"}) {
        EXPECT_TRUE(visible(name)) << name;
    }
}

TEST_F(AboutForm, TheListsOfDrivesFoldersAndFilesAreHidden) {
    show();
    for (const char* name : {"Drive1", "Dir1", "File1"}) {
        EXPECT_FALSE(visible(name)) << name;
    }
}

TEST_F(AboutForm, StartsAtTheNameWithThePasswordDisabled) {
    show();
    EXPECT_EQ(gui.focus(), "About.txtUserName");
    EXPECT_TRUE(visible("txtPassword"));
    EXPECT_FALSE(enabled("txtPassword"));
    EXPECT_FALSE(visible("txtPassword1"));
    EXPECT_FALSE(enabled("txtPassword1"));
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
    EXPECT_EQ(ServerMancante, kFalso);
}

TEST_F(AboutForm, ItsButtonHasAMnemonic) {
    show();
    EXPECT_EQ(gui.mnemonics("About"), "C");
}

TEST_F(AboutForm, TheFieldsTakeOnlySoMuchAndHidePasswords) {
    show();
    EXPECT_EQ(field("txtUserName").maxLength(), 25);
    EXPECT_EQ(field("txtPassword").maxLength(), 12);
    EXPECT_EQ(field("txtPassword1").maxLength(), 12);
    EXPECT_EQ(field("txtPassword").echoMode(), QLineEdit::Password);
    EXPECT_EQ(field("txtPassword1").echoMode(), QLineEdit::Password);
    gui.type(std::string(40, 'x'));
    EXPECT_EQ(field("txtUserName").text().length(), 25);
}

TEST_F(AboutForm, EveryControlHasTheHelpTopic) {
    show();
    EXPECT_EQ(gui.form("About").property("HelpContextID").toInt(), 44);
    for (const char* name : {"txtUserName", "txtPassword", "txtPassword1", "Command8", "Label21"}) {
        EXPECT_EQ(gui.find("About", name).property("HelpContextID").toInt(), 44) << name;
    }
}

TEST_F(AboutForm, TheKeyboardAloneLogsIn) {
    show();
    login("amministratore", "primavera");
    expectIn();
    EXPECT_EQ(DirittiUtente.Administrator, kVero);
    EXPECT_EQ(DirittiUtente.A_Progetta, kFalso);
    EXPECT_EQ(NomeUtenteLogin, "amministratore");
    EXPECT_EQ(TentativiLogin, 0);
}

TEST_F(AboutForm, CapitalsCountInNeither) {
    show();
    login("Amministratore", "PrimaVera");
    expectIn();
}

TEST_F(AboutForm, EnterOnANameNormalisesItAndGoesToThePassword) {
    show();
    enter("Due Parole");
    EXPECT_EQ(gui.text("About", "txtUserName"), "due_parole");
    EXPECT_EQ(gui.focus(), "About.txtPassword");
    EXPECT_TRUE(enabled("txtPassword"));
}

TEST_F(AboutForm, ANameWithABlankIsFoundAsItIsStored) {
    workstation.run(kCompany,
                    "update AbilitazioneAccessi set NomeUtente = 'maria_rossi' where NomeUtente = 'contabile'");
    show();
    login("Maria Rossi", "estate24");
    expectIn();
    EXPECT_EQ(NomeUtenteLogin, "maria_rossi");
}

TEST_F(AboutForm, EnterOnAnEmptyNameStaysWhereItIs) {
    show();
    for (const char* name : {"", "0", "00", "0000"}) {
        field("txtUserName").clear();
        enter(name);
        EXPECT_EQ(gui.focus(), "About.txtUserName") << name;
        EXPECT_FALSE(enabled("txtPassword")) << name;
    }
}

TEST_F(AboutForm, TabInThePasswordIsTheCheck) {
    show();
    enter("amministratore");
    gui.type("primavera");
    gui.press(Qt::Key_Tab);
    expectIn();
}

TEST_F(AboutForm, TabInTheNameIsATab) {
    show();
    gui.type("amministratore");
    gui.press(Qt::Key_Tab);
    EXPECT_FALSE(enabled("txtPassword"));
    EXPECT_EQ(gui.focus(), "About.Command8");
}

TEST_F(AboutForm, AWrongPasswordGoesBackToTheName) {
    show();
    refuse(1);
    login("amministratore", "estate");
    EXPECT_EQ(TentativiLogin, 1);
    EXPECT_EQ(gui.focus(), "About.txtUserName");
    EXPECT_FALSE(enabled("txtPassword"));
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
    login("amministratore", "primavera");
    expectIn();
    EXPECT_EQ(TentativiLogin, 0);
}

TEST_F(AboutForm, AnUnknownNameAndAnEmptyPasswordAreRefusedAlike) {
    show();
    refuse(2);
    login("nessuno", "primavera");
    enter("amministratore");
    gui.press(Qt::Key_Delete); // the former password is still in the field, selected
    enter("");
    EXPECT_EQ(TentativiLogin, 2);
    EXPECT_TRUE(gui.isVisible("About"));
}

TEST_F(AboutForm, TheFourthFailureClosesTheForm) {
    show();
    refuse(4);
    script.expectMessage("It is no more possible to try! ");
    for (int i = 0; i < 4; ++i) {
        login("amministratore", "estate");
    }
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_FALSE(gui.forms().isLoaded("About"));
}

TEST_F(AboutForm, AnotherShowingForgetsTheAttempts) {
    show();
    refuse(4);
    for (int i = 0; i < 3; ++i) {
        login("amministratore", "estate");
    }
    gui.forms().unload("About");
    show();
    EXPECT_EQ(TentativiLogin, 0);
    login("amministratore", "estate");
    EXPECT_EQ(TentativiLogin, 1);
    EXPECT_TRUE(gui.isVisible("About"));
}

TEST_F(AboutForm, ADisabledUserIsSentAwayAtOnce) {
    show();
    refuse(1);
    login("disabilitato", "autunno");
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_EQ(TentativiLogin, 0) << "no attempt is counted";
}

TEST_F(AboutForm, ANewUserSetsAPasswordTypedTwice) {
    show();
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    login("nuovo_utente", "");
    EXPECT_EQ(gui.focus(), "About.txtPassword1");
    EXPECT_FALSE(visible("txtPassword"));
    EXPECT_EQ(gui.text("About", "PswLabels_0"), "Password :");
    script.expectMessage("Confirm your Password");
    enter("Inverno-1");
    EXPECT_EQ(gui.focus(), "About.txtPassword");
    EXPECT_FALSE(visible("txtPassword1"));
    EXPECT_FALSE(enabled("txtPassword1"));
    EXPECT_EQ(gui.text("About", "PswLabels_0"), "Password (repeat):");
    enter("INVERNO 1");
    expectIn();
    EXPECT_EQ(passwordOf("nuovo_utente"), "inverno_1") << "both are normalised";
    EXPECT_EQ(DirittiUtente.A_Inserisci, kVero);
    EXPECT_EQ(NomeTerminale, support::kTerminalName) << "cleaned again by the console";
}

TEST_F(AboutForm, TabInTheFirstEntryIsATab) {
    show();
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    login("nuovo_utente", "");
    gui.type("inverno");
    gui.press(Qt::Key_Tab);
    EXPECT_TRUE(visible("txtPassword1"));
    EXPECT_EQ(gui.focus(), "About.Command8");
}

TEST_F(AboutForm, TwoFirstPasswordsThatDifferStartAgain) {
    show();
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    login("nuovo_utente", "");
    script.expectMessage("Confirm your Password");
    enter("inverno");
    script.expectMessage("Wrong password, retry!");
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    enter("inferno");
    EXPECT_EQ(passwordOf("nuovo_utente"), "NULL");
    EXPECT_EQ(gui.focus(), "About.txtPassword1");
    EXPECT_EQ(gui.text("About", "txtPassword"), "");
    EXPECT_EQ(gui.text("About", "txtPassword1"), "");
    script.expectMessage("Confirm your Password");
    enter("inverno");
    enter("inverno");
    expectIn();
    EXPECT_EQ(passwordOf("nuovo_utente"), "inverno");
}

TEST_F(AboutForm, AFirstPasswordOfZerosIsNone) {
    show();
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    login("nuovo_utente", "");
    script.expectMessage("Confirm your Password");
    enter("00");
    script.expectMessage("Please enter your personal Password, max length. 12 char");
    enter("00");
    EXPECT_EQ(gui.text("About", "PswLabels_0"), "Password :");
    EXPECT_EQ(passwordOf("nuovo_utente"), "NULL");
    EXPECT_TRUE(gui.isVisible("About"));
}

TEST_F(AboutForm, ANameChangedBehindItsEnterIsNormalisedAllTheSame) {
    show();
    enter("amministratore");
    field("txtUserName").setText("x' or 'a'='a");
    field("txtPassword").setFocus();
    refuse(1);
    const support::StatementRecorder recorder;
    enter("primavera");
    EXPECT_EQ(recorder.count("select * from AbilitazioneAccessi where  NomeUtente = 'x__or__a___a' and  PaswUtente = "
                             "'primavera'"),
              1);
}

TEST_F(AboutForm, GettingTheFocusSelectsTheWholeText) {
    show();
    enter("amministratore");
    field("txtUserName").setFocus();
    EXPECT_EQ(field("txtUserName").selectedText(), "amministratore");
}

TEST_F(AboutForm, TheButtonClosesItAndReadsTheTemporaryDatabase) {
    show();
    DbTemp.Close();
    gui.click("About", "Command8");
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_TRUE(DbTemp.IsOpen());
}

TEST_F(AboutForm, TheButtonWorksByTheKeyboard) {
    show();
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(gui.focus(), "About.Command8");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "");
}

TEST_F(AboutForm, AnEmptyTableOfUsersOpensTheConsoleWithEveryRight) {
    noUsers();
    gui.forms().show("About");
    expectIn();
    EXPECT_EQ(DirittiUtente, kDirittiLoginSenzaUtenti);
    EXPECT_EQ(DirittiUtente.A_Progetta, kVero);
}

TEST_F(AboutForm, WritesTheLocalPointerFileWhereItIsMissing) {
    removeFile("C:\\vabo\\IndirizzoServerLocal.txt");
    show();
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServerLocal.txt"),
              "Driver=SQL Server;Server=" + workstation.serverName() + ";ID utente=;Password=;\r\n");
}

TEST_F(AboutForm, ACompanyOutOfReachGivesWayToTheFormOfTheDataSources) {
    // The server lists the database, but its file can't be opened.
    const std::string file = workstation.value(
        "master", std::string("select filename from master.dbo.sysdatabases where name = '") + kCompany + "'");
    workstation.putFile(file, "no database");
    gui.forms().show("About");
    EXPECT_EQ(ServerMancante, kVero);
    EXPECT_FALSE(gui.forms().isLoaded("About"));
    EXPECT_EQ(gui.visibleForms(), "FormRegistraAziendeNeiDns");
    EXPECT_EQ(PilaForm.back(), "FormRegistraAziendeNeiDns");
}

} // namespace

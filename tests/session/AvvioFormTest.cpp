#include "ado/Connection.h"
#include "controls/ProgressBar.h"
#include "rights/AbilitazioneUtente.h"
#include "session/FormFixture.h"
#include "session/LinguaClient.h"
#include "support/HeardBoxes.h"

#include <QApplication>

namespace {

using namespace vabo;
using support::kCompany;

using AvvioForm = FormTest;

TEST_F(AvvioForm, SaysWhatItDoesWithVersionAndDatabase) {
    gui.forms().show("Avvio");
    EXPECT_EQ(gui.text("Avvio", "Please"), "Just a moment please, I  restore your connection");
    EXPECT_EQ(gui.text("Avvio", "lblVersion"), "Ver. 1.2.3");
    EXPECT_EQ(gui.text("Avvio", "Label1"), "DataBase :   " + companyName());
}

TEST_F(AvvioForm, HasItsControlsUnderTheirNames) {
    gui.forms().show("Avvio");
    for (const char* name :
         {"lblVersion", "Label1", "Picture1", "ProgressBar1", "Nome", "Please", "lblCompanyProduct", "Label2"}) {
        EXPECT_NO_THROW(gui.find("Avvio", name)) << name;
    }
}

TEST_F(AvvioForm, GivesWayToTheLoginAndStaysLoaded) {
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "About");
    EXPECT_TRUE(gui.forms().isLoaded("Avvio"));
}

// A close isn't a key or a click, so it comes while the form paints.
TEST_F(AvvioForm, ClosedWhileItWorksItGoesOnAndStaysLoaded) {
    int closed = 0;
    ado::setStatementRecorder([&](const std::string& /*text*/) {
        for (const char* name : {"Avvio", "FormRefreshLinks"}) {
            if (gui.isVisible(name)) {
                ++closed;
                QMetaObject::invokeMethod(&gui.form(name), &QWidget::close, Qt::QueuedConnection);
            }
        }
    });
    gui.forms().show("Avvio");
    ado::setStatementRecorder({});
    support::Gui::handleEvents();
    EXPECT_GT(closed, 0);
    EXPECT_TRUE(gui.forms().isLoaded("Avvio"));
    EXPECT_EQ(gui.visibleForms(), "About");
}

TEST_F(AvvioForm, TakesTheCompanyOfTheTerminal) {
    setTerminal(support::kTerminalName, idOf(support::kOtherCompany));
    gui.forms().show("Avvio");
    EXPECT_EQ(NomeTerminale, support::kTerminalName);
    EXPECT_EQ(NomeDatabase, support::kOtherCompany);
    EXPECT_EQ(gui.text("Avvio", "Label1"), "DataBase :   " + companyName(support::kOtherCompany));
}

TEST_F(AvvioForm, WithoutUsersTheConsoleComesWithoutALogin) {
    noUsers();
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded("About"));
    EXPECT_TRUE(gui.forms().isLoaded("Avvio"));
    EXPECT_EQ(DirittiUtente, kDirittiAvvioSenzaUtenti);
    EXPECT_EQ(DirittiUtente.A_Progetta, kFalso);
    EXPECT_EQ(DirittiUtente.Disabilita, kFalso);
}

TEST_F(AvvioForm, ATableOfUsersThatCanNotBeReadLeadsToTheConsoleToo) {
    workstation.run(kCompany, "drop table AbilitazioneAccessi");
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(DirittiUtente, kDirittiAvvioSenzaUtenti);
}

TEST_F(AvvioForm, TheDatabaseCanBeReadBeforeTheSlowSteps) {
    bool seen = false;
    ado::setStatementRecorder([&](const std::string& text) {
        if (text.find("min memory per query") == std::string::npos) {
            return;
        }
        seen = gui.isVisible("Avvio") && gui.text("Avvio", "Label1") == "DataBase :   " + companyName();
    });
    gui.forms().show("Avvio");
    ado::setStatementRecorder({});
    EXPECT_TRUE(seen);
}

TEST_F(AvvioForm, SetsTheServersOptionsThenReadsTheTemporaryDatabaseThenTheUsers) {
    const support::StatementRecorder recorder;
    gui.forms().show("Avvio");
    const auto options = recorder.holding("min memory per query");
    ASSERT_EQ(options.size(), 1U);
    EXPECT_EQ(options[0],
              "EXEC sys.sp_configure N'show advanced options', N'1'  RECONFIGURE WITH OVERRIDE\r\n"
              " EXEC sys.sp_configure N'min memory per query (KB)', N'10240'\r\n RECONFIGURE WITH OVERRIDE \r\n"
              " EXEC sys.sp_configure N'show advanced options', N'0'  RECONFIGURE WITH OVERRIDE");
    const auto users = recorder.holding("AbilitazioneAccessi");
    ASSERT_FALSE(users.empty());
    EXPECT_TRUE(recorder.sentInOrder({options[0], users[0]}));
}

TEST_F(AvvioForm, SendsItsStatementsLetterForLetter) {
    setTerminal(support::kTerminalName, idOf(kCompany));
    NomeTerminale = support::kTerminalName;
    LeggiLinguaClient(""); // makes the temporary database
    AzzeraVariabili();
    const std::string clearOwn = "update link_programmaTerminale set ultimo = 0 where   nometerminale = 'POSTO_7'";
    const std::string setOwn = "update link_programmaTerminale set ultimo = 1 where   nometerminale = 'POSTO_7'";
    const std::string exists = "SELECT name FROM master.dbo.sysdatabases WHERE name = N'VaBoDatiAurora'";
    const std::string makeLanguage = "Create table LinguaClient (id int null, Lingua Nvarchar(2) Null )";
    const std::string readLanguage = "select * from LinguaClient where id = 1";
    const std::string options = "EXEC sys.sp_configure N'show advanced options', N'1'  RECONFIGURE WITH OVERRIDE\r\n"
                                " EXEC sys.sp_configure N'min memory per query (KB)', N'10240'\r\n"
                                " RECONFIGURE WITH OVERRIDE \r\n"
                                " EXEC sys.sp_configure N'show advanced options', N'0'  RECONFIGURE WITH OVERRIDE";
    const std::vector<std::string> takingUp = {
        "delete from link_programmaTerminale where Nometerminale = N'' or Nometerminale is null",
        "Select * from link_programmaTerminale where   Nometerminale like 'POSTO_7'",
        clearOwn,
        setOwn,
        "Select * from link_programmaTerminale where   Nometerminale = 'POSTO_7'",
        "Select * from link_programma  where   id = 1",
        makeLanguage,
        readLanguage,
        setOwn,
        exists,
        exists,
        "delete from link_programmaTerminale where nometerminale = N'' or nometerminale is null",
        "Select * from Sede"};
    const std::vector<std::string> preparation = {makeLanguage,
                                                  readLanguage,
                                                  options,
                                                  "Select * from link_programma where dbname like 'VaBoDatiAurora'",
                                                  "Select * from progetti where id = 10000001",
                                                  "Create table Version (id int null, Version int not null default 1 )",
                                                  "select * from Version where id = 1",
                                                  "INSERT INTO [Version] ([id], [Version]) VALUES (1, 1)",
                                                  makeLanguage,
                                                  readLanguage,
                                                  "select * from [AbilitazioneAccessi]"};
    ASSERT_EQ(idOf(kCompany), 1);
    const support::StatementRecorder recorder;
    gui.forms().show("Avvio");
    // The start takes the company up and prepares the server; the login takes the company up again and reads
    // the folder of the branch's file.
    std::vector<std::string> expected = takingUp;
    expected.insert(expected.end(), preparation.begin(), preparation.end());
    expected.insert(expected.end(), takingUp.begin(), takingUp.end());
    expected.emplace_back("Select * from DirectorySede");
    expected.emplace_back("select * from [AbilitazioneAccessi]");
    EXPECT_EQ(recorder.texts(), expected);
}

TEST_F(AvvioForm, ASecondActivateRunsTheWholeListAgainAndHidesTheForm) {
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    gui.forms().hide("About");
    const support::StatementRecorder recorder;
    gui.forms().show("Avvio");
    support::Gui::handleEvents();
    EXPECT_EQ(recorder.holding("min memory per query").size(), 1U);
    EXPECT_EQ(recorder.count("select * from LinguaClient where id = 1"), 2);
    EXPECT_TRUE(recorder.holding("Nometerminale").empty()) << "the Load doesn't run again";
    EXPECT_EQ(gui.visibleForms(), "About");
    EXPECT_TRUE(gui.forms().isLoaded("Avvio"));
}

TEST_F(AvvioForm, TheWordDornavelCountsInSmallLettersOnly) {
    control("update link_programma set NomeAzienda = 'Gruppo DORNAVEL'");
    gui.forms().show("Avvio");
    EXPECT_EQ(ClienteDornavel, kFalso);
    gui.forms().unload("About");
    gui.forms().unload("Avvio");
    control("update link_programma set NomeAzienda = 'Gruppo dornavel srl'");
    gui.forms().show("Avvio");
    EXPECT_EQ(ClienteDornavel, kVero);
}

TEST_F(AvvioForm, WithoutItsPointerFileTheErrorIsToldAndTheProcessEnds) {
    for (const char* file : {"C:\\vabo\\IndirizzoServer.txt", "C:\\vabo\\NomeServer.txt"}) {
        const std::string line = *workstation.fileText(file);
        removeFile(file);
        script.expectMessage("File not found");
        EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); })) << file;
        workstation.putFile(file, line);
        gui.forms().unload("Avvio");
    }
    EXPECT_EQ(end.ended(), 2);
}

TEST_F(AvvioForm, WithoutACompanyTheProcessEnds) {
    control("delete from link_programma");
    noCompanyDatabases();
    script.expectMessage("Nessun database caricato");
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
}

TEST_F(AvvioForm, ATerminalWithoutACompanyToOpenEndsTheProcess) {
    setTerminal(support::kTerminalName, 1);
    control("delete from link_programma");
    noCompanyDatabases();
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
}

TEST_F(AvvioForm, WithoutAMachineNameItGoesOnWithoutACompany) {
    const support::HeardBoxes boxes;
    const std::vector<std::string>& texts = boxes.texts;
    platform::workstation().machineName.clear();
    gui.forms().show("Avvio");
    EXPECT_EQ(gui.text("Avvio", "Label1"), "DataBase :   ");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0], "Carica Nome PC");
    EXPECT_EQ(texts[1], "Caricare il nome del PC!");
    EXPECT_EQ(texts[2], "Caricare il nome del PC!") << "the console asks again";
    EXPECT_NE(texts[3], "") << "it has no server to read its list from, in the driver's own words";
}

TEST_F(AvvioForm, ItsBarEndsFull) {
    gui.forms().show("Avvio");
    EXPECT_EQ(gui.find<controls::ProgressBar>("Avvio", "ProgressBar1").Value(), 100);
}

} // namespace

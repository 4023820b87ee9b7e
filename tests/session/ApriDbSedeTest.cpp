#include "session/ApriDbSede.h"

#include "ado/Error.h"
#include "platform/DriveC.h"
#include "session/SessionFixture.h"

namespace {

using namespace vabo;

class ApriDbSede : public SessionTest {
protected:
    void serverText(const std::string& text) const {
        workstation.putFile("C:\\vabo\\IndirizzoServer.txt", text + "\r\n");
    }
};

TEST_F(ApriDbSede, TheServerTextIsTheFirstLineOfItsFile) {
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", "Driver=X;Server=uno;UID=sa;PWD=p;\r\nsecond line\r\n");
    workstation.putFile("C:\\vabo\\NomeServer.txt", "uno\nsecond\n");
    EXPECT_EQ(LeggiConnessioneServer(), "Driver=X;Server=uno;UID=sa;PWD=p;");
    EXPECT_EQ(NomeServer, "uno");
}

TEST_F(ApriDbSede, AFileChangedOnTheDiskCountsAtTheNextUse) {
    LeggiConnessioneServer();
    serverText("Server=due;");
    workstation.putFile("C:\\vabo\\NomeServer.txt", "due");
    EXPECT_EQ(LeggiConnessioneServer(), "Server=due;");
    EXPECT_EQ(NomeServer, "due");
}

TEST_F(ApriDbSede, TheTextsOfTheDatabasesHaveNoSemicolonBehind) {
    serverText("Server=uno;UID=sa;PWD=p;");
    NomeDatabase = "VaBoDatiAurora";
    EXPECT_EQ(ConnessioneControllo(), "Server=uno;UID=sa;PWD=p;DATABase=vabodatiazienda");
    EXPECT_EQ(ConnessioneAzienda(), "Server=uno;UID=sa;PWD=p;DATABase=VaBoDatiAurora");
}

TEST_F(ApriDbSede, AMissingServerFileRaisesAndLeavesTheServersName) {
    NomeServer = "prima";
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    EXPECT_THROW(LeggiConnessioneServer(), platform::FileError);
    EXPECT_EQ(NomeServer, "prima");
}

TEST_F(ApriDbSede, AMissingServerNameRaises) {
    removeFile("C:\\vabo\\NomeServer.txt");
    EXPECT_THROW(LeggiConnessioneServer(), platform::FileError);
}

TEST_F(ApriDbSede, TheLocalTextIsTheFirstLineOfItsFileAndWritesNothing) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=locale;\r\n");
    removeFile("C:\\vabo\\IndirizzoServerLocal.txt");
    EXPECT_EQ(Leggi_ServerLocal(), "Server=locale;");
    EXPECT_FALSE(workstation.fileText("C:\\vabo\\IndirizzoServerLocal.txt").has_value());
}

TEST_F(ApriDbSede, WithoutItsFileTheLocalTextIsTheDefaultWrittenToAnotherFile) {
    const std::string expected = "Driver=SQL Server;Server=POSTO_7\\sqlexpress;ID utente=;Password=;";
    removeFile("C:\\vabo\\Leggi_ServerLocal.txt");
    workstation.putFile("C:\\vabo\\IndirizzoServerLocal.txt", "something old\r\nmore\r\n");
    EXPECT_EQ(Leggi_ServerLocal(), expected);
    EXPECT_EQ(Appoggio, expected);
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServerLocal.txt"), expected + "\r\n");
    EXPECT_FALSE(workstation.fileText("C:\\vabo\\Leggi_ServerLocal.txt").has_value());
}

TEST_F(ApriDbSede, TheLocalNameIsTheFirstLineOfItsFile) {
    workstation.putFile("C:\\vabo\\NomeServerLocal.txt", "altro\\sqlexpress\r\n");
    EXPECT_EQ(LeggiNomeServerLocal(), "altro\\sqlexpress");
}

TEST_F(ApriDbSede, OnACleanWorkstationTheFirstCallGivesTheTerminalAndTheSecondTheInstance) {
    removeFile("C:\\vabo\\NomeServerLocal.txt");
    removeFile("C:\\vabo\\Leggi_ServerLocal.txt");
    EXPECT_EQ(LeggiNomeServerLocal(), "POSTO_7");
    EXPECT_EQ(workstation.fileText("C:\\vabo\\Leggi_ServerLocal.txt"), "POSTO_7\\sqlexpress\r\n");
    EXPECT_EQ(workstation.fileText("C:\\vabo\\NomeServerLocal.txt"), "POSTO_7\\sqlexpress\r\n");
    EXPECT_EQ(LeggiNomeServerLocal(), "POSTO_7\\sqlexpress");
}

TEST_F(ApriDbSede, TheLocalFileThatTheFallbackMadeIsNoConnectionText) {
    removeFile("C:\\vabo\\NomeServerLocal.txt");
    LeggiNomeServerLocal();
    EXPECT_EQ(Leggi_ServerLocal(), "POSTO_7\\sqlexpress");
    EXPECT_FALSE(ApriDbTemp());
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(ApriDbSede, TheLocalTextOfAServerHasItsOwnKeys) {
    EXPECT_EQ(StringaServerLocale("POSTO_7"), "Driver=SQL Server;Server=POSTO_7;ID utente=;Password=;");
}

struct Fragment {
    const char* text;
    const char* user;
    const char* password;
};

TEST_F(ApriDbSede, CutsUserAndPasswordWithTheirKeysOutOfTheServerText) {
    const std::vector<Fragment> cases = {
        {"Driver=D;Server=S;UID=sa;PWD=segreta;", "UID=sa", ""},
        {"Driver=D;Server=S;UID=sa;PWD=segreta", "UID=sa", "PWD=segreta"},
        {"Driver=D;Server=S;UID=;PWD=;", "", ""},
        {"Driver=D;Server=S;ID utente=sa;Password=segreta;", "ID utente=sa", ""},
        {"Driver=D;Server=S;ID utente=sa;Password=segreta", "ID utente=sa", "Password=segreta"},
        {"Driver=D;Server=S;ID utente=;Password=;", "", ""},
        {"Driver=D;Server=S;PWD=segreta;UID=sa", "UID=sa", "PWD=segreta"},
        {"Driver=D;Server=S;UID=sa;PWD=;Timeout=5", "UID=sa", "PWD="},
        {"Driver=D;Server=S;uid=sa;pwd=x;", "Driver=D", ""},
        {"", "", ""},
    };
    for (const Fragment& c : cases) {
        // an empty line needs its line break: an empty file raises
        serverText(c.text);
        EXPECT_EQ(LeggiUtenteServer(), c.user) << c.text;
        EXPECT_EQ(Appoggio, c.text);
        EXPECT_EQ(LeggiPasswordServer(), c.password) << c.text;
    }
}

TEST_F(ApriDbSede, TheLastCharacterOfTheServerTextIsLeftInTheWorkString) {
    serverText("Server=S;UID=sa;PWD=segreta;");
    LeggiPasswordServer();
    EXPECT_EQ(SqlLavoro, ";");
    serverText("Server=S;UID=sa;PWD=segreta");
    LeggiPasswordServer();
    EXPECT_EQ(SqlLavoro, "a");
}

TEST_F(ApriDbSede, WritingATextReplacesTheFile) {
    ScriviFileTesto("C:\\vabo\\prova.txt", "una riga molto lunga");
    ScriviFileTesto("C:\\Vabo\\Prova.txt", "due");
    EXPECT_EQ(workstation.fileText("C:\\vabo\\prova.txt"), "due\r\n");
}

TEST_F(ApriDbSede, AFailureToWriteReachesTheCaller) {
    EXPECT_THROW(ScriviFileTesto("C:\\nessuna cartella\\x.txt", "x"), platform::FileError);
    EXPECT_THROW(ScriviFileTesto("C:\\vabo\\sedi", "x"), platform::FileError);
}

TEST_F(ApriDbSede, TheTemporaryDatabaseIsCreatedOnTheFirstOpening) {
    EXPECT_TRUE(ApriDbTemp());
    EXPECT_TRUE(DbTemp.IsOpen());
    EXPECT_EQ(StringaTemp, workstation.driveC().firstLine("C:\\vabo\\Leggi_ServerLocal.txt") + "DATABase=VaBoDatiTemp");
    EXPECT_EQ(DbTemp.ConnectionString(), StringaTemp);
    EXPECT_EQ(workstation.value("master", "select count(*) from sysdatabases where name = 'VaBoDatiTemp'"), "1");
}

TEST_F(ApriDbSede, AnOpenTemporaryDatabaseIsOpenedAnewWithoutCreatingAnything) {
    ASSERT_TRUE(ApriDbTemp());
    const support::StatementRecorder recorder;
    EXPECT_TRUE(ApriDbTemp());
    EXPECT_TRUE(DbTemp.IsOpen());
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(ApriDbSede, WithoutTheFolderOfItsFilesTheTemporaryDatabaseIsTriedOnceMoreAndGivenUp) {
    std::filesystem::remove_all(workstation.driveC().real("C:\\vabo\\sedi"));
    const support::StatementRecorder recorder;
    EXPECT_FALSE(ApriDbTemp());
    EXPECT_EQ(recorder.count("sp_configure 'query timeout',0 RECONFIGURE"), 1);
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(ApriDbSede, ALocalInstanceThatDoesNotAnswerGivesNoMessageAndCreatesNothing) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Driver=SQL Server;Server=127.0.0.1,9;\r\n");
    const support::StatementRecorder recorder;
    EXPECT_FALSE(ApriDbTemp());
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(ApriDbSede, TheBranchGivesItsTownAndItsNumber) {
    StringaAzienda = server + "DATABase=" + support::kCompany + ";";
    const support::StatementRecorder recorder;
    EXPECT_EQ(LeggiSede(), "Torino");
    EXPECT_EQ(IdSede, 1);
    EXPECT_EQ(IdSedeCopia, 1);
    EXPECT_EQ(Sql, "Select * from Sede");
    EXPECT_EQ(recorder.count("Select * from Sede"), 1);
}

TEST_F(ApriDbSede, AnEmptyTableOfBranchesLeavesTheNumber) {
    workstation.run(support::kCompany, "delete from Sede");
    StringaAzienda = server + "DATABase=" + support::kCompany + ";";
    IdSede = IdSedeCopia = 7;
    EXPECT_EQ(LeggiSede(), "");
    EXPECT_EQ(IdSede, 7);
    EXPECT_EQ(IdSedeCopia, 7);
}

TEST_F(ApriDbSede, ATownWithoutANameIsTheEmptyText) {
    workstation.run(support::kCompany, "update Sede set [città] = null, idsede = 4");
    StringaAzienda = server + "DATABase=" + support::kCompany + ";";
    EXPECT_EQ(LeggiSede(), "");
    EXPECT_EQ(IdSedeCopia, 4);
}

class UselessCompanyText : public ApriDbSede, public testing::WithParamInterface<const char*> {};

TEST_P(UselessCompanyText, GivesNoBranchAndNoMessage) {
    StringaAzienda = GetParam();
    IdSede = 7;
    EXPECT_EQ(LeggiSede(), "");
    EXPECT_EQ(IdSede, 7);
}

INSTANTIATE_TEST_SUITE_P(ApriDbSede, UselessCompanyText,
                         testing::Values("", ";", "garbage", "Server=127.0.0.1,9;DATABase=x;",
                                         "Provider=SQLOLEDB;Data Source=POSTO_7\\sqlexpress;Integrated "
                                         "Security=SSPIDATABase=vabodati"));

} // namespace

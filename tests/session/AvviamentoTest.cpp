#include "session/Avviamento.h"

#include "engine/errors/Error.h"
#include "rights/AbilitazioneUtente.h"
#include "session/SessionFixture.h"

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class Avviamento : public SessionTest {
protected:
    Avviamento() { NomeTerminale.clear(); }
};

TEST_F(Avviamento, TheVersionIsThatOfTheProgram) {
    platform::workstation().versionMajor = 2;
    platform::workstation().versionMinor = 0;
    platform::workstation().versionRevision = 1045;
    EXPECT_EQ(TestoVersione(), "Ver. 2.0.1045");
}

TEST_F(Avviamento, TheDatabaseTextEndsInTheCompanysName) {
    EXPECT_EQ(TestoDatabase(), "DataBase :   ");
    NomeAzienda = "Associazione Aurora";
    EXPECT_EQ(TestoDatabase(), "DataBase :   Associazione Aurora");
}

TEST_F(Avviamento, TheTerminalsCompanyIsTakenUp) {
    setTerminal("POSTO_7", idOf(kOtherCompany));
    ClienteDornavel = kVero;
    PrendiAziendaDelTerminale();
    EXPECT_EQ(NomeTerminale, "POSTO_7");
    EXPECT_EQ(IdAziendaScelta, idOf(kOtherCompany));
    EXPECT_EQ(IdAziendaLavoro, idOf(kOtherCompany));
    EXPECT_EQ(NomeDatabase, "VaBoDatiPonte");
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_EQ(ClienteDornavel, kFalso);
}

TEST_F(Avviamento, AFirstStartTakesTheFirstCompanyAndEntersTheTerminal) {
    PrendiAziendaDelTerminale();
    EXPECT_EQ(NomeDatabase, "VaBoDatiAurora");
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(idOf(kCompany))}}));
}

TEST_F(Avviamento, AMachineWithoutANameIsToldTwiceAndGoesOn) {
    platform::workstation().machineName.clear();
    script.expectMessage("Carica Nome PC");
    script.expectMessage("Caricare il nome del PC!");
    PrendiAziendaDelTerminale();
    EXPECT_EQ(IdAziendaScelta, 0);
    EXPECT_FALSE(DbAzienda.IsOpen());
    EXPECT_EQ(end.ended(), 0);
}

TEST_F(Avviamento, AMissingPointerFileEndsTheStart) {
    removeFile("C:\\vabo\\NomeServer.txt");
    script.expectMessage("File not found");
    EXPECT_TRUE(end.endedBy([] { PrendiAziendaDelTerminale(); }));
}

TEST_F(Avviamento, AnEmptyDriveEndsTheStart) {
    const support::TestWorkstation empty(support::TestWorkstation::DriveC::Empty);
    script.expectMessage("Path not found");
    EXPECT_TRUE(end.endedBy([] { PrendiAziendaDelTerminale(); }));
}

TEST_F(Avviamento, AServerWithoutCompaniesEndsTheStart) {
    control("delete from link_programma");
    noCompanyDatabases();
    script.expectMessage("Nessun database caricato");
    EXPECT_TRUE(end.endedBy([] { PrendiAziendaDelTerminale(); }));
}

TEST_F(Avviamento, TheWordInTheCompanysNameIsRecognisedWithItsCase) {
    const std::vector<std::pair<const char*, Flag>> cases = {
        {"dornavel", kVero},   {"Centro dornavel onlus", kVero},
        {"DORNAVEL", kFalso},  {"Dornavel", kFalso},
        {"dorna vel", kFalso}, {"", kFalso},
    };
    for (const auto& [name, expected] : cases) {
        ClienteDornavel = kFalso;
        NomeAzienda = name;
        RiconosciDornavel();
        EXPECT_EQ(ClienteDornavel, expected) << name;
    }
}

TEST_F(Avviamento, TheBranchIsReadUnlessTheServerIsMissing) {
    PrendiAziendaDelTerminale();
    IndirizzoVabodati = "x";
    ServerMancante = kVero;
    ApriSedeDiAvvio();
    EXPECT_EQ(IdSede, 0);
    EXPECT_EQ(IndirizzoVabodatiCopia, "");
    ServerMancante = kFalso;
    ApriSedeDiAvvio();
    EXPECT_EQ(IdSede, 1);
    EXPECT_EQ(IndirizzoVabodatiCopia, "x");
}

TEST_F(Avviamento, ACompanyThatIsClosedIsOpenedForTheBranch) {
    PrendiAziendaDelTerminale();
    DbAzienda.Close();
    ApriSedeDiAvvio();
    EXPECT_TRUE(DbAzienda.IsOpen());
}

TEST_F(Avviamento, TheServersOptionsAreOneBatch) {
    PrendiAziendaDelTerminale();
    const support::StatementRecorder recorder;
    PreparaServer();
    EXPECT_EQ(recorder.count("EXEC sys.sp_configure N'show advanced options', N'1'  RECONFIGURE WITH OVERRIDE\r\n"
                             " EXEC sys.sp_configure N'min memory per query (KB)', N'10240'\r\n"
                             " RECONFIGURE WITH OVERRIDE \r\n"
                             " EXEC sys.sp_configure N'show advanced options', N'0'  RECONFIGURE WITH OVERRIDE"),
              1);
}

TEST_F(Avviamento, TheServerIsLeftWithItsMemoryAndWithoutAdvancedOptions) {
    const std::string memory = "sp_configure 'min memory per query (KB)'";
    PrendiAziendaDelTerminale();
    PreparaServer();
    EXPECT_THROW(workstation.run("master", memory), engine::Error) << "advanced options are out of sight";
    workstation.run("master", "sp_configure 'show advanced options', 1 RECONFIGURE");
    const support::TestWorkstation::Row row = workstation.row("master", memory);
    ASSERT_EQ(row.size(), 5U);
    EXPECT_EQ(row[3], "10240") << "as configured";
    EXPECT_EQ(row[4], "10240") << "in use";
}

TEST_F(Avviamento, TheDataFileAndTheTemporaryDatabaseAreReady) {
    PrendiAziendaDelTerminale();
    DbTemp.Close();
    RsCondivisi(4).Open("select * from Sede", DbAzienda);
    PreparaServer();
    EXPECT_EQ(IndirizzoMdf, controlValue("select IndirizzoMdf from link_programma where dbname = 'VaBoDatiAurora'"));
    EXPECT_TRUE(DbTemp.IsOpen());
    EXPECT_FALSE(RsCondivisi(4).IsOpen());
}

TEST_F(Avviamento, TheTemporaryDatabaseIsMadeBehindTheOptionsAndTheDataFile) {
    NomeDatabase = kCompany;
    DbAzienda.Open(server + "DATABase=VaBoDatiAurora");
    const support::StatementRecorder recorder;
    PreparaServer();
    ASSERT_GT(recorder.texts().size(), 2U);
    EXPECT_TRUE(recorder.texts()[0].starts_with("EXEC sys.sp_configure N'show advanced options', N'1'"));
    EXPECT_EQ(recorder.texts()[1], "Select * from link_programma where dbname like 'VaBoDatiAurora'");
    EXPECT_EQ(recorder.texts()[2], "sp_configure 'query timeout',0 RECONFIGURE");
}

TEST_F(Avviamento, WithoutServersTheServersPreparationIsSilent) {
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=127.0.0.1,9;\r\n");
    PreparaServer();
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(Avviamento, TheLanguageIsRead) {
    PrendiAziendaDelTerminale();
    workstation.run(support::kTemporaryDatabase, "update LinguaClient set Lingua = 'ES'");
    PrendiLingua();
    EXPECT_EQ(LinguaCorrente, "ES");
}

/// The program's file name and how often it writes which version.
struct Programma {
    const char* name;
    std::vector<const char*> versions;
};

class Programmi : public Avviamento, public testing::WithParamInterface<Programma> {};

TEST_P(Programmi, RecordWhichOfThemStartedLast) {
    PrendiAziendaDelTerminale();
    platform::workstation().programName = GetParam().name;
    const support::StatementRecorder recorder;
    RegistraProgramma();
    EXPECT_EQ(recorder.count("Create table Version (id int null, Version int not null default 1 )"),
              static_cast<int>(GetParam().versions.size()));
    EXPECT_EQ(recorder.texts().front(), "Select * from progetti where id = 10000001");
    EXPECT_EQ(workstation.value(support::kTemporaryDatabase, "select Version from Version"),
              GetParam().versions.back());
    EXPECT_EQ(Appoggio, "0");
    EXPECT_FALSE(DbTemp.IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Avviamento, Programmi,
                         testing::Values(Programma{"tlv", {"1", "1"}}, Programma{"TLV", {"1", "1"}},
                                         Programma{"tlv_donazioni", {"2"}}, Programma{"Tlv_Donazioni", {"2"}},
                                         Programma{"tlv2", {"1"}}, Programma{"vabo", {"1"}}, Programma{"", {"1"}}));

TEST_F(Avviamento, RecordingTheProgramWithoutServersIsSilent) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=127.0.0.1,9;\r\n");
    RegistraProgramma();
    EXPECT_EQ(Appoggio, "0");
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(Avviamento, WhereThereAreUsersTheLoginIsNeeded) {
    PrendiAziendaDelTerminale();
    EXPECT_TRUE(ServeLogin());
    EXPECT_EQ(DirittiUtente, Diritti{});
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(Avviamento, WithoutUsersAllRightsButTwoAreGiven) {
    PrendiAziendaDelTerminale();
    workstation.run(kCompany, "delete from AbilitazioneAccessi");
    EXPECT_FALSE(ServeLogin());
    EXPECT_EQ(DirittiUtente, kDirittiAvvioSenzaUtenti);
    EXPECT_EQ(DirittiUtente.A_EmettiPagamenti, kVero);
    EXPECT_EQ(DirittiUtente.A_Progetta, kFalso);
    EXPECT_EQ(DirittiUtente.Disabilita, kFalso);
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(Avviamento, ACompanyThatCannotBeReadCountsAsOneWithoutUsers) {
    EXPECT_FALSE(ServeLogin());
    EXPECT_EQ(DirittiUtente, kDirittiAvvioSenzaUtenti);
}

} // namespace

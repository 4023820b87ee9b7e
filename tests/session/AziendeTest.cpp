#include "session/Aziende.h"

#include "ado/Error.h"
#include "platform/DriveC.h"
#include "session/SessionFixture.h"

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class AziendaTerminaleTest : public SessionTest {};
class UltimaAziendaTerminaleTest : public SessionTest {};
class PrimaAziendaSuServerTest : public SessionTest {};
class LeggiIndirizzoMdfTest : public SessionTest {};

TEST_F(AziendaTerminaleTest, SendsItsStatementsLetterForLetter) {
    const support::StatementRecorder recorder;
    AziendaTerminale();
    EXPECT_EQ(recorder.texts(),
              (std::vector<std::string>{
                  "delete from link_programmaTerminale where Nometerminale = N'' or Nometerminale is null",
                  "Select * from link_programmaTerminale where   Nometerminale like 'POSTO_7'",
                  "Select * from link_programma  order by dbname  "}));
}

TEST_F(AziendaTerminaleTest, WithoutARowTakesTheFirstCompanyByTheNameOfItsDatabase) {
    control("update link_programma set dbname = 'vabodati_aaa' where dbname = 'VaBoDatiPonte'");
    const double expected = idOf("vabodati_aaa");
    EXPECT_EQ(AziendaTerminale(), expected);
    EXPECT_EQ(IdAziendaLavoro, expected);
    EXPECT_EQ(IdAzienda, expected);
    EXPECT_FALSE(DbControllo.IsOpen());
}

TEST_F(AziendaTerminaleTest, ACompanyWithoutADatabaseNameSortsFirst) {
    control("update link_programma set dbname = '' where dbname = 'VaBoDatiPonte'");
    EXPECT_EQ(AziendaTerminale(), idOf(""));
}

TEST_F(AziendaTerminaleTest, TheTerminalsRowWins) {
    setTerminal("POSTO_7", idOf(kOtherCompany));
    EXPECT_EQ(AziendaTerminale(), idOf(kOtherCompany));
}

TEST_F(AziendaTerminaleTest, ARowWithZeroCountsAsNone) {
    setTerminal("POSTO_7", 0);
    EXPECT_EQ(AziendaTerminale(), idOf(kCompany));
}

TEST_F(AziendaTerminaleTest, ANumberThatIsAlreadyThereWinsOverTheDefault) {
    IdAziendaLavoro = 42;
    EXPECT_EQ(AziendaTerminale(), 42);
    EXPECT_EQ(IdAzienda, 42);
}

TEST_F(AziendaTerminaleTest, ANumberThatIsAlreadyThereIsReplacedByTheTerminalsRow) {
    setTerminal("POSTO_7", idOf(kOtherCompany));
    IdAziendaLavoro = 42;
    EXPECT_EQ(AziendaTerminale(), idOf(kOtherCompany));
}

TEST_F(AziendaTerminaleTest, AnUnderscoreMatchesAnyCharacterOfAnotherTerminal) {
    setTerminal("POSTOx7", idOf(kOtherCompany));
    EXPECT_EQ(AziendaTerminale(), idOf(kOtherCompany));
}

TEST_F(AziendaTerminaleTest, TerminalsWithoutANameAreDeleted) {
    control("insert into link_programmaTerminale (Nometerminale, ultimo) values (N'', 1)");
    control("insert into link_programmaTerminale (Nometerminale, ultimo) values (null, 1)");
    setTerminal("ALTRO", 1);
    AziendaTerminale();
    EXPECT_EQ(terminals(), (Rows{{"ALTRO", "1"}}));
}

TEST_F(AziendaTerminaleTest, WithoutAnyCompanyTheNumberIsZero) {
    control("delete from link_programma");
    EXPECT_EQ(AziendaTerminale(), 0);
    EXPECT_EQ(IdAziendaLavoro, 0);
    EXPECT_FALSE(DbControllo.IsOpen());
}

class EmptyMachineName : public SessionTest, public testing::WithParamInterface<const char*> {};

TEST_P(EmptyMachineName, IsToldAndGivesZeroWithoutAskingTheServer) {
    NomeTerminale = GetParam();
    const support::StatementRecorder recorder;
    script.expectMessage("Carica Nome PC");
    EXPECT_EQ(AziendaTerminale(), 0);
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(end.ended(), 0);
}

INSTANTIATE_TEST_SUITE_P(AziendaTerminaleTest, EmptyMachineName, testing::Values("", " ", "0", "000"));

TEST_F(AziendaTerminaleTest, AServerOutOfReachIsShownAndEndsTheProcess) {
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", "Driver=SQL Server;Server=127.0.0.1,9;UID=sa;PWD=x;\r\n");
    script.expectMessage("Server does not exist or access denied.");
    EXPECT_TRUE(end.endedBy([] { AziendaTerminale(); }));
}

TEST_F(AziendaTerminaleTest, AMissingControlDatabaseIsShownAndEndsTheProcess) {
    drop(support::kControlDatabase);
    script.expectMessage("Cannot open database \"vabodatiazienda\" requested by the login. The login failed.");
    EXPECT_TRUE(end.endedBy([] { AziendaTerminale(); }));
}

TEST_F(AziendaTerminaleTest, AConnectionLeftOpenIsShownAndEndsTheProcess) {
    DbControllo.Open(server);
    script.expectMessage("Operation is not allowed when the object is open.");
    EXPECT_TRUE(end.endedBy([] { AziendaTerminale(); }));
}

TEST_F(UltimaAziendaTerminaleTest, SendsItsStatementsLetterForLetterForATerminalWithARow) {
    setTerminal("POSTO_7", 2);
    const support::StatementRecorder recorder;
    UltimaAziendaTerminale();
    EXPECT_EQ(recorder.texts(),
              (std::vector<std::string>{
                  "delete from link_programmaTerminale where nometerminale = N'' or nometerminale is null",
                  "Select * from link_programmaterminale where not nometerminale = N'' and   nometerminale = 'POSTO_7'",
                  "Select * from link_programma  where   id = 2",
                  "delete from link_programmaTerminale where nometerminale = N'' or nometerminale is null"}));
}

TEST_F(UltimaAziendaTerminaleTest, WithoutARowTakesTheLowestNumber) {
    control("update link_programma set dbname = 'zzz' where id = (select min(id) from link_programma)");
    const double lowest = idOf("zzz");
    const support::StatementRecorder recorder;
    EXPECT_EQ(UltimaAziendaTerminale(), lowest);
    EXPECT_EQ(IdAziendaLavoro, lowest);
    EXPECT_EQ(IdAzienda, lowest);
    EXPECT_EQ(recorder.count("Select * from link_programma  order by id"), 1);
    EXPECT_FALSE(DbControllo.IsOpen());
}

TEST_F(UltimaAziendaTerminaleTest, TheTerminalsRowGivesTheCompany) {
    setTerminal("POSTO_7", idOf(kOtherCompany));
    EXPECT_EQ(UltimaAziendaTerminale(), idOf(kOtherCompany));
    EXPECT_EQ(IdAzienda, idOf(kOtherCompany));
}

TEST_F(UltimaAziendaTerminaleTest, AnUnderscoreMatchesNothingButItself) {
    setTerminal("POSTOx7", idOf(kOtherCompany));
    EXPECT_EQ(UltimaAziendaTerminale(), idOf(kCompany));
}

TEST_F(UltimaAziendaTerminaleTest, TheTerminalsNameIsNormalised) {
    setTerminal("POSTO_7", idOf(kOtherCompany));
    NomeTerminale = "POSTO-7";
    EXPECT_EQ(UltimaAziendaTerminale(), idOf(kOtherCompany));
    EXPECT_EQ(Appoggio, "POSTO_7");
}

TEST_F(UltimaAziendaTerminaleTest, ANumberHeldIsLookedUpAndKept) {
    IdAziendaLavoro = idOf(kOtherCompany);
    const support::StatementRecorder recorder;
    EXPECT_EQ(UltimaAziendaTerminale(), idOf(kOtherCompany));
    EXPECT_TRUE(recorder.holding("link_programmaterminale where not").empty());
}

TEST_F(UltimaAziendaTerminaleTest, ANumberWithoutARowKeepsItsValue) {
    IdAziendaLavoro = 42;
    EXPECT_EQ(UltimaAziendaTerminale(), 42);
    EXPECT_EQ(IdAzienda, 42);
}

TEST_F(UltimaAziendaTerminaleTest, ATerminalsNumberWithoutARowKeepsItsValue) {
    setTerminal("POSTO_7", 42);
    EXPECT_EQ(UltimaAziendaTerminale(), 42);
    EXPECT_EQ(IdAziendaLavoro, 42);
    EXPECT_EQ(IdAzienda, 42);
}

TEST_F(UltimaAziendaTerminaleTest, ARowWithZeroLeadsToTheFirstCompanyOfTheServer) {
    setTerminal("POSTO_7", 0);
    drop(kCompany);
    EXPECT_EQ(UltimaAziendaTerminale(), idOf(kOtherCompany));
    EXPECT_EQ(IdAziendaLavoro, idOf(kOtherCompany));
    EXPECT_FALSE(DbControllo.IsOpen());
}

TEST_F(UltimaAziendaTerminaleTest, WithoutRowAndCompanyTheResultStandsAtZero) {
    control("delete from link_programma");
    EXPECT_EQ(UltimaAziendaTerminale(), 0);
}

TEST_F(UltimaAziendaTerminaleTest, WithoutAServerNothingIsShownAndTheResultStandsAtZero) {
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    EXPECT_EQ(UltimaAziendaTerminale(), 0);
    EXPECT_EQ(end.ended(), 0);
}

TEST_F(UltimaAziendaTerminaleTest, TerminalsWithoutANameAreDeleted) {
    control("insert into link_programmaTerminale (Nometerminale, ultimo) values (N'  ', 1)");
    control("insert into link_programmaTerminale (Nometerminale, ultimo) values (null, 1)");
    UltimaAziendaTerminale();
    EXPECT_EQ(terminals(), Rows{});
}

TEST_F(PrimaAziendaSuServerTest, SendsItsStatementsLetterForLetterAndLeavesTheControlDatabaseOpen) {
    const support::StatementRecorder recorder;
    PrimaAziendaSuServer();
    const std::string first = workstation.value(
        "master", "select top 1 name from sysdatabases where name like 'vabodati%' and not name like '%azienda%'");
    EXPECT_EQ(recorder.texts(),
              (std::vector<std::string>{
                  "SELECT * FROM master.dbo.sysdatabases where name like 'vabodati%' and not name like '%azienda%'",
                  "Select * from link_programma where  dbname='" + first + "'"}));
    EXPECT_TRUE(DbControllo.IsOpen());
    EXPECT_EQ(DbControllo.ConnectionString(), server + "DATABase=vabodatiazienda");
}

TEST_F(PrimaAziendaSuServerTest, GivesTheNumberOfTheOnlyCompanyLeft) {
    drop(kCompany);
    EXPECT_EQ(PrimaAziendaSuServer(), idOf(kOtherCompany));
}

TEST_F(PrimaAziendaSuServerTest, PassesOverEveryDatabaseWhoseNameHoldsTheWord) {
    drop(kCompany);
    create("VaBoDatiAAziendaVecchia");
    EXPECT_EQ(PrimaAziendaSuServer(), idOf(kOtherCompany));
}

TEST_F(PrimaAziendaSuServerTest, AFirstDatabaseThatIsNoCompanyGivesZeroEvenIfOthersAre) {
    control("update link_programma set dbname = 'altro' where dbname = (select top 1 name from "
            "master.dbo.sysdatabases where name like 'vabodati%' and not name like '%azienda%')");
    EXPECT_EQ(PrimaAziendaSuServer(), 0);
}

TEST_F(PrimaAziendaSuServerTest, WithoutCompanyDatabasesItIsZero) {
    noCompanyDatabases();
    EXPECT_EQ(PrimaAziendaSuServer(), 0);
}

TEST_F(PrimaAziendaSuServerTest, WithoutAServerItIsZeroAndSilent) {
    removeFile("C:\\vabo\\NomeServer.txt");
    EXPECT_EQ(PrimaAziendaSuServer(), 0);
    EXPECT_FALSE(DbControllo.IsOpen());
}

TEST_F(SessionTest, EsisteDatabaseAsksTheServer) {
    const support::StatementRecorder recorder;
    NomeDatabase = "vabodatiaurora";
    EXPECT_TRUE(EsisteDatabase());
    EXPECT_EQ(recorder.texts(),
              std::vector<std::string>{"SELECT name FROM master.dbo.sysdatabases WHERE name = N'vabodatiaurora'"});
    NomeDatabase = "nessuno";
    EXPECT_FALSE(EsisteDatabase());
    NomeDatabase = "";
    EXPECT_FALSE(EsisteDatabase());
}

TEST_F(SessionTest, EsisteDatabaseRaisesWhatFails) {
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", "Server=127.0.0.1,9;\r\n");
    EXPECT_THROW(EsisteDatabase(), ado::Error);
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    EXPECT_THROW(EsisteDatabase(), platform::FileError);
}

TEST_F(LeggiIndirizzoMdfTest, GivesThePathOfTheCompanysDataFile) {
    NomeDatabase = kOtherCompany;
    const support::StatementRecorder recorder;
    EXPECT_TRUE(LeggiIndirizzoMdf());
    EXPECT_EQ(IndirizzoMdf, controlValue("select IndirizzoMdf from link_programma where dbname = 'VaBoDatiPonte'"));
    EXPECT_EQ(recorder.texts(),
              std::vector<std::string>{"Select * from link_programma where dbname like 'VaBoDatiPonte'"});
}

TEST_F(LeggiIndirizzoMdfTest, ACompanyWithoutAPathIsFoundAllTheSame) {
    control("update link_programma set IndirizzoMdf = null");
    NomeDatabase = kCompany;
    IndirizzoMdf = "prima";
    EXPECT_TRUE(LeggiIndirizzoMdf());
    EXPECT_EQ(IndirizzoMdf, "");
}

TEST_F(LeggiIndirizzoMdfTest, AnUnknownCompanyHasNone) {
    NomeDatabase = "nessuno";
    IndirizzoMdf = "prima";
    EXPECT_FALSE(LeggiIndirizzoMdf());
    EXPECT_EQ(IndirizzoMdf, "");
}

TEST_F(LeggiIndirizzoMdfTest, WithoutAServerItLeavesInSilence) {
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    EXPECT_FALSE(LeggiIndirizzoMdf());
}

} // namespace

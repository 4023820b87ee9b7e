// Cases in which no company can be taken up.

#include "session/ApriAzienda.h"
#include "session/SessionFixture.h"

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

constexpr const char* kNoDatabase = "Nessun database caricato";
constexpr const char* kCannotLoad = "Non è possibile caricare il DataBase";

class ApriAziendaEnd : public SessionTest {
protected:
    void expectEnd(double id, const std::string& message) {
        script.expectMessage(message);
        EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
        EXPECT_EQ(end.ended(), 1);
        EXPECT_FALSE(DbAzienda.IsOpen());
    }
    void noCompanies() const {
        control("delete from link_programma");
        noCompanyDatabases();
    }
};

class NoMachineName : public ApriAziendaEnd, public testing::WithParamInterface<const char*> {};

TEST_P(NoMachineName, IsToldAndNothingIsOpened) {
    NomeTerminale = GetParam();
    double id = idOf(kCompany);
    const double before = id;
    const support::StatementRecorder recorder;
    script.expectMessage("Caricare il nome del PC!");
    ApriAzienda(id);
    EXPECT_EQ(id, before);
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_FALSE(DbAzienda.IsOpen());
    EXPECT_EQ(end.ended(), 0);
}

INSTANTIATE_TEST_SUITE_P(ApriAziendaEnd, NoMachineName, testing::Values("", "0", "00"));

TEST_F(ApriAziendaEnd, AMachineCalledByOneBlankHasAName) {
    NomeTerminale = " ";
    double id = idOf(kCompany);
    ApriAzienda(id);
    EXPECT_EQ(NomeTerminale, "_");
    EXPECT_TRUE(DbAzienda.IsOpen());
}

TEST_F(ApriAziendaEnd, WithoutTerminalNumberAndCompanyNoDatabaseIsLoaded) {
    noCompanies();
    expectEnd(0, kNoDatabase);
    EXPECT_EQ(terminals(), Rows{});
}

TEST_F(ApriAziendaEnd, WithATerminalsRowTheSameServerCannotLoad) {
    noCompanies();
    setTerminal("POSTO_7", 0);
    expectEnd(0, kCannotLoad);
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", "0"}}));
}

TEST_F(ApriAziendaEnd, WithATerminalsOldNumberTheSameServerCannotLoad) {
    noCompanies();
    setTerminal("POSTO_7", 2);
    expectEnd(0, kCannotLoad);
}

TEST_F(ApriAziendaEnd, ANumberWithoutARowCannotLoadWhereThereIsNoFallback) {
    noCompanyDatabases();
    expectEnd(42, kCannotLoad);
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", "42"}})) << "the number was recorded before it was looked up";
}

TEST_F(ApriAziendaEnd, ADroppedDatabaseCannotLoadWhereThereIsNoFallback) {
    const double id = idOf(kOtherCompany);
    noCompanyDatabases();
    const support::StatementRecorder recorder;
    expectEnd(id, kCannotLoad);
    EXPECT_EQ(recorder.holding("Select * from link_programma where  dbname='").size(), 1U);
}

TEST_F(ApriAziendaEnd, TheCompanyBeforeIsClosedAheadOfTheSearchForADatabase) {
    double before = idOf(kCompany);
    ApriAzienda(before);
    const double id = idOf(kOtherCompany);
    drop(kOtherCompany);
    control(std::string("delete from link_programma where dbname = '") + kCompany + "'");
    expectEnd(id, kCannotLoad);
}

TEST_F(ApriAziendaEnd, ADroppedDatabaseCannotLoadWhereTheFirstOneIsNoCompany) {
    const double id = idOf(kOtherCompany);
    noCompanyDatabases();
    create("VaBoDatiEstranea");
    expectEnd(id, kCannotLoad);
}

TEST_F(ApriAziendaEnd, ACompanyWithoutADatabaseCannotLoadWhereThereIsNoFallback) {
    control("update link_programma set dbname = null where dbname = 'VaBoDatiAurora'");
    const double id = std::stod(controlValue("select id from link_programma where dbname is null"));
    noCompanyDatabases();
    expectEnd(id, kCannotLoad);
}

TEST_F(ApriAziendaEnd, WithoutTheControlDatabaseTheCompanyBeforeStaysOpenWithoutAWord) {
    double id = idOf(kCompany);
    ApriAzienda(id);
    id = idOf(kOtherCompany);
    const double chosen = id;
    breakDatabase(support::kControlDatabase, "no database");
    ApriAzienda(id);
    EXPECT_EQ(id, chosen);
    EXPECT_EQ(IdAzienda, chosen);
    EXPECT_EQ(IdAziendaLavoro, chosen);
    EXPECT_EQ(NomeDatabase, kCompany);
    EXPECT_EQ(NomeAzienda, "Associazione Aurora");
    EXPECT_EQ(DbAzienda.ConnectionString(), server + "DATABase=VaBoDatiAurora");
    EXPECT_NO_THROW(DbAzienda.Execute("update Sede set idsede = idsede"));
    EXPECT_FALSE(DbControllo.IsOpen());
}

TEST_F(ApriAziendaEnd, WithoutTheControlDatabaseAndACompanyBeforeNothingCanBeLoaded) {
    const double id = idOf(kOtherCompany);
    drop(support::kControlDatabase);
    NomeDatabase = "prima";
    NomeAzienda = "Prima";
    expectEnd(id, kCannotLoad);
    EXPECT_EQ(NomeDatabase, "prima");
    EXPECT_EQ(NomeAzienda, "Prima");
    EXPECT_EQ(IdAziendaLavoro, id);
}

TEST_F(ApriAziendaEnd, WithoutAServerANumberPassedInCannotLoad) {
    const double id = idOf(kOtherCompany);
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", "Server=127.0.0.1,9;\r\n");
    expectEnd(id, kCannotLoad);
}

TEST_F(ApriAziendaEnd, WithoutAServerAndANumberTheTerminalsLookupEndsItWithTheErrorsOwnText) {
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", "Server=127.0.0.1,9;\r\n");
    expectEnd(0, "Server does not exist or access denied.");
}

TEST_F(ApriAziendaEnd, OnAnEmptyDriveTheTerminalsLookupEndsItWithTheErrorsOwnText) {
    const support::TestWorkstation empty(support::TestWorkstation::DriveC::Empty);
    NomeTerminale = support::kTerminalName;
    expectEnd(0, "Path not found");
}

} // namespace

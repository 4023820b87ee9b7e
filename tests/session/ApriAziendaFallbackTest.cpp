// Cases in which the first company of the server is taken up instead of the wanted one.

#include "session/ApriAzienda.h"
#include "session/ApriDbSede.h"
#include "session/SessionFixture.h"
#include "support/LogLines.h"

#include <gmock/gmock.h>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class ApriAziendaFallback : public SessionTest {
protected:
    // Creates the temporary database. It is on this server too, and the search for companies' databases finds it by its
    // name. Here, as on a workstation in use, it is created after the companies' databases.
    ApriAziendaFallback() { EXPECT_TRUE(ApriDbTemp()); }
    long searches(const support::StatementRecorder& recorder) const {
        return static_cast<long>(recorder.holding("Select * from link_programma where  dbname='").size());
    }
    void expectOtherCompany(double id) const {
        EXPECT_EQ(id, idOf(kOtherCompany));
        EXPECT_EQ(IdAzienda, id);
        EXPECT_EQ(IdAziendaLavoro, id);
        EXPECT_EQ(NomeDatabase, "VaBoDatiPonte");
        EXPECT_EQ(DbAzienda.ConnectionString(), server + "DATABase=VaBoDatiPonte");
        EXPECT_TRUE(DbAzienda.IsOpen());
        EXPECT_FALSE(DbControllo.IsOpen());
        EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(id)}}));
    }
};

TEST_F(ApriAziendaFallback, ADroppedDatabaseGivesWayWithoutAMessage) {
    double id = idOf(kCompany);
    drop(kCompany);
    const support::StatementRecorder recorder;
    ApriAzienda(id);
    expectOtherCompany(id);
    EXPECT_EQ(searches(recorder), 4);
}

TEST_F(ApriAziendaFallback, ANumberWithoutARowGivesWayWithoutAMessage) {
    drop(kCompany);
    setTerminal("POSTO_7", idOf(kCompany));
    double id = 42;
    const support::StatementRecorder recorder;
    ApriAzienda(id);
    expectOtherCompany(id);
    EXPECT_EQ(searches(recorder), 4);
    EXPECT_EQ(recorder.count("Select * from link_programma  where   id = 42"), 1);
}

TEST_F(ApriAziendaFallback, ANumberWithoutARowGivesWayOnAConnectionOfItsOwn) {
    drop(kCompany);
    double id = 42;
    const support::LogLines log;
    QLoggingCategory::setFilterRules("vabo.skipped=true");
    ApriAzienda(id);
    EXPECT_THAT(support::LogLines::lines(), testing::Not(testing::Contains(testing::HasSubstr("(3705)"))))
        << "the control database is closed ahead of the second pass, which opens it";
}

TEST_F(ApriAziendaFallback, ANumberWithoutARowIsStoredFirstForATerminalWithoutARow) {
    drop(kCompany);
    double id = 42;
    const support::StatementRecorder recorder;
    ApriAzienda(id);
    expectOtherCompany(id);
    EXPECT_EQ(recorder.holding("INSERT").at(0).find("link_programmaTerminale") != std::string::npos, true);
}

TEST_F(ApriAziendaFallback, ATerminalsNumberWithoutARowGivesWay) {
    drop(kCompany);
    setTerminal("POSTO_7", 42);
    double id = 0;
    ApriAzienda(id);
    expectOtherCompany(id);
    EXPECT_EQ(IdAziendaScelta, 42) << "what the terminal had";
}

TEST_F(ApriAziendaFallback, ACompanyWithoutADatabaseGivesWayWhenNoneWasOpenBefore) {
    drop(kCompany);
    control("update link_programma set dbname = null where dbname = 'VaBoDatiAurora'");
    double id = std::stod(controlValue("select id from link_programma where dbname is null"));
    const support::StatementRecorder recorder;
    ApriAzienda(id);
    expectOtherCompany(id);
    EXPECT_EQ(searches(recorder), 4);
    EXPECT_EQ(recorder.count("SELECT name FROM master.dbo.sysdatabases WHERE name = N''"), 1);
}

TEST_F(ApriAziendaFallback, ACompanyWithoutADatabaseGivesWayWhenTheOneBeforeIsGone) {
    control("insert into link_programma (NomeAzienda) values ('Senza archivio')");
    double id = std::stod(controlValue("select id from link_programma where NomeAzienda = 'Senza archivio'"));
    drop(kCompany);
    NomeDatabase = kCompany;
    ApriAzienda(id);
    expectOtherCompany(id);
}

TEST_F(ApriAziendaFallback, TheGlobalNumberItselfMayGiveWay) {
    IdAziendaLavoro = idOf(kCompany);
    drop(kCompany);
    ApriAzienda(IdAziendaLavoro);
    expectOtherCompany(IdAziendaLavoro);
}

TEST_F(ApriAziendaFallback, TheColumnsOfTheCompanyThatGaveWayStandWhereTheNextHasNone) {
    control("update link_programma set nRoot = 'primo' where dbname = 'VaBoDatiAurora'");
    control("update link_programma set nRoot = '' where dbname = 'VaBoDatiPonte'");
    double id = idOf(kCompany);
    drop(kCompany);
    ApriAzienda(id);
    EXPECT_EQ(UtenteDb, "primo");
}

} // namespace

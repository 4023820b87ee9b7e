// Names of databases with a quote in them, which go into statements as they stand.

#include "ado/Error.h"
#include "session/ApriAzienda.h"
#include "session/ApriDbSede.h"
#include "session/Aziende.h"
#include "session/SessionFixture.h"

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class NomiOstili : public SessionTest {
protected:
    /// Gives the first company's row this name of a database; the database itself is dropped, with the temporary one
    /// made before, so that the search for companies doesn't find that one first.
    double renamed(const std::string& name) {
        EXPECT_TRUE(ApriDbTemp());
        const double id = idOf(kCompany);
        std::string doubled;
        for (const char c : name) {
            doubled.append(c == '\'' ? 2 : 1, c);
        }
        control("update link_programma set dbname = '" + doubled + "' where dbname = '" + kCompany + "'");
        drop(kCompany);
        return id;
    }
    Rows companies() const {
        return workstation.rows(support::kControlDatabase, "select id, dbname, NomeAzienda from link_programma");
    }
};

TEST_F(NomiOstili, EsisteDatabaseSendsAQuoteAsItStandsAndTheServersErrorReachesTheCaller) {
    NomeDatabase = "L'Aurora";
    const support::StatementRecorder recorder;
    EXPECT_THROW(EsisteDatabase(), ado::Error);
    EXPECT_EQ(recorder.texts(),
              std::vector<std::string>{"SELECT name FROM master.dbo.sysdatabases WHERE name = N'L'Aurora'"});
}

TEST_F(NomiOstili, ThePathOfTheDataFileIsNotFoundInSilence) {
    for (const char* name : {"L'Aurora", "x'; drop table link_programma --", "' or '1'='1", "x' --"}) {
        NomeDatabase = name;
        IndirizzoMdf = "prima";
        const support::StatementRecorder recorder;
        LeggiIndirizzoMdf();
        EXPECT_EQ(recorder.texts(), std::vector<std::string>{std::string("Select * from link_programma where dbname "
                                                                         "like '") +
                                                             name + "'"});
        EXPECT_NE(IndirizzoMdf, "prima");
    }
}

TEST_F(NomiOstili, ACompanyWithSuchADatabaseGivesWayToTheFirstOfTheServerWithoutAMessage) {
    double id = renamed("L'Aurora");
    const Rows before = companies();
    const support::StatementRecorder recorder;
    ApriAzienda(id);
    EXPECT_EQ(recorder.count("SELECT name FROM master.dbo.sysdatabases WHERE name = N'L'Aurora'"), 1);
    EXPECT_EQ(NomeDatabase, kOtherCompany);
    EXPECT_EQ(id, idOf(kOtherCompany));
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_EQ(companies(), before);
}

TEST_F(NomiOstili, WithoutAnotherCompanyTheProcessEnds) {
    double id = renamed("x' or 'x'='y");
    drop(kOtherCompany);
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
    EXPECT_FALSE(DbAzienda.IsOpen());
}

TEST_F(NomiOstili, AFirstDatabaseOfTheServerWithAQuoteIsNoCompany) {
    noCompanyDatabases();
    create("vabodati'x");
    const support::StatementRecorder recorder;
    EXPECT_EQ(PrimaAziendaSuServer(), 0);
    EXPECT_EQ(recorder.count("Select * from link_programma where  dbname='vabodati'x'"), 1);
    EXPECT_TRUE(DbControllo.IsOpen());
}

} // namespace

#include "dblife/CreaVaBoAzienda.h"

#include "CreaVaBoAziendaFixture.h"
#include "session/ApriDbSede.h"
#include "support/StatementRecorder.h"

namespace {

using namespace vabo;

TEST_F(CreaVaBoAzienda, SendsItsStatementsLetterForLetter) {
    const support::StatementRecorder recorder;
    CreaDatabaseControllo();
    EXPECT_EQ(recorder.texts(), tutteLeIstruzioni());
    EXPECT_EQ(Sql, kTerminals);
}

TEST_F(CreaVaBoAzienda, MakesBothDatabasesAndBothEmptyTablesOnABareInstance) {
    workstation.drop(support::kControlDatabase);
    CreaDatabaseControllo();
    EXPECT_EQ(quantiDatabase("VaBoDatiTemp"), "1");
    EXPECT_EQ(quantiDatabase("VaBoDatiAzienda"), "1");
    EXPECT_EQ(quanteRighe("link_programma"), "0");
    EXPECT_EQ(quanteRighe("link_programmaTerminale"), "0");
    EXPECT_FALSE(DbTemp.IsOpen());
}

TEST_F(CreaVaBoAzienda, TheTablesTakeRowsWithTheirDefaults) {
    workstation.drop(support::kControlDatabase);
    CreaDatabaseControllo();
    workstation.run(support::kControlDatabase, "insert into link_programma (NomeAzienda) values ('A')");
    workstation.run(support::kControlDatabase, "insert into link_programmaTerminale (Nometerminale) values (N'P')");
    EXPECT_EQ(workstation.row(support::kControlDatabase, "select id, NomeAzienda, ultimo, dbname from link_programma"),
              (support::TestWorkstation::Row{"1", "A", "0", "NULL"}));
    EXPECT_EQ(workstation.row(support::kControlDatabase, "select * from link_programmaTerminale"),
              (support::TestWorkstation::Row{"1", "P", "0", "0"}));
}

TEST_F(CreaVaBoAzienda, TheTemporaryDatabaseLiesInItsFolder) {
    CreaDatabaseControllo();
    EXPECT_TRUE(workstation.driveC().isFile("C:\\vabo\\sedi\\VaBoDatiTemp.mdf"));
}

TEST_F(CreaVaBoAzienda, ExistingDatabasesAndTheirRowsStay) {
    const std::string companies = quanteRighe("link_programma");
    CreaDatabaseControllo();
    CreaDatabaseControllo();
    EXPECT_EQ(quanteRighe("link_programma"), companies);
    EXPECT_EQ(quantiDatabase("VaBoDatiAzienda"), "1");
}

TEST_F(CreaVaBoAzienda, OnlyTheMissingTablesAreMade) {
    workstation.run(support::kControlDatabase, "DROP TABLE link_programmaTerminale");
    const std::string companies = quanteRighe("link_programma");
    CreaDatabaseControllo();
    EXPECT_EQ(quanteRighe("link_programmaTerminale"), "0");
    EXPECT_EQ(quanteRighe("link_programma"), companies);
}

TEST_F(CreaVaBoAzienda, TheOptionsAreSetOnEveryRun) {
    CreaDatabaseControllo();
    const support::StatementRecorder recorder;
    CreaDatabaseControllo();
    EXPECT_EQ(recorder.holding("sp_dboption").size(), 2 * kOptions.size());
}

/// The statements sent to such a server, letter for letter: one call of the procedure for each database, then its
/// options as statements.
const std::vector<std::string> kWithoutProcedure = {
    "sp_configure 'query timeout',0 RECONFIGURE",
    kCreateTemporary,
    " sp_dboption N'VaBoDatiTemp', N'autoclose', N'true'",
    "ALTER DATABASE [VaBoDatiTemp] SET AUTO_CLOSE ON",
    "ALTER DATABASE [VaBoDatiTemp] SET RECOVERY BULK_LOGGED",
    "ALTER DATABASE [VaBoDatiTemp] SET RECOVERY SIMPLE",
    "ALTER DATABASE [VaBoDatiTemp] SET TORN_PAGE_DETECTION ON",
    "ALTER DATABASE [VaBoDatiTemp] SET READ_WRITE",
    "ALTER DATABASE [VaBoDatiTemp] SET MULTI_USER",
    "ALTER DATABASE [VaBoDatiTemp] SET MULTI_USER",
    "ALTER DATABASE [VaBoDatiTemp] SET AUTO_SHRINK ON",
    "ALTER DATABASE [VaBoDatiTemp] SET ANSI_NULL_DEFAULT OFF",
    "ALTER DATABASE [VaBoDatiTemp] SET RECURSIVE_TRIGGERS OFF",
    "ALTER DATABASE [VaBoDatiTemp] SET ANSI_NULLS OFF",
    "ALTER DATABASE [VaBoDatiTemp] SET CONCAT_NULL_YIELDS_NULL OFF",
    "ALTER DATABASE [VaBoDatiTemp] SET CURSOR_CLOSE_ON_COMMIT OFF",
    "ALTER DATABASE [VaBoDatiTemp] SET CURSOR_DEFAULT GLOBAL",
    "ALTER DATABASE [VaBoDatiTemp] SET QUOTED_IDENTIFIER OFF",
    "ALTER DATABASE [VaBoDatiTemp] SET ANSI_WARNINGS OFF",
    "ALTER DATABASE [VaBoDatiTemp] SET AUTO_CREATE_STATISTICS ON",
    "ALTER DATABASE [VaBoDatiTemp] SET AUTO_UPDATE_STATISTICS ON",
    kCreateControl,
    "  sp_dboption N'VaBoDatiAzienda', N'autoclose', N'true'",
    "ALTER DATABASE [VaBoDatiAzienda] SET AUTO_CLOSE ON",
    "ALTER DATABASE [VaBoDatiAzienda] SET RECOVERY BULK_LOGGED",
    "ALTER DATABASE [VaBoDatiAzienda] SET RECOVERY SIMPLE",
    "ALTER DATABASE [VaBoDatiAzienda] SET TORN_PAGE_DETECTION ON",
    "ALTER DATABASE [VaBoDatiAzienda] SET READ_WRITE",
    "ALTER DATABASE [VaBoDatiAzienda] SET MULTI_USER",
    "ALTER DATABASE [VaBoDatiAzienda] SET MULTI_USER",
    "ALTER DATABASE [VaBoDatiAzienda] SET AUTO_SHRINK ON",
    "ALTER DATABASE [VaBoDatiAzienda] SET ANSI_NULL_DEFAULT OFF",
    "ALTER DATABASE [VaBoDatiAzienda] SET RECURSIVE_TRIGGERS OFF",
    "ALTER DATABASE [VaBoDatiAzienda] SET ANSI_NULLS OFF",
    "ALTER DATABASE [VaBoDatiAzienda] SET CONCAT_NULL_YIELDS_NULL OFF",
    "ALTER DATABASE [VaBoDatiAzienda] SET CURSOR_CLOSE_ON_COMMIT OFF",
    "ALTER DATABASE [VaBoDatiAzienda] SET CURSOR_DEFAULT GLOBAL",
    "ALTER DATABASE [VaBoDatiAzienda] SET QUOTED_IDENTIFIER OFF",
    "ALTER DATABASE [VaBoDatiAzienda] SET ANSI_WARNINGS OFF",
    "ALTER DATABASE [VaBoDatiAzienda] SET AUTO_CREATE_STATISTICS ON",
    "ALTER DATABASE [VaBoDatiAzienda] SET AUTO_UPDATE_STATISTICS ON",
    kCompanies,
    kTerminals,
};

TEST_F(CreaVaBoAzienda, AServerWithoutTheProcedureIsToldByStatements) {
    workstation.playServerVersion(11);
    const support::StatementRecorder recorder;
    CreaDatabaseControllo();
    EXPECT_EQ(recorder.texts(), kWithoutProcedure);
}

class CreaVaBoAziendaOn : public CreaVaBoAzienda, public testing::WithParamInterface<int> {};

// On a server that has the procedure, and on one that doesn't have it any more.
INSTANTIATE_TEST_SUITE_P(Version, CreaVaBoAziendaOn, testing::Values(8, 11));

TEST_P(CreaVaBoAziendaOn, TheOptionsBecomeTheSame) {
    using Options = std::vector<std::pair<std::string, bool>>;
    const Options expected = {
        {"ANSI null default", false},
        {"ANSI nulls", false},
        {"ANSI padding", false},
        {"ANSI warnings", false},
        {"arithabort", false},
        {"auto create statistics", true},
        {"auto update statistics", true},
        {"autoclose", true},
        {"autoshrink", true},
        {"concat null yields null", false},
        {"cursor close on commit", false},
        {"db chaining", false},
        {"dbo use only", false},
        {"default to local cursor", false},
        {"merge publish", false},
        {"numeric roundabort", false},
        {"offline", false},
        {"published", false},
        {"quoted identifier", false},
        {"read only", false},
        {"recursive triggers", false},
        {"select into/bulkcopy", true},
        {"single user", false},
        {"subscribed", false},
        {"torn page detection", true},
        {"trunc. log on chkpt.", true},
    };
    workstation.playServerVersion(GetParam());
    workstation.run("master", "IF EXISTS (SELECT name FROM sysdatabases WHERE name = 'VaBoDatiTemp')"
                              " DROP DATABASE VaBoDatiTemp");
    workstation.drop(support::kControlDatabase);
    CreaDatabaseControllo();
    for (const char* database : {"VaBoDatiTemp", "VaBoDatiAzienda"}) {
        EXPECT_EQ(workstation.databaseOptions(database), expected) << database;
    }
}

TEST_F(CreaVaBoAzienda, AnotherRefusalLeavesTheProcedureInPlace) {
    workstation.run("master", "IF EXISTS (SELECT name FROM sysdatabases WHERE name = 'VaBoDatiTemp')"
                              " DROP DATABASE VaBoDatiTemp");
    std::filesystem::remove_all(workstation.driveC().real("C:\\vabo\\sedi"));
    const support::StatementRecorder recorder;
    CreaDatabaseControllo();
    EXPECT_EQ(recorder.holding("sp_dboption N'VaBoDatiTemp'").size(), kOptions.size());
    EXPECT_TRUE(recorder.holding("ALTER DATABASE").empty());
}

TEST_F(CreaVaBoAzienda, AMissingFolderIsSilentAndTheRestIsMade) {
    std::filesystem::remove_all(workstation.driveC().real("C:\\vabo\\sedi"));
    workstation.drop(support::kControlDatabase);
    CreaDatabaseControllo();
    EXPECT_EQ(quantiDatabase("VaBoDatiTemp"), "0");
    EXPECT_EQ(quanteRighe("link_programma"), "0");
}

TEST_F(CreaVaBoAzienda, WithoutALocalServerNothingIsSentAndNothingIsSaid) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=127.0.0.1,9;\r\n");
    const support::StatementRecorder recorder;
    CreaDatabaseControllo();
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_FALSE(ApriDbTemp());
}

TEST_F(CreaVaBoAzienda, OpeningTheTemporaryDatabaseMakesWhatIsMissing) {
    workstation.drop(support::kControlDatabase);
    EXPECT_TRUE(ApriDbTemp());
    EXPECT_EQ(quanteRighe("link_programma"), "0");
}

} // namespace

// Settings under which nothing runs, and those of which one value is offered.

#include "engine/run/SettingsFixture.h"

namespace engine {
namespace {

class SettingsOff : public SettingsTest {};

TEST_F(SettingsOff, AStatementWhosePlanIsKeptDoesNotRunEither) {
    EXPECT_EQ(answer("DELETE FROM voci WHERE n = 1"), "(1)");
    EXPECT_EQ(rows("SELECT testo FROM voci WHERE n = 2"), "b");
    for (const char* option : {"NOEXEC", "SHOWPLAN_ALL", "PARSEONLY", "FMTONLY"}) {
        run("SET " + std::string(option) + " ON");
        EXPECT_EQ(answer("DELETE FROM voci WHERE n = 2"), "") << option;
        EXPECT_EQ(rows("SELECT testo FROM voci WHERE n = 2"), "") << option;
        run("SET " + std::string(option) + " OFF");
    }
    EXPECT_EQ(rows("SELECT COUNT(*) FROM voci"), "4");
}

TEST_F(SettingsOff, UnderNoExecNothingRunsButNamesAreLookedUp) {
    for (const char* option : {"NOEXEC", "SHOWPLAN_ALL", "SHOWPLAN_TEXT", "SHOWPLAN_XML"}) {
        const std::string set = std::string("SET ") + option;
        run(set + " ON");
        EXPECT_EQ(answer("DELETE FROM voci; SELECT n FROM voci; PRINT 'x'; DROP TABLE voci; EXEC sp_helpdb"), "");
        EXPECT_EQ(answer("IF 1 = 1 DELETE FROM voci ELSE DELETE FROM voci WHERE n = 2"), "");
        EXPECT_EQ(answer("DELETE FROM manca"), "!208 Invalid object name 'manca'.");
        EXPECT_EQ(answer(set + " OFF; SELECT COUNT(*) AS n FROM voci"), "-\nn\n5") << option;
    }
}

TEST_F(SettingsOff, UnderParseOnlyNotEvenNamesAreLookedUp) {
    EXPECT_EQ(answer("SET PARSEONLY ON; DELETE FROM voci; DELETE FROM manca"), "-");
    EXPECT_EQ(answer("DELETE FROM manca"), "");
    EXPECT_EQ(answer("DELETE FROM"), "!102 Incorrect syntax near 'FROM'.");
    EXPECT_EQ(answer("SET PARSEONLY OFF; SELECT COUNT(*) AS n FROM voci"), "-\nn\n5");
}

TEST_F(SettingsOff, UnderFmtOnlyTheColumnsOfAResultAreToldAndNothingRuns) {
    run("SET FMTONLY ON");
    EXPECT_EQ(answer("SELECT n, testo FROM voci WHERE n = 1"), "n|testo");
    EXPECT_EQ(answer("DELETE FROM voci"), "");
    EXPECT_EQ(answer("IF 1 = 2 SELECT n FROM voci ELSE SELECT testo FROM voci"), "n\ntesto") << "of both branches";
    EXPECT_EQ(answer("SELECT n FROM manca"), "!208 Invalid object name 'manca'.");
    run("SET FMTONLY OFF");
    EXPECT_EQ(rows("SELECT COUNT(*) FROM voci"), "5");
}

TEST_F(SettingsOff, AnOptionThatHasOneValueTakesItAndRefusesTheOther) {
    struct {
        const char* taken;
        const char* refused;
    } const cases[] = {
        {"ANSI_NULLS ON", "ANSI_NULLS OFF"},
        {"ANSI_NULL_DFLT_OFF OFF", "ANSI_NULL_DFLT_OFF ON"},
        {"ANSI_NULL_DFLT_ON ON", "ANSI_NULL_DFLT_ON OFF"},
        {"ANSI_PADDING ON", "ANSI_PADDING OFF"},
        {"ANSI_WARNINGS ON", "ANSI_WARNINGS OFF"},
        {"ARITHABORT ON", "ARITHABORT OFF"},
        {"ARITHIGNORE OFF", "ARITHIGNORE ON"},
        {"CONCAT_NULL_YIELDS_NULL ON", "CONCAT_NULL_YIELDS_NULL OFF"},
        {"CURSOR_CLOSE_ON_COMMIT OFF", "CURSOR_CLOSE_ON_COMMIT ON"},
        {"FIPS_FLAGGER OFF", "FIPS_FLAGGER ENTRY"},
        {"FORCEPLAN OFF", "FORCEPLAN ON"},
        {"NUMERIC_ROUNDABORT OFF", "NUMERIC_ROUNDABORT ON"},
        {"QUERY_GOVERNOR_COST_LIMIT 0", "QUERY_GOVERNOR_COST_LIMIT 5"},
        {"QUOTED_IDENTIFIER ON", "QUOTED_IDENTIFIER OFF"},
        {"REMOTE_PROC_TRANSACTIONS OFF", "REMOTE_PROC_TRANSACTIONS ON"},
        {"STATISTICS IO OFF", "STATISTICS IO ON"},
        {"STATISTICS PROFILE OFF", "STATISTICS PROFILE ON"},
        {"STATISTICS TIME OFF", "STATISTICS TIME ON"},
        {"STATISTICS XML OFF", "STATISTICS XML ON"},
        {"DEADLOCK_PRIORITY LOW", "ANSI_DEFAULTS ON"},
        {"TEXTSIZE 64512", "ANSI_DEFAULTS OFF"},
        {"nocount, xact_abort off", "NOCOUNT 5"},
        {"ROWCOUNT 0", "ROWCOUNT -1"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(answer(std::string("SET ") + one.taken), "-") << one.taken;
        EXPECT_EQ(answer(std::string("SET ") + one.refused), std::string("!40510 Statement 'SET ") + one.refused +
                                                                 "' is not supported in this version of SQL Server.");
    }
    EXPECT_EQ(answer("SET MANCA ON"), "!195 'MANCA' is not a recognized SET option.");
}

} // namespace
} // namespace engine

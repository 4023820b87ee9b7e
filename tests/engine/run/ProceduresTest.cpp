#include "engine/SessionFixture.h"

namespace engine {
namespace {

using Procedures = SessionTest;

TEST_F(Procedures, AnUnknownOneIsNamed) {
    EXPECT_EQ(answer("sp_manca 1"), "!2812 Could not find stored procedure 'sp_manca'.");
    EXPECT_EQ(answer("exec dbo.sp_manca"), "!2812 Could not find stored procedure 'dbo.sp_manca'.");
}

TEST_F(Procedures, AnOptionIsConfiguredThenRuns) {
    EXPECT_EQ(answer("sp_configure 'query timeout',0"),
              "15457: Configuration option 'remote query timeout (s)' changed from 600 to 0. Run the RECONFIGURE"
              " statement to install.\n-");
    EXPECT_EQ(rows("sp_configure 'remote query timeout (s)'"), "remote query timeout (s)|0|2147483647|0|600");
    EXPECT_EQ(answer("RECONFIGURE"), "-");
    EXPECT_EQ(rows("sp_configure 'remote query timeout (s)'"), "remote query timeout (s)|0|2147483647|0|0");
}

TEST_F(Procedures, AdvancedOptionsAreHidden) {
    EXPECT_EQ(answer("EXEC sys.sp_configure N'min memory per query (KB)', N'10240'"),
              "!15123 The configuration option 'min memory per query (KB)' does not exist, or it may be an advanced"
              " option.");
    run("EXEC sys.sp_configure N'show advanced options', N'1'  RECONFIGURE WITH OVERRIDE");
    run("EXEC sys.sp_configure N'min memory per query (KB)', N'10240'\r\n RECONFIGURE WITH OVERRIDE");
    EXPECT_EQ(rows("sp_configure 'min memory'").find("min memory per query (KB)|512|2147483647|10240|10240"), 0U);
}

TEST_F(Procedures, ADatabaseOptionIsSetAndRead) {
    EXPECT_EQ(answer(" sp_dboption N'prova', N'autoclose', N'true'"), "-");
    EXPECT_EQ(rows("sp_dboption 'prova', 'autoclose'"), "autoclose|ON ");
    EXPECT_EQ(answer(" sp_dboption N'prova', N'autoclose', N'false'"), "-");
    EXPECT_EQ(rows("exec sp_dboption 'prova', 'autoclose'"), "autoclose|OFF");
    EXPECT_EQ(answer("sp_dboption 'prova', 'autoclose', 'forse'").substr(0, 7), "!15241 ");
    EXPECT_EQ(answer("sp_dboption 'manca', 'autoclose', 'true'").substr(0, 7), "!15010 ");
    EXPECT_EQ(answer("sp_dboption 'prova', null, 'true'").substr(0, 7), "!15011 ");
    EXPECT_NE(rows("sp_dboption").find("autoclose"), std::string::npos);
}

TEST_F(Procedures, ALaterServerHasNoProcedureForDatabaseOptions) {
    EXPECT_EQ(rows("select serverproperty('ProductVersion'), @@version"), "8.00|Embedded server 8.00");
    instance->setVersion(11);
    const char* missing = "!2812 Could not find stored procedure 'sp_dboption'.";
    EXPECT_EQ(answer(" sp_dboption N'prova', N'autoclose', N'true'"), missing);
    EXPECT_EQ(answer("sp_dboption"), missing);
    EXPECT_EQ(rows("select serverproperty('ProductVersion'), @@version"), "11.00|Embedded server 11.00");
    EXPECT_EQ(rows("sp_configure 'server version'").substr(0, 7), "!15123 ") << "no option of the server's own";
    instance->setVersion(8);
    EXPECT_EQ(answer(" sp_dboption N'prova', N'autoclose', N'true'"), "-");
}

TEST_F(Procedures, ADatabaseIsAltered) {
    const auto option = [&](const std::string& name) {
        for (const auto& [known, value] : instance->databaseOptions("prova")) {
            if (known == name) {
                return std::string(value ? "ON" : "OFF");
            }
        }
        return std::string();
    };
    struct Case {
        const char* setting;
        const char* option;
        const char* value;
    };
    constexpr Case kCases[] = {
        {"AUTO_CLOSE ON", "autoclose", "ON"},
        {"auto_close off", "autoclose", "OFF"},
        {"RECOVERY BULK_LOGGED", "select into/bulkcopy", "ON"},
        {"RECOVERY SIMPLE", "trunc. log on chkpt.", "ON"},
        {"ANSI_NULLS ON", "select into/bulkcopy", "ON"},
        {"RECOVERY BULK_LOGGED", "trunc. log on chkpt.", "OFF"},
        {"RECOVERY FULL", "select into/bulkcopy", "OFF"},
        {"TORN_PAGE_DETECTION OFF", "torn page detection", "OFF"},
        {"READ_ONLY", "read only", "ON"},
        {"READ_WRITE WITH NO_WAIT", "read only", "OFF"},
        {"SINGLE_USER WITH ROLLBACK IMMEDIATE", "single user", "ON"},
        {"RESTRICTED_USER WITH ROLLBACK AFTER 5 SECONDS", "dbo use only", "ON"},
        {"MULTI_USER", "dbo use only", "OFF"},
        {"AUTO_SHRINK ON, CURSOR_DEFAULT LOCAL", "default to local cursor", "ON"},
        {"CURSOR_DEFAULT GLOBAL", "default to local cursor", "OFF"},
        {"QUOTED_IDENTIFIER ON", "quoted identifier", "ON"},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(answer(std::string("ALTER DATABASE [Prova] SET ") + one.setting), "-") << one.setting;
        EXPECT_EQ(option(one.option), one.value) << one.setting;
    }
    EXPECT_EQ(option("single user"), "OFF");
    EXPECT_EQ(option("autoshrink"), "ON");
    EXPECT_EQ(answer("ALTER DATABASE manca SET AUTO_CLOSE ON"),
              "!5011 User does not have permission to alter database 'manca', the database does not exist, or the"
              " database is not in a state that allows access checks.");
    EXPECT_EQ(answer("ALTER DATABASE prova SET AUTO_CLOSE"), "!102 Incorrect syntax near 'AUTO_CLOSE'.");
    EXPECT_EQ(answer("ALTER DATABASE prova SET AUTO_CLOSE FORSE"), "!102 Incorrect syntax near 'AUTO_CLOSE'.");
    EXPECT_EQ(answer("ALTER DATABASE prova SET RECOVERY MAI"), "!102 Incorrect syntax near 'RECOVERY'.");
    EXPECT_EQ(answer("ALTER DATABASE prova SET MANCA ON"), "!102 Incorrect syntax near 'MANCA'.");
    EXPECT_EQ(answer("ALTER DATABASE prova SET [ ] ON"), "!102 Incorrect syntax near ' '.");
    EXPECT_EQ(answer("ALTER DATABASE prova"), "!102 Incorrect syntax near 'prova'.");
}

TEST_F(Procedures, OthersArentThereAndArgumentsAreChecked) {
    for (const char* procedure : {"sp_tables", "sp_columns", "sp_databases", "sp_manca"}) {
        EXPECT_EQ(answer(procedure), "!2812 Could not find stored procedure '" + std::string(procedure) + "'.");
    }
    EXPECT_EQ(answer("sp_configure 'a', 'b', 'c'").substr(0, 6), "!8144 ");
    EXPECT_EQ(answer("sp_configure @manca = 'b'").substr(0, 6), "!8145 ");
}

TEST_F(Procedures, WhatIsPrintedIsAMessage) {
    EXPECT_EQ(answer("print 'ecco ' + db_name()"), "0: ecco prova\n-");
}

} // namespace
} // namespace engine

// What SET changes in a session, where its statements run.

#include "engine/run/Settings.h"

#include "engine/run/SettingsFixture.h"

#include <chrono>
#include <thread>

namespace engine {
namespace {

TEST_F(SettingsTest, RowCountLimitsWhatASelectGives) {
    run("SET ROWCOUNT 2");
    EXPECT_EQ(rows("SELECT n FROM voci ORDER BY n DESC"), "5\n4");
    EXPECT_EQ(rows("SELECT @@ROWCOUNT"), "2");
    EXPECT_EQ(rows("SELECT n FROM voci UNION SELECT n + 10 FROM voci ORDER BY n"), "1\n2");
    EXPECT_EQ(rows("SELECT TOP 1 n FROM voci ORDER BY n"), "1");
    EXPECT_EQ(rows("SELECT COUNT(*) FROM voci"), "5");
    run("SET ROWCOUNT 0");
    EXPECT_EQ(rows("SELECT n FROM voci ORDER BY n DESC"), "5\n4\n3\n2\n1");
}

TEST_F(SettingsTest, RowCountLimitsWhatIsWritten) {
    run("SET ROWCOUNT 2");
    EXPECT_EQ(answer("DELETE FROM voci WHERE n > 1"), "(2)");
    EXPECT_EQ(rowsOf(*other, "SELECT COUNT(*) FROM voci"), "3");
    EXPECT_EQ(answer("UPDATE voci SET testo = 'x'"), "(2)");
    EXPECT_EQ(rowsOf(*other, "SELECT COUNT(*) FROM voci WHERE testo = 'x'"), "2");
    EXPECT_EQ(answer("UPDATE voci SET testo = 'y' FROM voci, voci AS v WHERE v.n > 0"), "(2)");
    EXPECT_EQ(rowsOf(*other, "SELECT COUNT(*) FROM voci WHERE testo = 'y'"), "2");
    EXPECT_EQ(answer("INSERT INTO voci SELECT n + 10, testo FROM voci"), "(2)");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (21, NULL), (22, NULL)"), "(2)");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (31, NULL), (32, NULL), (33, NULL)"),
              "!40510 Statement 'INSERT … VALUES of more rows than SET ROWCOUNT' is not supported in this version of "
              "SQL Server.");
    run("SET ROWCOUNT 0");
    EXPECT_EQ(answer("DELETE FROM voci"), "(7)");
}

TEST_F(SettingsTest, APlanMadeUnderARowCountServesNoOtherRun) {
    EXPECT_EQ(answer("UPDATE voci SET testo = 'p'"), "(5)");
    run("SET ROWCOUNT 1");
    EXPECT_EQ(answer("UPDATE voci SET testo = 'q'"), "(1)");
    run("SET ROWCOUNT 3");
    EXPECT_EQ(answer("UPDATE voci SET testo = 'r'"), "(3)");
    run("SET ROWCOUNT 0");
    EXPECT_EQ(answer("UPDATE voci SET testo = 's'"), "(5)");
}

TEST_F(SettingsTest, ImplicitTransactionsBeginWithTheFirstStatementThatTouchesATable) {
    run("SET IMPLICIT_TRANSACTIONS ON");
    EXPECT_EQ(rows("SELECT @@TRANCOUNT"), "0");
    EXPECT_EQ(rows("SELECT n FROM voci WHERE n = 1"), "1");
    EXPECT_EQ(rows("SELECT @@TRANCOUNT"), "1");
    EXPECT_EQ(answer("DELETE FROM voci WHERE n < 5"), "(4)");
    EXPECT_EQ(rows("SELECT @@TRANCOUNT"), "1");
    EXPECT_EQ(left(), "1|a\n2|b\n3|c\n4|d\n5|e");
    run("ROLLBACK");
    EXPECT_EQ(rows("SELECT @@TRANCOUNT"), "0");
    EXPECT_EQ(left(), "1|a\n2|b\n3|c\n4|d\n5|e");
    EXPECT_EQ(answer("DELETE FROM voci WHERE n < 5"), "(4)");
    run("COMMIT");
    EXPECT_EQ(left(), "5|e");
    run("CREATE TABLE altra (n int)");
    EXPECT_EQ(rows("SELECT @@TRANCOUNT"), "1");
    run("ROLLBACK");
    EXPECT_EQ(answer("SELECT n FROM altra"), "!208 Invalid object name 'altra'.");
    run("IF @@TRANCOUNT > 0 ROLLBACK");
    run("BEGIN TRAN");
    EXPECT_EQ(rows("SELECT @@TRANCOUNT"), "2") << "one of its own, and the one that any first statement begins";
    run("ROLLBACK");
    run("SET IMPLICIT_TRANSACTIONS OFF");
    EXPECT_EQ(answer("DELETE FROM voci"), "(1)");
    EXPECT_EQ(left(), "");
}

TEST_F(SettingsTest, AnImplicitTransactionAlsoBeginsWithAStatementWhosePlanIsKept) {
    EXPECT_EQ(answer("DELETE FROM voci WHERE n = 1"), "(1)");
    run("SET IMPLICIT_TRANSACTIONS ON");
    EXPECT_EQ(answer("DELETE FROM voci WHERE n = 2"), "(1)");
    run("ROLLBACK");
    EXPECT_EQ(left(), "2|b\n3|c\n4|d\n5|e");
}

TEST_F(SettingsTest, AnImplicitTransactionHasNoName) {
    run("BEGIN TRAN uno; COMMIT");
    run("SET IMPLICIT_TRANSACTIONS ON");
    EXPECT_EQ(answer("DELETE FROM voci WHERE n = 1"), "(1)");
    EXPECT_EQ(answer("ROLLBACK TRAN uno"),
              "!6401 Cannot roll back uno. No transaction or savepoint of that name was found.");
    run("ROLLBACK");
}

TEST_F(SettingsTest, XactAbortTakesTheTransactionBackAndEndsTheBatchWithAnyError) {
    const char* batch = "BEGIN TRAN; DELETE FROM voci WHERE n = 5; INSERT INTO voci VALUES (1, 'z'); SELECT 1 AS dopo";
    EXPECT_EQ(answer(batch).substr(0, 16), "-\n(1)\n!2627 Viol");
    EXPECT_EQ(rows("SELECT @@TRANCOUNT"), "1");
    run("ROLLBACK");
    run("SET XACT_ABORT ON");
    const std::string said = answer(batch);
    EXPECT_EQ(said.find("dopo"), std::string::npos) << said;
    EXPECT_EQ(rows("SELECT @@TRANCOUNT"), "0");
    EXPECT_EQ(left(), "1|a\n2|b\n3|c\n4|d\n5|e");
    run("SET XACT_ABORT OFF");
    EXPECT_NE(answer(batch).find("dopo"), std::string::npos);
    run("ROLLBACK");
}

TEST_F(SettingsTest, NoCountTellsNoNumberOfRowsWritten) {
    run("SET NOCOUNT ON");
    EXPECT_EQ(answer("UPDATE voci SET testo = 'x' WHERE n < 4"), "-");
    EXPECT_EQ(rows("SELECT @@ROWCOUNT"), "3");
    EXPECT_EQ(answer("UPDATE voci SET testo = 'x' WHERE n < 4; SELECT @@ROWCOUNT AS n"), "-\nn\n3");
    run("SET NOCOUNT OFF");
    EXPECT_EQ(answer("UPDATE voci SET testo = 'x' WHERE n < 4"), "(3)");
}

TEST_F(SettingsTest, DateFormatOrdersTheNumbersOfADate) {
    const char* day = "SELECT CONVERT(varchar(10), CAST('04/03/02' AS datetime), 120)";
    EXPECT_EQ(rows(day), "2002-04-03");
    run("SET DATEFORMAT dmy");
    EXPECT_EQ(rows(day), "2002-03-04");
    run("SET DATEFORMAT ymd");
    EXPECT_EQ(rows(day), "2004-03-02");
    run("SET DATEFORMAT 'MDY'");
    EXPECT_EQ(rows(day), "2002-04-03");
    EXPECT_EQ(answer("SET DATEFORMAT dym"),
              "!40510 Statement 'SET DATEFORMAT dym' is not supported in this version of SQL Server.");
    EXPECT_EQ(answer("SET DATEFORMAT xyz"), "!2741 SET DATEFORMAT date order 'xyz' is invalid.");
    EXPECT_EQ(rows(day), "2002-04-03") << "as it was";
}

TEST_F(SettingsTest, DateFirstSaysWithWhichDayAWeekBegins) {
    // 2004-03-07 was a Sunday, the 67th day of a year that began with a Thursday.
    const char* parts =
        "SELECT @@DATEFIRST, DATEPART(dw, '20040307'), DATEPART(wk, '20040307'), DATEPART(dw, '20040308')";
    EXPECT_EQ(rows(parts), "7|1|11|2");
    run("SET DATEFIRST 1");
    EXPECT_EQ(rows(parts), "1|7|10|1");
    run("SET DATEFIRST 3");
    EXPECT_EQ(rows(parts), "3|5|10|6");
    EXPECT_EQ(rows("SELECT DATEDIFF(wk, '20040306', '20040307')"), "1") << "weeks between dates begin on Sundays";
    EXPECT_EQ(answer("SET DATEFIRST 8"), "!2742 SET DATEFIRST 8 is out of range.");
    EXPECT_EQ(answer("SET DATEFIRST 0"), "!2742 SET DATEFIRST 0 is out of range.");
    EXPECT_EQ(answer("SET DATEFIRST ON"), "!2742 SET DATEFIRST ON is out of range.");
    EXPECT_EQ(rows("SELECT @@DATEFIRST"), "3");
}

TEST_F(SettingsTest, LanguageSaysHowDatesAreReadAndWeeksBegin) {
    const char* said = "SELECT @@LANGUAGE, @@DATEFIRST, DAY('04/03/2002')";
    EXPECT_EQ(rows(said), "us_english|7|3");
    run("SET LANGUAGE Italian");
    EXPECT_EQ(rows(said), "Italiano|1|4");
    run("SET LANGUAGE 'português'");
    EXPECT_EQ(rows(said), "Português|7|4");
    run("SET LANGUAGE English");
    EXPECT_EQ(rows(said), "us_english|7|3");
    EXPECT_EQ(answer("SET LANGUAGE Volapük"),
              "!2740 SET LANGUAGE failed because 'Volapük' is not an official language name or a language alias on "
              "this SQL Server.");
}

TEST_F(SettingsTest, LockTimeoutSaysHowLongAWriterWaitsForAnother) {
    EXPECT_EQ(rows("SELECT @@LOCK_TIMEOUT"), "-1");
    EXPECT_EQ(engine::answer(*other, "BEGIN TRAN; UPDATE voci SET testo = 'x' WHERE n = 1"), "-\n(1)");
    run("SET LOCK_TIMEOUT 0");
    EXPECT_EQ(answer("DELETE FROM voci WHERE n = 2"), "!1222 Lock request time out period exceeded.");
    run("SET LOCK_TIMEOUT 2500");
    EXPECT_EQ(rows("SELECT @@LOCK_TIMEOUT"), "2500");
    EXPECT_EQ(answer("DELETE FROM voci WHERE n = 2"), "!1222 Lock request time out period exceeded.");
    EXPECT_EQ(answer("SET LOCK_TIMEOUT -2"),
              "!40510 Statement 'SET LOCK_TIMEOUT -2' is not supported in this version of SQL Server.");
    EXPECT_EQ(engine::answer(*other, "COMMIT"), "-");
    EXPECT_EQ(answer("DELETE FROM voci WHERE n = 2"), "(1)");
}

TEST(Patience, IsTheLockTimeoutButNeverLessThanAMoment) {
    Settings settings;
    EXPECT_EQ(settings.patience(), -1);
    settings.lockTimeout = 0;
    EXPECT_EQ(settings.patience(), 2000);
    settings.lockTimeout = 2500;
    EXPECT_EQ(settings.patience(), 2500);
}

TEST_F(SettingsTest, AWriteToOtherRowsIsWaitedForWhateverTheLockTimeout) {
    run("SET LOCK_TIMEOUT 0");
    EXPECT_EQ(engine::answer(*other, "BEGIN TRAN; UPDATE voci SET testo = 'x' WHERE n = 1"), "-\n(1)");
    std::thread end([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        EXPECT_EQ(engine::answer(*other, "COMMIT"), "-");
    });
    EXPECT_EQ(answer("DELETE FROM voci WHERE n = 2"), "(1)");
    end.join();
}

TEST_F(SettingsTest, WhatASerializableTransactionHasReadStaysAsItIs) {
    run("SET LOCK_TIMEOUT 0");
    EXPECT_EQ(engine::answer(*other, "SET LOCK_TIMEOUT 0"), "-");
    for (const char* level : {"REPEATABLE READ", "SERIALIZABLE"}) {
        run(std::string("SET TRANSACTION ISOLATION LEVEL ") + level);
        run("BEGIN TRAN");
        EXPECT_EQ(rows("SELECT testo FROM voci WHERE n = 1"), "a");
        EXPECT_EQ(engine::answer(*other, "UPDATE voci SET testo = 'x' WHERE n = 1"),
                  "!1222 Lock request time out period exceeded.")
            << level;
        run("COMMIT");
    }
    for (const char* level : {"READ COMMITTED", "READ UNCOMMITTED"}) {
        run(std::string("SET TRANSACTION ISOLATION LEVEL ") + level);
        run("BEGIN TRAN");
        EXPECT_EQ(rows("SELECT COUNT(*) FROM voci"), "5");
        EXPECT_EQ(engine::answer(*other, "UPDATE voci SET testo = 'x' WHERE n = 1"), "(1)") << level;
        run("COMMIT");
    }
    EXPECT_EQ(answer("SET TRANSACTION ISOLATION LEVEL SNAPSHOT"),
              "!40510 Statement 'SET TRANSACTION ISOLATION LEVEL SNAPSHOT' is not supported in this version of SQL "
              "Server.");
}

TEST_F(SettingsTest, IdentityInsertIsOfOneTableOfOneDatabase) {
    instance->createDatabase("seconda", "", "");
    for (const char* database : {"prova", "seconda"}) {
        run(std::string("USE ") + database + "; CREATE TABLE conti (id int IDENTITY(1,1) NOT NULL PRIMARY KEY, n int)");
    }
    run("USE prova; CREATE TABLE altri (id int IDENTITY(1,1) NOT NULL PRIMARY KEY, n int)");
    run("SET IDENTITY_INSERT conti ON");
    EXPECT_EQ(answer("INSERT INTO conti (id, n) VALUES (7, 1)"), "(1)");
    EXPECT_EQ(answer("SET IDENTITY_INSERT altri ON"),
              "!8107 IDENTITY_INSERT is already ON for table 'conti'. Cannot perform SET operation for table 'altri'.");
    run("USE seconda");
    EXPECT_EQ(answer("INSERT INTO conti (id, n) VALUES (7, 1)"),
              "!544 Cannot insert explicit value for identity column in table 'conti' when IDENTITY_INSERT is set to "
              "OFF.");
    EXPECT_EQ(answer("SET IDENTITY_INSERT conti ON"),
              "!8107 IDENTITY_INSERT is already ON for table 'conti'. Cannot perform SET operation for table 'conti'.");
    run("SET IDENTITY_INSERT conti OFF");
    run("USE prova");
    EXPECT_EQ(answer("INSERT INTO conti (id, n) VALUES (8, 1)"), "(1)") << "switched off for the other database alone";
    run("SET IDENTITY_INSERT conti OFF");
    run("SET IDENTITY_INSERT altri ON");
}

TEST_F(SettingsTest, TheOptionsOfASessionAreToldAsBits) {
    EXPECT_EQ(rows("SELECT @@OPTIONS"), "5496");
    run("SET NOCOUNT, IMPLICIT_TRANSACTIONS, XACT_ABORT ON");
    EXPECT_EQ(rows("SELECT @@OPTIONS"), std::to_string(5496 + 512 + 2 + 16384));
}

TEST_F(SettingsTest, ASettingIsTheSessionsOwn) {
    run("SET ROWCOUNT 1 SET DATEFORMAT dmy SET DATEFIRST 1");
    EXPECT_EQ(rowsOf(*other, "SELECT n FROM voci"), "1\n2\n3\n4\n5");
    EXPECT_EQ(rowsOf(*other, "SELECT @@DATEFIRST, DAY('04/03/2002')"), "7|3");
}

} // namespace
} // namespace engine

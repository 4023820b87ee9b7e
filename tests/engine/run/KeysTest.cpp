// Keys and unique indexes: nulls, names, statements that move a key through others.

#include "engine/SessionFixture.h"

namespace engine {
namespace {

constexpr const char* kDuplicate =
    "!2627 Violation of UNIQUE KEY constraint 'uq'. Cannot insert duplicate key in object "
    "'dbo.voci'.";
constexpr const char* kDuplicateInIndex =
    "!2601 Cannot insert duplicate key row in object 'dbo.voci' with unique index 'ix'.";

class KeysTest : public SessionTest {};

TEST_F(KeysTest, AUniqueKeyTakesOneNull) {
    run("CREATE TABLE voci (n int NULL, testo varchar(9) NULL, CONSTRAINT uq UNIQUE (n))");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (NULL, 'a')"), "(1)");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (NULL, 'b')"), kDuplicate);
    EXPECT_EQ(answer("INSERT INTO voci VALUES (0, 'c'), (1, 'd')"), "(2)");
    EXPECT_EQ(answer("UPDATE voci SET n = NULL WHERE n = 1"), kDuplicate);
    EXPECT_EQ(answer("DELETE FROM voci WHERE n IS NULL"), "(1)");
    EXPECT_EQ(answer("UPDATE voci SET n = NULL WHERE n = 1"), "(1)");
}

TEST_F(KeysTest, AUniqueIndexTakesOneNull) {
    run("CREATE TABLE voci (n int NULL)");
    run("CREATE UNIQUE INDEX ix ON voci (n)");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (NULL)"), "(1)");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (NULL)"), kDuplicateInIndex);
    run("DROP INDEX voci.ix");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (NULL)"), "(1)") << "nothing of the index is left";
    EXPECT_EQ(
        answer("CREATE UNIQUE INDEX ix ON voci (n)"),
        "!1505 The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the object name "
        "'dbo.voci' and the index name 'ix'.");
    run("DELETE FROM voci");
    run("CREATE UNIQUE INDEX ix ON voci (n)");
}

TEST_F(KeysTest, ANullIsEqualToANullInAKeyOfSeveralColumns) {
    run("CREATE TABLE voci (a int NOT NULL, b varchar(9) NULL, c int NULL, CONSTRAINT uq UNIQUE (a, b, c))");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (1, NULL, NULL), (1, 'x', NULL), (1, NULL, 2), (2, NULL, NULL), "
                     "(1, '0', NULL), (1, NULL, 0)"),
              "(6)");
    for (const char* row : {"1, NULL, NULL", "1, 'x', NULL", "1, 'X ', NULL", "1, NULL, 2", "1, NULL, 0"}) {
        EXPECT_EQ(answer("INSERT INTO voci VALUES (" + std::string(row) + ")"), kDuplicate) << row;
    }
}

TEST_F(KeysTest, APrimaryKeyTakesNoColumnThatMayBeNull) {
    run("CREATE TABLE voci (n int NULL, m int NOT NULL)");
    EXPECT_EQ(answer("ALTER TABLE voci ADD CONSTRAINT pk PRIMARY KEY (n)"),
              "!8111 Cannot define PRIMARY KEY constraint on nullable column in table 'voci'.");
    EXPECT_EQ(answer("ALTER TABLE voci ADD CONSTRAINT pk PRIMARY KEY (m)"), "-");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (1, NULL)"),
              "!515 Cannot insert the value NULL into column 'm', table 'prova.dbo.voci'; column does not allow nulls. "
              "INSERT fails.");
    run("CREATE TABLE altre (n int PRIMARY KEY)");
    EXPECT_EQ(
        answer("INSERT INTO altre VALUES (NULL)"),
        "!515 Cannot insert the value NULL into column 'n', table 'prova.dbo.altre'; column does not allow nulls. "
        "INSERT fails.");
}

TEST_F(KeysTest, AConstraintsNameStandsOnceInADatabase) {
    run("CREATE TABLE voci (n int NOT NULL CONSTRAINT df DEFAULT 1, CONSTRAINT uq UNIQUE (n))");
    const std::pair<const char*, const char*> cases[] = {
        {"CREATE TABLE altre (n int NOT NULL, CONSTRAINT uq UNIQUE (n))", "uq"},
        {"CREATE TABLE altre (n int NOT NULL CONSTRAINT UQ DEFAULT 1)", "UQ"},
        {"CREATE TABLE altre (n int NOT NULL, CONSTRAINT DF PRIMARY KEY (n))", "DF"},
        {"CREATE TABLE altre (n int NOT NULL CONSTRAINT voci DEFAULT 1)", "voci"},
        {"ALTER TABLE voci ADD m int NULL CONSTRAINT df DEFAULT 2", "df"},
        {"ALTER TABLE voci ADD CONSTRAINT uq UNIQUE (n)", "uq"},
    };
    for (const auto& [statement, name] : cases) {
        EXPECT_EQ(answer(statement),
                  "!2714 There is already an object named '" + std::string(name) + "' in the database.")
            << statement;
    }
    EXPECT_EQ(rows("SELECT COUNT(*) FROM sysobjects WHERE name = 'altre'"), "0");
}

TEST_F(KeysTest, AKeyOverAnIndexOfItsNameIsRefused) {
    run("CREATE TABLE voci (n int NOT NULL)");
    run("CREATE INDEX ix ON voci (n)");
    EXPECT_EQ(
        answer("ALTER TABLE voci ADD CONSTRAINT ix UNIQUE (n)"),
        "!1913 The operation failed because an index or statistics with name 'ix' already exists on table 'voci'.");
    EXPECT_EQ(
        answer("CREATE UNIQUE INDEX ix ON voci (n)"),
        "!1913 The operation failed because an index or statistics with name 'ix' already exists on table 'voci'.");
}

TEST_F(KeysTest, AKeyOverRowsThatAreTwiceIsRefused) {
    run("CREATE TABLE voci (n int NULL)");
    run("INSERT INTO voci VALUES (1), (1)");
    EXPECT_EQ(
        answer("ALTER TABLE voci ADD CONSTRAINT uq UNIQUE (n)"),
        "!1505 The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the object name "
        "'dbo.voci' and the index name 'uq'.");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (1)"), "(1)") << "no key is left behind";
}

TEST_F(KeysTest, AnUpdateComparesKeysBehindItsLastRow) {
    run("CREATE TABLE voci (n int NOT NULL PRIMARY KEY, m int NULL, CONSTRAINT uq UNIQUE (m))");
    run("INSERT INTO voci VALUES (1, 1), (2, 2), (3, NULL)");
    EXPECT_EQ(answer("UPDATE voci SET n = n + 1"), "(3)");
    EXPECT_EQ(rows("SELECT n, m FROM voci ORDER BY n"), "2|1\n3|2\n4|NULL");
    EXPECT_EQ(answer("UPDATE voci SET n = 6 - n, m = 3 - m"), "(3)");
    EXPECT_EQ(rows("SELECT n, m FROM voci ORDER BY n"), "2|NULL\n3|1\n4|2");
    EXPECT_EQ(answer("UPDATE voci SET n = a.n + 1 FROM voci, voci AS a WHERE a.n = voci.n"), "(3)");
    EXPECT_EQ(rows("SELECT n FROM voci ORDER BY n"), "3\n4\n5");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (4, 9)").substr(0, 5), "!2627") << "the keys are in force again";
}

TEST_F(KeysTest, AnUpdateThatMakesTwoKeysEqualChangesNothing) {
    run("CREATE TABLE voci (n int NOT NULL, CONSTRAINT uq UNIQUE (n))");
    run("INSERT INTO voci VALUES (1), (2), (3)");
    EXPECT_EQ(answer("UPDATE voci SET n = 7"), kDuplicate);
    EXPECT_EQ(answer("UPDATE voci SET n = n / 2"), kDuplicate);
    EXPECT_EQ(answer("UPDATE voci SET n = 2 WHERE n = 3"), kDuplicate);
    EXPECT_EQ(rows("SELECT n FROM voci ORDER BY n"), "1\n2\n3");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (2)"), kDuplicate);
    run("BEGIN TRAN");
    EXPECT_EQ(answer("UPDATE voci SET n = n + 1"), "(3)");
    EXPECT_EQ(answer("UPDATE voci SET n = 7"), kDuplicate);
    EXPECT_EQ(rows("SELECT n FROM voci ORDER BY n"), "2\n3\n4");
    run("ROLLBACK");
    EXPECT_EQ(rows("SELECT n FROM voci ORDER BY n"), "1\n2\n3");
    EXPECT_EQ(answer("INSERT INTO voci VALUES (2)"), kDuplicate);
}

} // namespace
} // namespace engine

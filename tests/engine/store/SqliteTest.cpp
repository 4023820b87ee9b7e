#include "engine/store/Sqlite.h"

#include "support/Capabilities.h"
#include "support/OwnerAlone.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace engine::sqlite {
namespace {

namespace fs = std::filesystem;

class Storage : public testing::Test {
protected:
    std::string answer(Connection& connection, const std::string& text) {
        Statement statement(connection, text);
        return statement.step() ? std::string(statement.text(0)) : "no row";
    }

    support::TemporaryFolder folder;
    fs::path file = folder.path() / "a.mdf";
};

TEST_F(Storage, IsDurable) {
    Connection connection(file, true);
    connection.run("CREATE TABLE t (a)");
    EXPECT_EQ(answer(connection, "PRAGMA journal_mode"), "wal");
    EXPECT_EQ(answer(connection, "PRAGMA synchronous"), "2");
    EXPECT_EQ(answer(connection, "PRAGMA foreign_keys"), "0");
}

// Where files have no such permissions, those beside a database have the rights of their folder.
TEST_F(Storage, BelongsToItsOwnerWithAllItsFiles) {
    VABO_NEEDS(support::systemCapabilities().permissionBits);
    Connection connection(file, true);
    connection.run("CREATE TABLE t (a)");
    for (const char* ending : {"", "-wal", "-shm"}) {
        fs::path part = file;
        part += ending;
        EXPECT_TRUE(support::isForOwnerAlone(part)) << part;
    }
}

TEST_F(Storage, DoesNotMakeAMissingFileUnasked) {
    EXPECT_THROW(Connection(file, false), Failure);
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(Storage, AFileEmptiedWhileItIsInUseIsNoDatabaseAndNobodyWaitsForIt) {
    Connection connection(file, true);
    connection.run("CREATE TABLE t (a)");
    fs::resize_file(file, 0);
    try {
        const Connection other(file, false);
        FAIL() << "it was opened";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), SQLITE_NOTADB);
    }
}

TEST_F(Storage, AnEmptyFileIsADatabaseThatNobodyHasOpenedYet) {
    std::ofstream(file, std::ios::binary).flush();
    Connection connection(file, false);
    connection.run("CREATE TABLE t (a)");
    EXPECT_EQ(answer(connection, "PRAGMA journal_mode"), "wal");
}

TEST_F(Storage, TellsExtendedCodesOfFailures) {
    Connection connection(file, true);
    connection.run("CREATE TABLE t (a UNIQUE); INSERT INTO t VALUES (1)");
    Statement insert(connection, "INSERT INTO t VALUES (1)");
    try {
        insert.step();
        FAIL() << "the key is there already";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), SQLITE_CONSTRAINT_UNIQUE);
        EXPECT_STREQ(failure.what(), "UNIQUE constraint failed: t.a");
    }
    EXPECT_THROW(connection.run("SELECT * FROM missing"), Failure);
    EXPECT_THROW(Statement(connection, "SELEC"), Failure);
    EXPECT_THROW(Statement(connection, "  "), Failure);
}

TEST_F(Storage, AFileThatIsNoDatabaseIsRefused) {
    { Connection made(file, true); }
    fs::resize_file(file, 0);
    std::ofstream(file, std::ios::binary) << std::string(5000, 'x');
    try {
        Connection connection(file, false);
        FAIL() << "a text is no database";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), SQLITE_NOTADB);
    }
}

TEST_F(Storage, AnUnknownNameInDoubleQuotesIsNotAText) {
    Connection connection(file, true);
    connection.run("CREATE TABLE t (a)");
    EXPECT_THROW(connection.run("SELECT \"b\" FROM t"), Failure);
}

TEST_F(Storage, KnowsTheCollation) {
    Connection connection(file, true);
    connection.run("CREATE TABLE t (a TEXT COLLATE TSQL); CREATE INDEX i ON t (a);"
                   "INSERT INTO t VALUES ('Citt\u00e0'), ('citta'), ('SEDE  ')");
    EXPECT_EQ(answer(connection, "SELECT count(*) FROM t WHERE a = 'CITT\u00c0 '"), "1");
    EXPECT_EQ(answer(connection, "SELECT count(*) FROM t WHERE a = 'sede'"), "1");
    EXPECT_EQ(answer(connection, "SELECT group_concat(a, '|') FROM (SELECT a FROM t ORDER BY a)"),
              "citta|Citt\u00e0|SEDE  ");
}

TEST_F(Storage, IndexesOfAnotherOrderOfTextsAreMadeAnew) {
    {
        // As a version wrote it that compared hyphens before letters: the order of the bytes has them there too.
        sqlite3* handle = nullptr;
        ASSERT_EQ(sqlite3_open(file.string().c_str(), &handle), SQLITE_OK);
        const auto byBytes = [](void*, int leftSize, const void* left, int rightSize, const void* right) {
            const std::string_view a(static_cast<const char*>(left), static_cast<std::size_t>(leftSize));
            const std::string_view b(static_cast<const char*>(right), static_cast<std::size_t>(rightSize));
            return a.compare(b);
        };
        sqlite3_create_collation(handle, "TSQL", SQLITE_UTF8, nullptr, byBytes);
        EXPECT_EQ(sqlite3_exec(handle,
                               "CREATE TABLE t (a TEXT COLLATE TSQL UNIQUE);"
                               "INSERT INTO t VALUES ('co-op'), ('coat'), ('coop'), ('cork')",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(handle);
    }
    std::optional<Connection> writer;
    for (int opened = 0; opened < 2; ++opened) {
        Connection connection(file, false);
        EXPECT_EQ(answer(connection, "SELECT group_concat(a) FROM (SELECT a FROM t INDEXED BY sqlite_autoindex_t_1 "
                                     "WHERE a > '' ORDER BY a)"),
                  "coat,coop,co-op,cork");
        EXPECT_EQ(answer(connection, "SELECT a FROM t WHERE a = 'CO-OP'"), "co-op");
        EXPECT_EQ(answer(connection, "PRAGMA integrity_check"), "ok");
        EXPECT_EQ(answer(connection, "PRAGMA application_id"), "1");
        // The second time there is nothing to write: it is opened while another connection writes.
        writer.emplace(file, false).run("BEGIN IMMEDIATE");
    }
}

TEST_F(Storage, ValuesComeBackAsTheyWereBound) {
    Connection connection(file, true);
    Statement statement(connection, "SELECT ?1, ?2, ?3, ?4, ?5");
    statement.bind(1, std::int64_t{1} << 60);
    statement.bind(2, 2.5);
    statement.bind(3, std::string_view("a\0b", 3));
    statement.bindNull(4);
    statement.bind(5, std::string_view());
    ASSERT_TRUE(statement.step());
    EXPECT_EQ(statement.columns(), 5);
    EXPECT_EQ(statement.integer(0), std::int64_t{1} << 60);
    EXPECT_EQ(statement.real(1), 2.5);
    EXPECT_EQ(statement.text(2), std::string_view("a\0b", 3));
    EXPECT_TRUE(statement.isNull(3));
    EXPECT_EQ(statement.text(3), "");
    EXPECT_FALSE(statement.isNull(4));
    EXPECT_FALSE(statement.step());
}

TEST_F(Storage, AStatementCanBeMoved) {
    Connection connection(file, true);
    Statement first(connection, "SELECT 1");
    Statement second(std::move(first));
    Statement third(connection, "SELECT 3");
    third = std::move(second);
    ASSERT_TRUE(third.step());
    EXPECT_EQ(third.integer(0), 1);
}

TEST_F(Storage, ATransactionThatIsNotCommittedIsTakenBack) {
    Connection connection(file, true);
    connection.run("CREATE TABLE t (a)");
    {
        Transaction transaction(connection);
        connection.run("INSERT INTO t VALUES (1)");
        EXPECT_TRUE(connection.inTransaction());
    }
    EXPECT_FALSE(connection.inTransaction());
    {
        Transaction transaction(connection);
        connection.run("INSERT INTO t VALUES (2)");
        transaction.commit();
    }
    EXPECT_EQ(answer(connection, "SELECT group_concat(a) FROM t"), "2");
    EXPECT_EQ(connection.lastRow(), 1);
}

TEST_F(Storage, ANestedTransactionIsTakenBackAlone) {
    Connection connection(file, true);
    connection.run("CREATE TABLE t (a)");
    Transaction outer(connection);
    connection.run("INSERT INTO t VALUES (1)");
    {
        Transaction inner(connection);
        connection.run("INSERT INTO t VALUES (2)");
    }
    {
        Transaction inner(connection);
        connection.run("INSERT INTO t VALUES (3)");
        inner.commit();
    }
    outer.commit();
    EXPECT_EQ(answer(connection, "SELECT group_concat(a) FROM t"), "1,3");
}

TEST_F(Storage, AWriterSeesWhatAnotherCommitted) {
    Connection first(file, true);
    Connection second(file, false);
    first.run("CREATE TABLE t (a); INSERT INTO t VALUES (1)");
    second.run("UPDATE t SET a = a + 1");
    EXPECT_EQ(second.changes(), 1);
    EXPECT_EQ(answer(first, "SELECT a FROM t"), "2");
}

} // namespace
} // namespace engine::sqlite

// Every statement gives rows or an error, and the connection can run the next one.

#include "ado/AdoFixture.h"
#include "engine/run/InternalErrors.h"
#include "engine/store/Sqlite.h"
#include "support/Capabilities.h"
#include "support/LargestFile.h"

namespace ado {
namespace {

using test::Contract;

class StatementErrorsContract : public Contract {
protected:
    /// The server's error number, 0 where there was no error.
    int refusalOf(const std::string& statement) {
        try {
            if (statement.starts_with("select")) {
                rowsOf(statement); // an error of a value is raised when its row is read
            } else {
                connection.Execute(statement);
            }
        } catch (const Error& error) {
            return error.nativeError();
        }
        return 0;
    }
};

TEST_F(StatementErrorsContract, NoStatementEndsTheConnection) {
    const std::string longNumber(400, '9');
    struct Case {
        std::string statement;
        int refusal;
    };
    const Case cases[] = {
        {"create table g (a int null, c int null, d datetime null, f float null, m decimal(38,0) null)", 0},
        {"insert into g (a, c, d, f) values (1, 2, '20040307', 1e300), (1, 4, '20040307', 1)", 0},
        {"select 1 from g having sum(c) > 1", 0},
        {"select 1 from g order by sum(c)", 0},
        {"select (select sum(g.c)) from g", 0},
        {"select a from g having sum(c) > 1", 8120},
        {"create table sqlite_x (a int null)", 0},
        {"create index ix on g (a)", 0},
        {"create table [g.ix] (a int null)", 0},
        {"alter table g add constraint uq unique (a)", 1505},
        {"select " + longNumber, 8115},
        {"print " + longNumber, 8115},
        {"select case when 1 = 1 then " + longNumber + " end", 8115},
        {"select cast(" + longNumber + " as float)", 8115},
        {"update g set m = " + longNumber, 8115},
        {"update g set m = '" + longNumber + "'", 8115},
        {"select 1e400", 168},
        {"select 1e308 * 10", 8115},
        {"update g set f = f * f where f > 1", 8115},
        {"select floor(d) from g", 8116},
        {"select ceiling(d) from g", 8116},
        {"select abs(d) from g", 8116},
        {"select round(d, 1) from g", 8116},
        {"select -d from g", 8117},
        {"select cast(-9223372036854775808 as bigint) / -1", 8115},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(refusalOf(one.statement), one.refusal) << one.statement;
        ASSERT_EQ(cell("select 1"), "1") << "after " << one.statement;
    }
    EXPECT_EQ(cell("select 1 from g having sum(c) > 1"), "1");
    EXPECT_EQ(cell("select (select sum(g.c)) from g"), "6");
    EXPECT_EQ(cell("select count(*) from sqlite_x"), "0");
}

TEST_F(StatementErrorsContract, ASessionNeverWaitsForItself) {
    connection.Execute("create table t (a int null)");
    connection.Execute("insert into t (a) values (1)");
    for (const char* statement :
         {"use master", "create table m (a int null)", "select a from Vabodati.dbo.t", "begin transaction",
          "insert into m (a) values (1)", "use Vabodati", "update t set a = 2", "use master",
          "insert into m (a) select a from Vabodati.dbo.t", "use Vabodati", "commit"}) {
        EXPECT_EQ(refusalOf(statement), 0) << statement;
    }
    EXPECT_EQ(cell("select a from t"), "2");
    EXPECT_EQ(cell("select count(*) from master.dbo.m"), "2");
}

/// A table that is in the server's catalog but not in its storage any more.
TEST_F(StatementErrorsContract, AnInternalErrorOfTheServerIsTheStatementsOwn) {
    constexpr int kInternal = 8630;
    connection.Execute("create table g (a int null)");
    engine::sqlite::Connection(server.databaseFile(), false).run("DROP TABLE g");
    const auto before = engine::onInternalError([](const char* /*what*/) {});
    EXPECT_EQ(refusalOf("select a from g"), kInternal);
    EXPECT_EQ(refusalOf("update g set a = 1"), kInternal);
    engine::onInternalError(before);
    EXPECT_EQ(cell("select 1"), "1");
}

TEST_F(StatementErrorsContract, AFileAtItsLargestSizeIsAFullDisk) {
    VABO_NEEDS(support::systemCapabilities().limitedFileSize);
    constexpr int kDiskFull = 1105;
    connection.Execute("create table t (a nvarchar(4000) null)");
    const std::string insert = "insert into t (a) values ('" + std::string(4000, 'x') + "')";
    const long long process = support::testedDriver() == support::TestedDriver::Wire ? server.peer().pid() : 0;
    int written = 0;
    {
        constexpr std::uint64_t kLimit = 1'000'000;
        const support::LargestFile limit(process, kLimit);
        constexpr int kMoreThanFit = 2000;
        int refusal = 0;
        while (refusal == 0 && written < kMoreThanFit) {
            refusal = refusalOf(insert);
            written += refusal == 0 ? 1 : 0;
        }
        EXPECT_EQ(refusal, kDiskFull);
        EXPECT_EQ(cell("select count(*) from t"), std::to_string(written));
        EXPECT_EQ(refusalOf(insert), kDiskFull);
        EXPECT_EQ(refusalOf("create table u (a int null)"), kDiskFull);
    }
    EXPECT_GT(written, 0);
    EXPECT_EQ(refusalOf(insert), 0);
    EXPECT_EQ(cell("select count(*) from t"), std::to_string(written + 1));
}

TEST_F(StatementErrorsContract, AFullDiskAtTheCommitTakesTheTransactionBack) {
    VABO_NEEDS(support::systemCapabilities().limitedFileSize);
    constexpr int kDiskFull = 1105;
    connection.Execute("create table t (a nvarchar(4000) null)");
    const long long process = support::testedDriver() == support::TestedDriver::Wire ? server.peer().pid() : 0;
    connection.Execute("begin transaction");
    for (int i = 0; i < 50; ++i) {
        connection.Execute("insert into t (a) values ('" + std::string(4000, 'x') + "')");
    }
    {
        constexpr std::uint64_t kLimit = 150'000;
        const support::LargestFile limit(process, kLimit);
        EXPECT_EQ(refusalOf("commit"), kDiskFull);
    }
    EXPECT_EQ(cell("select @@trancount"), "0");
    EXPECT_EQ(cell("select count(*) from t"), "0");
    Connection other;
    other.Open(server.connectionString());
    EXPECT_EQ(other.Execute("insert into t (a) values ('y')"), 1) << "nothing keeps others waiting";
}

TEST_F(StatementErrorsContract, AFullDiskLeavesNoHalfOfATransaction) {
    VABO_NEEDS(support::systemCapabilities().limitedFileSize);
    constexpr int kDiskFull = 1105;
    constexpr int kNoTransaction = 3902;
    connection.Execute("create table t (a nvarchar(4000) null)");
    const std::string insert = "insert into t (a) values ('" + std::string(4000, 'x') + "')";
    const long long process = support::testedDriver() == support::TestedDriver::Wire ? server.peer().pid() : 0;
    connection.Execute("begin transaction");
    connection.Execute(insert);
    int refusal = 0;
    {
        constexpr std::uint64_t kLimit = 300'000;
        const support::LargestFile limit(process, kLimit);
        // More data than the storage's cache holds, so that it must write before the commit.
        connection.Execute("create table n (i int null)");
        connection.Execute("insert into n (i) values (1), (2), (3), (4), (5), (6), (7), (8), (9), (10)");
        refusal = refusalOf("insert into t (a) select replicate('y', 4000) from n as p, n as q, n as r");
        EXPECT_EQ(refusal, kDiskFull);
    }
    const bool goesOn = cell("select @@trancount") == "1";
    EXPECT_EQ(refusalOf("commit"), goesOn ? 0 : kNoTransaction);
    EXPECT_EQ(cell("select count(*) from t"), goesOn ? "1" : "0");
    EXPECT_EQ(refusalOf(insert), 0);
}

} // namespace
} // namespace ado

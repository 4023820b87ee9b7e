// No statement ends a session: each has rows or an error of the server's own, and the next one is answered.

#include "engine/NastyStatements.h"
#include "engine/SessionFixture.h"
#include "engine/errors/RunErrors.h"
#include "engine/run/InternalErrors.h"
#include "engine/store/Sqlite.h"

#include <sqlite3.h>

namespace engine {
namespace {

std::string digits(std::size_t count) {
    return std::string(count, '9');
}

/// An internal error is none of these.
class StatementErrors : public SessionTest {
protected:
    StatementErrors() {
        run("create table g (a int null, c int null, t nvarchar(10) null, f float null, d datetime null, b bigint "
            "null, r real null, m decimal(38,0) null)");
        run("insert into g (a, c, t, f, d) values (1, 2, 'x', 1e300, '20040307'), (3, 4, 'y', 2.5, '20050307')");
    }

    struct Case {
        std::string text;
        std::string answer;
    };
    void expect(const std::vector<Case>& cases) {
        for (const Case& one : cases) {
            EXPECT_EQ(rows(one.text), one.answer) << one.text.substr(0, 200);
            EXPECT_EQ(rows("select 1"), "1") << "after " << one.text.substr(0, 200);
        }
    }
};

TEST_F(StatementErrors, AnAggregateMayStandWhereNoItemAggregates) {
    expect({
        {"select 1 from g having sum(c) > 1", "1"},
        {"select 1 from g having sum(c) > 100", ""},
        {"select 1 from g where a > 100 having count(*) = 0", "1"},
        {"select 'x', 2 from g having 1 = 1", "x|2"},
        {"select 1 having 1 = 0", ""},
        {"select 1 from g order by sum(c)", "1"},
        {"select 1 from g order by 1, sum(c) desc", "1"},
        {"select a from g group by a order by sum(c) desc", "3\n1"},
        {"select a from g group by a having sum(c) > 2", "3"},
        {"select sum(c) from g having sum(c) > 1 order by max(a)", "6"},
        {"select (select sum(g.c)) from g", "6"},
        {"select (select max(x.a) from g as x) from g", "3\n3"},
        {"select (select count(*)) from g", "1\n1"},
        {"select g.a, (select sum(g.c)) from g",
         "!8120 Column 'g.a' is invalid in the select list because it is not contained in either an aggregate function "
         "or the GROUP BY clause."},
        {"select a from g having 1 = 1",
         "!8120 Column 'g.a' is invalid in the select list because it is not contained in either an aggregate function "
         "or the GROUP BY clause."},
        {"select c from g order by sum(c)",
         "!8120 Column 'g.c' is invalid in the select list because it is not contained in either an aggregate function "
         "or the GROUP BY clause."},
        {"select 1 from g having c > 1",
         "!8121 Column 'g.c' is invalid in the HAVING clause because it is not contained in either an aggregate "
         "function or the GROUP BY clause."},
        {"select sum(c) from g order by a",
         "!8127 Column \"g.a\" is invalid in the ORDER BY clause because it is not contained in either an aggregate "
         "function or the GROUP BY clause."},
        {"select sum(sum(c)) from g",
         "!130 Cannot perform an aggregate function on an expression containing an aggregate or a subquery."},
        {"select sum((select 1)) from g",
         "!130 Cannot perform an aggregate function on an expression containing an aggregate or a subquery."},
        {"select (select sum(g.c + x.c) from g as x) from g",
         "!8124 Multiple columns are specified in an aggregated expression containing an outer reference. If an "
         "expression being aggregated contains an outer reference, then that outer reference must be the only column "
         "referenced in the expression."},
        {"select a from g group by 1",
         "!164 Each GROUP BY expression must contain at least one column that is not an outer reference."},
    });
    for (const char* text :
         {"select a from g where sum(c) > 1", "select a from g where a = (select sum(g.c))", "update g set c = sum(a)",
          "delete from g where count(*) = 1", "select 1 from g join g as x on sum(g.c) = 1",
          "select (select sum(g.c) from g as x) from g"}) {
        EXPECT_EQ(rows(text).substr(0, 5), "!147 ") << text;
    }
    EXPECT_EQ(rows("select count(*) from g"), "2");
}

TEST_F(StatementErrors, AnyNameIsTaken) {
    for (const std::string name : {"sqlite_x", "SQLite_sequence", "_vabo_tables", "_vabo_identity", "g.ix", "a.b.c",
                                   "a\"b", "a]]b", "a'b", " ", "rowid", "temp", "main", "select", "_vabo_t:sqlite_x"}) {
        const std::string table = "[" + name + "]";
        run("create table " + table + " (id int identity(1,1) not null primary key, rowid int null, [a.b] int null)");
        run("create unique index [ix.y] on " + table + " ([a.b])");
        run("insert into " + table + " (rowid, [a.b]) values (7, 1), (8, 2)");
        EXPECT_EQ(answer("insert into " + table + " (rowid, [a.b]) values (7, 1)").substr(0, 6), "!2601 ") << name;
        run("update x set rowid = y.rowid + 1 from " + table + " as x, " + table + " as y where x.id = y.id");
        run("begin transaction");
        EXPECT_EQ(rows("select rowid from " + table + " with (updlock) where id = 2"), "9") << name;
        run("commit");
        run("set identity_insert " + table + " on insert into " + table + " (id, [a.b]) values (9, 9)");
        run("set identity_insert " + table + " off");
        EXPECT_EQ(rows("select id, rowid, [a.b] from " + table + " order by id"), "1|8|1\n2|9|2\n9|NULL|9") << name;
        run("alter table " + table + " add n int not null default 4");
        run("alter table " + table + " add constraint [uq " + name + "] unique (n, id)");
        EXPECT_EQ(answer("create table " + table + " (a int)").substr(0, 6), "!2714 ") << name;
    }
    run("create index ix on g (a)");
    run("create index [sqlite_autoindex_1] on g (a)");
    EXPECT_EQ(rows("select count(*) from [g.ix]"), "3");
    EXPECT_EQ(rows("select count(*) from g"), "2");
    run("drop table [sqlite_x], [g.ix], [_vabo_tables]");
    run("drop index g.ix");
    run("create table [sqlite_x] (a int null)");
}

TEST_F(StatementErrors, AKeyOverDoublesIsRefused) {
    run("insert into g (a, c) values (1, 2)");
    expect({
        {"alter table g add constraint uq unique (a)",
         "!1505 The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the object name "
         "'dbo.g' and the index name 'uq'."},
        {"create unique index ix on g (a)",
         "!1505 The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the object name "
         "'dbo.g' and the index name 'ix'."},
    });
    run("create index ix on g (a)");
    expect({
        {"alter table g add constraint ix unique (f)",
         "!1913 The operation failed because an index or statistics with name 'ix' already exists on table 'g'."},
        {"create table h (a int, b int, constraint u unique (a), constraint U unique (b))",
         "!2714 There is already an object named 'U' in the database."},
        {"create table h (a int, constraint g unique (a))",
         "!2714 There is already an object named 'g' in the database."},
        {"create table h (a int, constraint h unique (a))",
         "!2714 There is already an object named 'h' in the database."},
        {"create table h (a int unique, unique (a))", ""},
    });
}

TEST_F(StatementErrors, ANumberHasARange) {
    const std::string overflow = "!8115 Arithmetic overflow error converting expression to data type ";
    const std::string wide = overflow + "numeric.";
    const std::string noFloat = overflow + "float.";
    std::vector<Case> cases = {
        {"select len(" + digits(38) + ")", "38"},
        {"select 0000" + digits(9), digits(9)},
        {"select 1e400",
         "!168 The floating point value '1e400' is out of the range of computer representation (8 bytes)."},
        {"select -1e999",
         "!168 The floating point value '1e999' is out of the range of computer representation (8 bytes)."},
        {"select 1e308 * 10", noFloat},
        {"select 1e308 + 1e308", noFloat},
        {"select -1e308 - 1e308", noFloat},
        {"select 1e308 / 0.1e0", noFloat},
        {"select f * f from g where a = 1", noFloat},
        {"select sum(x) from (select 1e308 as x union all select 1e308) as u", noFloat},
        {"select avg(x) from (select 1e308 as x union all select 1e308) as u", noFloat},
        {"select cast(1e300 as real)", overflow + "real."},
        {"select cast('1e300' as real)", overflow + "real."},
        {"select cast(3e38 as real) * cast(10 as real)", overflow + "real."},
        {"update g set r = f", overflow + "real."},
        {"update g set f = f * f", noFloat},
        {"insert into g (f) values (1e308 * 1e308)", noFloat},
        {"select cast(1e300 as decimal(38,0))",
         "!8115 Arithmetic overflow error converting numeric to data type numeric."},
        {"select cast('" + digits(400) + "' as decimal(38,0))",
         "!8115 Arithmetic overflow error converting varchar to data type numeric."},
        {"insert into g (m) values ('" + digits(400) + "')",
         "!8115 Arithmetic overflow error converting varchar to data type numeric."},
        {"select cast('" + digits(400) + "' as float)", "!8114 Error converting data type varchar to float."},
        {"select cast(-4e9 as int)", "!232 Arithmetic overflow error for type int, value = -4000000000.000000."},
        {"select cast(1e300 as bigint)", overflow + "bigint."},
        {"select cast(1e300 as datetime)", overflow + "datetime."},
        {"select cast(1e300 as varchar(400))", "1e+300"},
        {"select ltrim(str(1e22, 40, 1))", "10000000000000000000000.0"},
        {"select len(str(1e308, 400, 16)), left(ltrim(str(1e308, 400, 16)), 3)", "400|100"},
        {"select round(1e300, 2)", "1e+300"},
        {"select round(f, 18) from g", "1e+300\n2.5"},
        {"select round(1.7e308, -1)", "1.7e+308"},
        {"select round(9223372036854775807, -1)", overflow + "bigint."},
        {"select round(cast(-9223372036854775808 as bigint), -18)", "-9000000000000000000"},
        {"select round(2147483647, -1)", overflow + "int."},
        {"select round(-15, -1), round(14, -1), round(15, -1)", "-20|10|20"},
        {"select abs(cast(-2147483648 as int))", overflow + "int."},
        {"select abs(cast(-9223372036854775808 as bigint))", overflow + "bigint."},
        {"select cast(-9223372036854775808 as bigint) / -1", overflow + "bigint."},
        {"select cast(-9223372036854775808 as bigint) / cast(-1 as bigint)", overflow + "bigint."},
        {"select cast(-9223372036854775808 as bigint) % -1", "0"},
        {"select cast(-2147483648 as int) / -1", overflow + "int."},
        {"select -cast(-9223372036854775808 as bigint)", overflow + "bigint."},
        {"select -cast(-2147483648 as int)", overflow + "int."},
        {"select -a from g", "-1\n-3"},
        {"select -cast(200 as tinyint)", "-200"},
        {"select cast(9223372036854775807 as bigint) + 1", overflow + "bigint."},
        {"select cast(9223372036854775807 as bigint) * 2", overflow + "bigint."},
        {"select 2147483647 + 1", overflow + "int."},
        {"select -getdate()", "!8117 Operand data type datetime is invalid for minus operator."},
        {"select -d from g", "!8117 Operand data type datetime is invalid for minus operator."},
        {"select floor(getdate())", "!8116 Argument data type datetime is invalid for argument 1 of floor function."},
        {"select ceiling(d) from g",
         "!8116 Argument data type datetime is invalid for argument 1 of ceiling function."},
        {"select abs(d) from g", "!8116 Argument data type datetime is invalid for argument 1 of abs function."},
        {"select round(d, 1) from g", "!8116 Argument data type datetime is invalid for argument 1 of round function."},
        {"select str(getdate())", "!8116 Argument data type datetime is invalid for argument 1 of str function."},
    };
    for (const std::size_t count : {39U, 310U, 400U, 100000U}) {
        cases.push_back({"select " + digits(count), wide});
        cases.push_back({"select -" + digits(count), wide});
        cases.push_back({"select 1." + digits(count), wide});
        cases.push_back({"print " + digits(count), wide});
        cases.push_back({"select case when 1 = 1 then " + digits(count) + " else 2 end", wide});
        cases.push_back({"select cast(" + digits(count) + " as float)", wide});
        cases.push_back({"select convert(decimal(38,0), " + digits(count) + ")", wide});
        cases.push_back({"insert into g (f) values (" + digits(count) + ")", wide});
        cases.push_back({"update g set m = " + digits(count), wide});
        cases.push_back({"select top " + digits(count) + " * from g", wide});
        cases.push_back({"select * from g order by " + digits(count), wide});
    }
    expect(cases);
}

/// The same text runs with other literals on a plan that is there already.
TEST_F(StatementErrors, AKnownStatementRefusesTheSameNumbers) {
    EXPECT_EQ(rows("select 2147483648"), "2147483648");
    EXPECT_EQ(rows("select " + digits(400)).substr(0, 6), "!8115 ");
    EXPECT_EQ(rows("select 2e0 * 3e0"), "6");
    EXPECT_EQ(rows("select 1e200 * 1e200").substr(0, 6), "!8115 ");
    EXPECT_EQ(rows("select 1e200 * 1e2"), "1e+202");
}

TEST_F(StatementErrors, WhatNobodyShouldWriteHasRowsOrAServersError) {
    std::vector<std::string> texts(std::begin(samples::kNasty), std::end(samples::kNasty));
    const auto repeated = [](const std::string& part, int times) {
        std::string all;
        while (times-- > 0) {
            all += part;
        }
        return all;
    };
    constexpr int kDeep = 3000;
    for (const char* part :
         {"(", "-(", "not (", "(select ", "case when 1 = 1 then ", "isnull(1, ", "cast(", "upper("}) {
        texts.push_back("select " + repeated(part, kDeep) + "1" + repeated(")", kDeep));
    }
    texts.push_back("select 1" + repeated(" + 1", kDeep));
    texts.push_back("select 1" + repeated(" union select 1", kDeep));
    texts.push_back("select 1 where 1 = 1" + repeated(" and 1 = 1", kDeep));
    texts.push_back("select 1 where " + repeated("not ", kDeep) + "1 = 1");
    texts.push_back("select 1" + repeated(", 1", kDeep));
    texts.push_back("select * from g" + repeated(", g", kDeep));
    texts.push_back(repeated("if 1 = 1 ", kDeep) + "select 1");
    texts.push_back(repeated("begin ", kDeep) + "select 1" + repeated(" end", kDeep));
    texts.push_back("create table wide (a int null" + repeated(", b int null", kDeep) + ")");
    texts.push_back("print '" + repeated("x", 100000) + "'");
    texts.push_back("select '" + repeated("x", 100000) + "' + '" + repeated("y", 100000) + "'");
    texts.push_back("select " + std::string(1, '\0') + "1");
    texts.push_back("select [a" + std::string(1, '\0') + "b] from g");
    texts.push_back("create table [a" + std::string(1, '\0') + "b] (a int)");
    texts.push_back("select 'a" + std::string(1, '\0') + "b', len('a" + std::string(1, '\0') + "b')");
    for (const std::string& text : texts) {
        for (int run = 0; run < 2; ++run) { // planned, then from the cache
            EXPECT_EQ(answer(text).find("!8630"), std::string::npos) << text.substr(0, 200);
        }
        while (rows("select @@trancount") != "0") {
            this->run("rollback");
        }
        ASSERT_EQ(rows("select 1"), "1") << "after " << text.substr(0, 200);
    }
    EXPECT_EQ(session->database(), "prova");
    EXPECT_EQ(rows("select count(*) from [t,u]"), "0") << "the tables were there for all of them";
}

std::string heard;

/// A table that the catalog knows and the storage has lost.
TEST_F(StatementErrors, AnInternalErrorIsToldAndIsTheStatementsOwn) {
    sqlite::Connection(instance->database("prova")->file, false).run("DROP TABLE g");
    const auto before = onInternalError([](const char* what) { heard = what; });
    const char* internal = "!8630 Internal Query Processor Error: The query processor encountered an unexpected error "
                           "during execution.";
    EXPECT_EQ(answer("select a from g"), internal);
    EXPECT_EQ(heard, "the storage refused a statement of ours: no such table: main.g");
    EXPECT_EQ(answer("select @@error"), "\n8630");
    EXPECT_EQ(answer("update g set a = 1 select 2"), std::string(internal) + "\n\n2");
    EXPECT_EQ(answer("begin transaction insert into g (a) values (1) rollback"), "-\n" + std::string(internal) + "\n-");
    EXPECT_THROW(session->hold("select a from g"), Error);
    EXPECT_EQ(rows("select 1"), "1");
    onInternalError(before);
}

TEST_F(StatementErrors, WhatTheMachineRefusesIsNoInternalError) {
    const auto answerOf = [](const auto& problem) {
        try {
            answered([&]() -> bool { throw problem; });
        } catch (const Error& error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(answerOf(std::bad_alloc()), 701);
    EXPECT_EQ(answerOf(std::filesystem::filesystem_error("x", std::error_code())), 823);
    EXPECT_EQ(answerOf(sqlite::Failure(SQLITE_IOERR, "disk I/O error")), 823);
    EXPECT_EQ(answerOf(sqlite::Failure(SQLITE_FULL, "database or disk is full")), 1105);
    EXPECT_EQ(answerOf(sqlite::Failure(SQLITE_BUSY, "database is locked")), 1222);
    EXPECT_EQ(answerOf(errors::invalidObject("x")), 208);
}

} // namespace
} // namespace engine

#include "engine/run/StatementKinds.h"

#include "engine/SessionFixture.h"
#include "engine/run/ServerSession.h"
#include "engine/text/Parser.h"
#include "engine/text/Shape.h"

#include <algorithm>
#include <set>

namespace engine {
namespace {

using Names = StatementKind::Names;
using RunBy = StatementKind::RunBy;

/// A statement of each kind, which runs in a database with a table `t (a int)`.
struct Kind {
    const char* name;
    const char* text;
    bool writes;
    Names names;
    RunBy runBy;
};

constexpr std::array kKinds = std::to_array<Kind>({
    {"Select", "SELECT a FROM t", false, Names::Checked, RunBy::Plan},
    {"Insert", "INSERT INTO t (a) VALUES (1)", true, Names::Checked, RunBy::Plan},
    {"Update", "UPDATE t SET a = 2", true, Names::Checked, RunBy::Plan},
    {"Delete", "DELETE FROM t", true, Names::Checked, RunBy::Plan},
    {"CreateTable", "CREATE TABLE u (b int)", true, Names::EndCheck, RunBy::Definition},
    {"AlterTable", "ALTER TABLE t ADD b int", true, Names::Unchecked, RunBy::Definition},
    {"CreateIndex", "CREATE INDEX i ON t (a)", true, Names::Unchecked, RunBy::Definition},
    {"Drop", "DROP TABLE spare", true, Names::EndCheck, RunBy::Definition},
    {"Truncate", "TRUNCATE TABLE t", true, Names::Unchecked, RunBy::Definition},
    {"CreateDatabase", "CREATE DATABASE other", false, Names::Unchecked, RunBy::Definition},
    {"AlterDatabase", "ALTER DATABASE prova SET AUTO_CLOSE ON", false, Names::Unchecked, RunBy::Definition},
    {"Use", "USE prova", false, Names::EndCheck, RunBy::Definition},
    {"SetOption", "SET DATEFORMAT dmy", false, Names::EndCheck, RunBy::Definition},
    {"Execute", "EXEC sp_configure", false, Names::EndCheck, RunBy::Procedure},
    {"Reconfigure", "RECONFIGURE", false, Names::Unchecked, RunBy::Definition},
    {"Transaction", "BEGIN TRANSACTION", false, Names::Unchecked, RunBy::Definition},
    {"If", "IF 1 = 1 SELECT a FROM t", false, Names::Unchecked, RunBy::Batch},
    {"Block", "BEGIN SELECT a FROM t END", false, Names::OfItsStatements, RunBy::Batch},
    {"Print", "PRINT 'x'", false, Names::Unchecked, RunBy::Message},
});

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

class StatementKinds : public SessionTest, public testing::WithParamInterface<Kind> {
protected:
    void SetUp() override { run("CREATE TABLE t (a int) CREATE TABLE spare (a int) INSERT INTO t VALUES (1)"); }

    Database& database() { return static_cast<ServerSession&>(*session).current(); }
};

TEST(StatementKindsTable, HasEveryKindOnceHere) {
    std::set<std::size_t> kinds;
    for (const Kind& kind : kKinds) {
        kinds.insert(parse(kind.text).statements.front()->node.index());
    }
    EXPECT_EQ(kinds.size(), std::variant_size_v<decltype(Statement::node)>);
}

TEST_P(StatementKinds, IsDescribedAsHere) {
    const StatementKind kind = kindOf(*parse(GetParam().text).statements.front());
    EXPECT_EQ(kind.writes, GetParam().writes);
    EXPECT_EQ(kind.names, GetParam().names);
    EXPECT_EQ(kind.runBy, GetParam().runBy);
}

TEST_P(StatementKinds, JoinsTheOpenTransactionWhereItWrites) {
    run("BEGIN TRANSACTION");
    run(GetParam().text);
    EXPECT_EQ(database().connection().inTransaction(), GetParam().writes);
}

TEST_P(StatementKinds, IsRunBeforeTheNamesBehindItAreKnownWhereItEndsTheCheck) {
    const std::string all = answer(std::string(GetParam().text) + "; SELECT nothing FROM t");
    const std::string error = "!207 Invalid column name 'nothing'.";
    EXPECT_EQ(all == error, GetParam().names != Names::EndCheck) << all;
    EXPECT_TRUE(all.ends_with(error)) << all;
}

TEST_P(StatementKinds, KeepsItsPlanWhereItRunsByOne) {
    run(GetParam().text);
    EXPECT_EQ(database().cache().find(shapeOf(GetParam().text)) != nullptr, GetParam().runBy == RunBy::Plan);
}

INSTANTIATE_TEST_SUITE_P(All, StatementKinds, testing::ValuesIn(kKinds),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(StatementKinds, LooksUpTheNamesInsideOfABlock) {
    EXPECT_EQ(answer("PRINT 'x'; BEGIN SELECT nothing FROM t END"), "!207 Invalid column name 'nothing'.");
    EXPECT_EQ(answer("BEGIN USE prova END; SELECT nothing FROM t"), "-\n!207 Invalid column name 'nothing'.");
}

} // namespace
} // namespace engine

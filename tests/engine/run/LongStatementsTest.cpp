#include "engine/SessionFixture.h"
#include "engine/run/Planner.h"
#include "engine/text/Parser.h"

#include <sqlite3.h>

namespace engine {
namespace {

constexpr int kElements = 64'000;

class LongStatements : public SessionTest {
protected:
    LongStatements() {
        run("create table t (id int not null primary key, v varchar(20) null, d decimal(9,2) null)");
        run("insert into t values (1, 'x1', 1.5), (63999, 'x63999', null), (70000, 'x70000', 3)");
    }

    /// The text that the storage was given for a statement.
    std::string stored(const std::string& text) {
        auto& server = dynamic_cast<ServerSession&>(*session);
        const BatchTree tree = parse(text);
        return sqlite3_sql(makePlan(server, *tree.statements.front())->statement.handle());
    }
};

/// `one(0)between one(1)…`.
template<class One>
std::string joined(int count, const char* between, One one) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += (i == 0 ? "" : between) + one(i);
    }
    return all;
}

std::string number(int i) {
    return std::to_string(i);
}

std::string text(int i) {
    return "'x" + std::to_string(i) + "'";
}

TEST_F(LongStatements, AnInListHoldsEveryElement) {
    const auto among = [&](const std::string& operand, auto one, int count = kElements) {
        return rows("select id from t where " + operand + " in (" + joined(count, ",", one) + ") order by id");
    };
    EXPECT_EQ(among("id", number), "1\n63999");
    EXPECT_EQ(among("v", text), "1\n63999");
    EXPECT_EQ(among("d", [](int i) { return std::to_string(i) + ".5"; }), "1");
    EXPECT_EQ(among("70000", [](int i) { return "id + " + std::to_string(i); }), "63999\n70000");
    EXPECT_EQ(among("not id", number, 2), "63999\n70000");
}

TEST_F(LongStatements, ACaseTakesTheBranchThatFits) {
    const auto chosen = [&](const std::string& operand, auto branch) {
        return rows("select case " + operand + joined(kElements, "", branch) + " end from t order by id");
    };
    EXPECT_EQ(chosen("id", [](int i) { return " when " + number(i) + " then " + text(i); }), "x1\nx63999\nNULL");
    EXPECT_EQ(chosen("", [](int i) { return " when v = " + text(i) + " then -" + number(i); }), "-1\n-63999\nNULL");
}

TEST_F(LongStatements, AnInsertWritesEveryRowInItsOrder) {
    constexpr int kColumns = 64;
    run("create table w (n int not null identity(1,1) primary key, " +
        joined(kColumns, ", ", [](int i) { return "c" + number(i) + " int null"; }) + ")");
    const auto insert = [&](const std::string& before) {
        return answer(
            "insert into w values " + joined(kElements / kColumns, ",", [&](int row) {
                return "(" + joined(kColumns, ",", [&](int i) { return before + number(row * kColumns + i); }) + ")";
            }));
    };
    EXPECT_EQ(insert(""), "(1000)");
    EXPECT_EQ(insert("1 + "), "(1000)");
    EXPECT_EQ(rows("select n, c0, c63 from w where n in (1, 1000, 1001, 2000)"),
              "1|0|63\n1000|63936|63999\n1001|1|64\n2000|63937|64000");
}

TEST_F(LongStatements, WhatTheStorageCannotHoldIsRefusedAndTheSessionLives) {
    const std::string everyone = "select id from t where id in (" + joined(300'000, ",", number) + ")";
    EXPECT_EQ(answer(everyone).substr(0, 5), "!191 ");
    EXPECT_EQ(answer(joined(501, " union all ", [](int i) { return "select " + number(i); })).substr(0, 5), "!191 ");
    EXPECT_EQ(rows("select id from t where id = 1"), "1");
}

TEST_F(LongStatements, TheStorageGetsItsParametersUnnumberedAndFewConstants) {
    EXPECT_EQ(stored("select 'a' from t where id in (1, 2)"),
              "SELECT ? AS c0 FROM \"main\".\"t\" AS t0 WHERE (t0.\"id\" IN (?, ?))");
    const std::string choice =
        stored("select case" + joined(100, "", [](int i) { return " when id = " + number(i) + " then 'a'"; }) +
               " end, 1 from t");
    EXPECT_EQ(choice.substr(0, 70), "SELECT CASE WHEN (t0.\"id\" = tsql_literal(?)) THEN tsql_literal(?) WHEN");
    EXPECT_TRUE(choice.ends_with(" END AS c0, ? AS c1 FROM \"main\".\"t\" AS t0")) << choice;
}

} // namespace
} // namespace engine

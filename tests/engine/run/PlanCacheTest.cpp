#include "engine/SessionFixture.h"
#include "engine/run/ServerSession.h"

namespace engine {
namespace {

/// Everything that a client can tell of the answers to a batch: types and scales beside the rows, and what was refused.
std::string told(Session& session, std::string_view text) {
    std::string all;
    try {
        const std::unique_ptr<Batch> batch = session.execute(text);
        while (batch->nextResult()) {
            if (batch->hasRows()) {
                for (const ResultColumn& column : batch->columns()) {
                    all += column.name + ' ' + toText(column.type) + (column.nullable ? " null" : "") +
                           (column.key ? " key " : " ") + column.baseColumn + "; ";
                }
            }
            all += shown(*batch) + "\n";
        }
    } catch (const Error& error) {
        all += "!" + std::to_string(error.number()) + " " + error.what();
    }
    return all;
}

class PlanCache : public SessionTest {
protected:
    PlanCache() {
        run("create table t (id int not null primary key, i int null, b bigint null, d decimal(9,3) null,"
            " m money null, f float null, v varchar(20) null, n nvarchar(20) null, w datetime null)");
        run("insert into t values (1, 10, 4000000000, 1.125, 2.5, 0.1, '12', N'Roma', '20040307'),"
            " (2, null, -7, 22.5, null, 1e3, 'roma ', N'1.5', null), (3, 3, null, null, 0.0001, null, null, null,"
            " '19991231')");
    }

    /// The answer and the table after it; all is rolled back.
    std::string effect(Session& on, const std::string& text) {
        told(on, "begin transaction");
        std::string result = told(on, text);
        result += told(on, "select * from t order by id");
        told(on, "rollback");
        return result;
    }

    std::string cached(const std::string& first, const std::string& second) {
        effect(*session, first);
        return effect(*session, second);
    }
    std::string fresh(const std::string& text) { return effect(*connect(), text); }

    /// Whether the plan of a statement that ran before is there for this one.
    bool findsPlan(const std::string& text) {
        return dynamic_cast<ServerSession&>(*session).current().cache().find(shapeOf(text)) != nullptr;
    }
};

struct Spellings {
    const char* first;
    const char* second;
};

TEST_F(PlanCache, ALiteralHasItsOwnTypeWhateverStoodThereBefore) {
    constexpr Spellings kCases[] = {
        {"update t set d = case when id = 1 then 1.5 else i end",
         "update t set d = case when id = 1 then 2.345 else i end"},
        {"update t set d = coalesce(null, 1.5, i)", "update t set d = coalesce(null, 2.345, i)"},
        {"select 1.5 union select 2", "select 2.345 union select 2"},
        {"select 1.5 union all select i from t", "select 2.345 union all select i from t"},
        {"insert into t (id, d) select 7, 1.5 union all select 8, 2.25",
         "insert into t (id, d) select 7, 2.345 union all select 8, 2.25"},
        {"select sum(case when id > 1 then 1.5 else 0 end) from t",
         "select sum(case when id > 1 then 2.345 else 0 end) from t"},
        {"select x.a + 1 from (select coalesce(d, 1.5) as a from t) as x",
         "select x.a + 1 from (select coalesce(d, 1.23456) as a from t) as x"},
        {"select d * 2 from t", "select d * 200 from t"},
        {"select isnull(null, 1.5)", "select isnull(null, 2.345)"},
        {"select case when 2 * d between 1 and 2 then 1 end from t",
         "select case when 200 * d between 1 and 2 then 1 end from t"},
        {"select i + 3000000000 from t", "select i + 1.5 from t"},
        {"select id from t where v in (3000000000)", "select id from t where v in (12.0)"},
        {"insert into t (id, b) values (9, 3000000000)", "insert into t (id, b) values (9, 12.5)"},
        {"insert into t (id, v) values (9, 1.5)", "insert into t (id, v) values (9, 2.345)"},
        {"select cast(1.5 as varchar(9))", "select cast(2.345 as varchar(9))"},
        {"select convert(decimal(9,2), '1') ", "select convert(decimal(9,3), '1') "},
        {"select convert(varchar(9), w, 103) from t", "select convert(varchar(9), w, 112) from t"},
        {"select top 1 id from t order by 1", "select top 2 id from t order by 1"},
        {"select id, i from t order by 1", "select id, i from t order by 2"},
        {"select nullif(1.5, d) from t", "select nullif(2.345, d) from t"},
        {"select -1.5 + i from t", "select -2.345 + i from t"},
    };
    for (const Spellings& one : kCases) {
        EXPECT_EQ(cached(one.first, one.second), fresh(one.second)) << one.second;
        EXPECT_EQ(cached(one.second, one.first), fresh(one.first)) << one.first;
    }
}

TEST_F(PlanCache, ATextThatOnlyAMaxTypeHoldsHasAPlanOfItsOwn) {
    const std::string longText = "select len(N'" + std::string(4001, 'a') + "' + N'" + std::string(4000, 'b') + "')";
    const std::string shortText = "select len(N'a' + N'b')";
    EXPECT_EQ(cached(shortText, longText), fresh(longText));
    EXPECT_EQ(cached(longText, shortText), fresh(shortText));
    EXPECT_NE(fresh(longText).find("8001"), std::string::npos) << fresh(longText);
}

TEST_F(PlanCache, ALiteralOfOtherDigitsTakesTheSamePlanWhereItsTypeGoesNowhere) {
    constexpr Spellings kCases[] = {
        {"update t set d = 1.5, m = 2 where id = 1", "update t set d = 22.345, m = 3000 where id = 20"},
        {"update t set v = 1.5 where d = 0.5", "update t set v = 2.345 where d = 12.125"},
        {"update t set d = d * 2", "update t set d = d * 7"},
        {"insert into t (id, d, v) values (7, 1.5, 'a')", "insert into t (id, d, v) values (88, 123456.789, 'bcd')"},
        {"delete from t where m between 1.5 and 2.25", "delete from t where m between 10.125 and 200.5"},
        {"select id from t where d in (1.5, 2.25) and v = 'a'", "select id from t where d in (10.5, 2.0) and v = ''"},
        {"select cast(1.5 as int), cast(1.5 as varchar(9))", "select cast(2.345 as int), cast(0.5 as varchar(9))"},
        {"select id + 1 from t where id = 1", "select id + 1000 from t where id = 2147483647"},
    };
    for (const Spellings& one : kCases) {
        run(one.first);
        EXPECT_TRUE(findsPlan(one.second)) << one.second;
    }
}

TEST_F(PlanCache, TwoHundredUpdatesOfOneShapeShareOnePlan) {
    run("update t set d = 0.5, i = 0, v = '' where id = 0");
    for (int i = 1; i <= 200; ++i) {
        const std::string number = std::to_string(i);
        const std::string update = "update t set d = " + number + "." + number + ", i = " + number + ", v = 'x" +
                                   number + "' where id = " + number;
        ASSERT_TRUE(findsPlan(update)) << update;
        run(update);
    }
}

} // namespace
} // namespace engine

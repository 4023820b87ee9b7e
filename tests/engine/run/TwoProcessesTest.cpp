#include "engine/SessionFixture.h"
#include "support/Processes.h"

namespace engine {
namespace {

class TwoProcesses : public SessionTest {
protected:
    TwoProcesses() {
        run("create table t (id int identity(1,1) not null primary key, a int null)");
        run("insert into t (a) values (1), (2)");
    }

    support::HelperProcess helper() {
        return support::HelperProcess("engine_session_helper", {instance->folder().string(), "prova"});
    }

    static std::string ask(support::HelperProcess& process, const std::string& line) {
        process.writeLine(line);
        return process.readLine().value_or("ended");
    }
};

TEST_F(TwoProcesses, AHoldIsRefusedToTheOtherAndDiesWithItsProcess) {
    auto other = helper();
    ASSERT_EQ(ask(other, "hold select * from t where id = 1"), "0");
    EXPECT_EQ(answer("update t set a = 9 where id = 1").substr(0, 6), "!1222 ");
    EXPECT_EQ(answer("update t set a = 9 where id = 2"), "(1)");
    EXPECT_EQ(ask(other, "update t set a = 5 where id = 1"), "0");
    other.kill();
    EXPECT_EQ(answer("update t set a = a + 1 where id = 1"), "(1)");
    EXPECT_EQ(rows("select a from t order by id"), "6\n9");
}

TEST_F(TwoProcesses, IdentitiesAreGivenOnce) {
    auto other = helper();
    for (int i = 0; i < 20; ++i) {
        ASSERT_EQ(ask(other, "insert into t (a) values (3)"), "0");
        ASSERT_EQ(answer("insert into t (a) values (4)"), "(1)");
    }
    EXPECT_EQ(rows("select count(*), max(id) from t"), "42|42");
}

TEST_F(TwoProcesses, ATableMadeByTheOtherIsSeen) {
    auto other = helper();
    ASSERT_EQ(ask(other, "create table u (a int null)"), "0");
    EXPECT_EQ(answer("insert into u values (1)"), "(1)");
    ASSERT_EQ(ask(other, "alter table u add b int null"), "0");
    EXPECT_EQ(rows("select * from u"), "1|NULL");
    ASSERT_EQ(ask(other, "select manca from u"), "207");
}

} // namespace
} // namespace engine

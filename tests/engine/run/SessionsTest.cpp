#include "engine/SessionFixture.h"
#include "engine/store/Idler.h"

namespace engine {
namespace {

constexpr const char* kTimeout = "!1222 Lock request time out period exceeded.";

class Sessions : public SessionTest {
protected:
    Sessions() {
        run("create table t (id int identity(1,1) not null primary key, a int null)");
        run("insert into t (a) values (1), (2), (3)");
        other = connect();
    }
    std::string others(std::string_view text) { return engine::answer(*other, text); }

    std::unique_ptr<Session> other;
};

TEST_F(Sessions, AHeldRowIsRefusedToOthersAtOnce) {
    auto hold = session->hold("select * from t where id = 2");
    EXPECT_EQ(hold->rows(), 1);
    EXPECT_EQ(others("update t set a = 9 where id = 2"), kTimeout);
    EXPECT_EQ(others("delete from t where id = 2"), kTimeout);
    EXPECT_EQ(others("update t set a = 9"), kTimeout);
    EXPECT_EQ(others("truncate table t"), kTimeout);
    EXPECT_EQ(others("drop table t"), kTimeout);
    EXPECT_EQ(rows("select a from t order by id"), "1\n2\n3");
    EXPECT_EQ(others("update t set a = 9 where id = 1"), "(1)");
    EXPECT_EQ(others("insert into t (a) values (4)"), "(1)");
    EXPECT_EQ(answer("update t set a = 8 where id = 2"), "(1)");
    EXPECT_EQ(engine::rowsOf(*other, "select a from t where id = 2"), "8");
    hold.reset();
    EXPECT_EQ(others("update t set a = 7 where id = 2"), "(1)");
}

TEST_F(Sessions, ARowHasOneHolder) {
    auto hold = session->hold("select * from t where id = 2");
    EXPECT_THROW(other->hold("select id from t where a > 1"), Error);
    // What the refused hold had taken already is free again.
    EXPECT_EQ(answer("update t set a = 5 where id = 3"), "(1)");
    auto second = session->hold("select * from t where id = 2");
    hold.reset();
    EXPECT_EQ(others("update t set a = 9 where id = 2"), kTimeout);
}

TEST_F(Sessions, AnUpdateLockHoldsRowsUntilTheTransactionEnds) {
    for (const char* end : {"commit", "rollback"}) {
        run("begin transaction");
        EXPECT_EQ(rows("select a from t with (updlock, rowlock) where id = 2"), "2");
        EXPECT_EQ(others("update t set a = 9 where id = 2"), kTimeout);
        EXPECT_EQ(others("begin transaction"), "-");
        EXPECT_EQ(others("select a from t with (UpdLock) where id = 2"), kTimeout);
        EXPECT_EQ(others("commit"), "-");
        EXPECT_EQ(others("update t set a = 1 where id = 1"), "(1)");
        EXPECT_EQ(engine::rowsOf(*other, "select a from t where id = 2"), "2");
        run(end);
        EXPECT_EQ(others("update t set a = 2 where id = 2"), "(1)");
    }
}

TEST_F(Sessions, AnUpdateLockOutsideATransactionHoldsNothing) {
    EXPECT_EQ(rows("select a from t with (updlock) where id = 2"), "2");
    EXPECT_EQ(others("update t set a = 9 where id = 2"), "(1)");
    run("begin transaction");
    EXPECT_EQ(rows("select a from t with (updlock) where id = 2"), "9") << "the same text holds now";
    EXPECT_EQ(others("update t set a = 8 where id = 2"), kTimeout);
}

TEST_F(Sessions, AHoldEndsWithItsSession) {
    run("begin transaction");
    EXPECT_EQ(rows("select a from t with (updlock) where id = 2"), "2");
    session.reset();
    EXPECT_EQ(others("update t set a = 9 where id = 2"), "(1)");
}

TEST_F(Sessions, ATransactionReadsWhatOthersCommittedUntilItWrites) {
    run("begin transaction");
    EXPECT_EQ(rows("select a from t where id = 2"), "2");
    EXPECT_EQ(others("update t set a = 9 where id = 2"), "(1)");
    EXPECT_EQ(rows("select a from t where id = 2"), "9");
    EXPECT_EQ(answer("update t set a = a + 1 where id = 2"), "(1)");
    run("commit");
    EXPECT_EQ(engine::rowsOf(*other, "select a from t where id = 2"), "10");
}

TEST_F(Sessions, ARefusedFirstWriteOfATransactionKeepsNobodyWaiting) {
    const auto hold = other->hold("select * from t where id = 2");
    run("begin transaction");
    EXPECT_EQ(answer("update t set a = 9 where id = 2"), kTimeout);
    EXPECT_EQ(others("update t set a = 9 where id = 1"), "(1)");
    EXPECT_EQ(rows("select @@trancount"), "1");
    EXPECT_EQ(answer("update t set a = 7 where id = 3"), "(1)");
    run("rollback");
    EXPECT_EQ(rows("select a from t order by id"), "9\n2\n3");
}

TEST_F(Sessions, OnlyRowsOfOneTableCanBeHeld) {
    for (const char* text : {"select count(*) from t", "select distinct a from t", "select t.a from t, t as u",
                             "update t set a = 1", "select 1"}) {
        try {
            session->hold(text);
            FAIL() << text;
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), 16929) << text;
        }
    }
    EXPECT_EQ(session->hold("select top 2 a from t order by a desc")->rows(), 2);
}

TEST_F(Sessions, AnotherBatchEndsTheWalkOfTheFirst) {
    auto first = session->execute("select id from t order by id");
    ASSERT_TRUE(first->nextResult());
    ASSERT_TRUE(first->nextRow());
    EXPECT_EQ(rows("select count(*) from t"), "3");
    EXPECT_FALSE(first->nextRow());
    EXPECT_FALSE(first->nextResult());
}

TEST_F(Sessions, AnOpenTransactionIsNotSeenByOthers) {
    run("begin tran update t set a = 100 where id = 1");
    EXPECT_EQ(engine::rowsOf(*other, "select a from t where id = 1"), "1");
    run("commit");
    EXPECT_EQ(engine::rowsOf(*other, "select a from t where id = 1"), "100");
}

TEST_F(Sessions, LoginsAndDatabasesAreAskedFor) {
    instance->addLogin("sa", "segreto");
    const auto numberOf = [&](const Login& login) {
        try {
            Session::open(instance, login);
        } catch (const Error& error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(numberOf({"sa", "segreto", "PROVA"}), 0);
    EXPECT_EQ(numberOf({"sa", "Segreto", "prova"}), 18456);
    EXPECT_EQ(numberOf({"nessuno", "", ""}), 18456);
    EXPECT_EQ(numberOf({"", "", "manca"}), 4060);
    EXPECT_EQ(connect("")->database(), "master");
}

TEST_F(Sessions, NoSessionWaitsForItself) {
    run("use master create table m (a int null)");
    EXPECT_EQ(rows("select a from prova.dbo.t order by a"), "1\n2\n3");
    run("begin transaction");
    EXPECT_EQ(answer("insert into m (a) values (1)"), "(1)");
    run("use prova");
    EXPECT_EQ(answer("update t set a = 9 where id = 1"), "(1)");
    run("use master");
    EXPECT_EQ(answer("insert into m (a) values (2)"), "(1)");
    EXPECT_EQ(answer("insert into m (a) select id from prova.dbo.t"), "(3)");
    run("use prova");
    EXPECT_EQ(rows("select count(*) from master.dbo.m"), "0") << "another connection's view, without a wait";
    run("create table n (a int null)");
    run("commit");
    EXPECT_EQ(rows("select count(*) from master.dbo.m"), "5");
    EXPECT_EQ(rows("select a from t where id = 1"), "9");
    EXPECT_EQ(others("update t set a = 1 where id = 1"), "(1)");
}

TEST_F(Sessions, ReadingAnotherDatabaseKeepsNobodyFromWritingIt) {
    run("use master create table m (a int null)");
    EXPECT_EQ(rows("select a from prova.dbo.t where id = 1"), "1");
    run("begin transaction insert into m (a) values (1)");
    EXPECT_EQ(others("update t set a = 9 where id = 1"), "(1)");
    run("create table k (a int null)");
    EXPECT_EQ(others("update t set a = 8 where id = 1"), "(1)");
    run("commit");
}

TEST_F(Sessions, OtherDatabasesCanBeRead) {
    run("create database altra");
    run("use altra create table u (a int null) insert into u values (5)");
    run("use prova");
    EXPECT_EQ(rows("select t.id, u.a from altra.dbo.u as u, t where t.id = 1"), "1|5");
    EXPECT_EQ(answer("select * from altra.dbo.manca"), "!208 Invalid object name 'altra.dbo.manca'.");
    EXPECT_EQ(answer("select * from manca.dbo.u"), "!208 Invalid object name 'manca.dbo.u'.");
}

TEST_F(Sessions, AStatementThatItsIdlerGivesUpFailsAndNothingOfItStays) {
    run("CREATE TABLE molte (n int)");
    run("INSERT INTO molte VALUES (1), (2), (3), (4), (5), (6), (7), (8), (9), (10)");
    const auto givenUp = [&](const char* text) {
        setIdler([]() noexcept { giveUp(); });
        const std::string said = answer(text);
        setIdler(nullptr);
        return said.substr(0, 5);
    };
    EXPECT_EQ(givenUp("SELECT COUNT(*) FROM molte a, molte b, molte c, molte d, molte e, molte f"), "!3980");
    EXPECT_EQ(givenUp("INSERT INTO molte SELECT a.n FROM molte a, molte b, molte c, molte d, molte e"), "!3980");
    EXPECT_EQ(rows("SELECT COUNT(*) FROM molte"), "10");
    run("BEGIN TRAN; DELETE FROM molte WHERE n = 1");
    EXPECT_EQ(givenUp("INSERT INTO molte SELECT a.n FROM molte a, molte b, molte c, molte d, molte e"), "!3980");
    EXPECT_EQ(rows("SELECT COUNT(*) FROM molte"), "9") << "the transaction goes on";
    run("ROLLBACK");
    EXPECT_EQ(rows("SELECT COUNT(*) FROM molte"), "10");
}

} // namespace
} // namespace engine

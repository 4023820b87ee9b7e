// How a client hears the ends of statements, procedures and transactions.

#include "peer/ConversationFixture.h"

namespace peer {
namespace {

using wire::batch;
using wire::packet;

TEST_F(Conversation, TheEndOfEachStatementNamesItsCommandAndItsRows) {
    EXPECT_EQ(answer("create table t (n int)"), Lines{"done 0 C6 0"});
    EXPECT_EQ(answer("insert into t values (1), (2), (3)"), Lines{"done 10 C3 3"});
    EXPECT_EQ(answer("update t set n = n + 1 where n < 3"), Lines{"done 10 C5 2"});
    EXPECT_EQ(answer("delete from t where n = 2"), Lines{"done 10 C4 1"});
    EXPECT_EQ(answer("select n from t"), (Lines{"columns n int 4", "row 3", "row 3", "done 10 C1 2"}));
    EXPECT_EQ(answer("delete from t where n = 9"), Lines{"done 10 C4 0"});
    EXPECT_EQ(answer("set nocount on"), Lines{"done 0 F9 0"});
    EXPECT_EQ(answer("print 'detto'"), (Lines{"info 0 detto", "done 0 0 0"}));
    EXPECT_EQ(answer("begin tran"), Lines{"done 0 D4 0"});
    EXPECT_EQ(answer("begin tran rollback tran"), (Lines{"done 1 D4 0", "done 0 D2 0"}));
    EXPECT_EQ(answer("begin tran commit tran"), (Lines{"done 1 D4 0", "done 0 D5 0"}));
}

TEST_F(Conversation, AnotherDatabaseIsTold) {
    EXPECT_EQ(answer("use master"), (Lines{"change 1 master", "done 0 0 0"}));
    EXPECT_EQ(answer("use prova"), Lines{"done 0 0 0"}) << "it is the same";
}

TEST_F(Conversation, AStatementWhosePlanIsKeptEndsLikeTheFirstOfItsShape) {
    answer("create table t (n int)");
    const auto all =
        answers({batch("insert into t values (1)"), batch("insert into t values (2)"), batch("update t set n = 3"),
                 batch("update t set n = 4"), batch("delete from t where n = 4"), batch("delete from t where n = 5"),
                 batch("select n from t"), batch("select n from t")});
    EXPECT_EQ(all.at(1), Lines{"done 10 C3 1"});
    EXPECT_EQ(all.at(3), Lines{"done 10 C5 2"});
    EXPECT_EQ(all.at(5), Lines{"done 10 C4 0"});
    EXPECT_EQ(all.at(7), (Lines{"columns n int 4", "done 10 C1 0"}));
}

TEST_F(Conversation, AllEndsButTheLastSayThatMoreFollows) {
    EXPECT_EQ(answer("select 1 as n; select 2 as m; print 'x'"),
              (Lines{"columns n int 4", "row 1", "done 11 C1 1", "columns m int 4", "row 2", "done 11 C1 1", "info 0 x",
                     "done 0 0 0"}));
}

TEST_F(Conversation, AFailedStatementEndsWithTheErrorsMark) {
    answer("create table t (n int not null primary key)");
    EXPECT_EQ(answer("insert into t values (1) insert into t values (1) select n from t"),
              (Lines{"done 11 C3 1", "error 2627", "done 3 C3 0", "columns n int 4", "row 1", "done 10 C1 1"}));
    EXPECT_EQ(answer("select * from manca"), (Lines{"error 208", "done 2 C1 0"}));
    EXPECT_EQ(answer("selec"), (Lines{"error 2812", "done 2 E0 0"}));
    EXPECT_EQ(answer("select ("), (Lines{"error 102", "done 2 0 0"}));
}

TEST_F(Conversation, AProcedureInABatchEndsWithItsStatusAndAnEndOfItsOwn) {
    Lines all = answer("exec sp_configure 'show advanced options'");
    ASSERT_GE(all.size(), 4U);
    EXPECT_TRUE(all[0].starts_with("columns name "));
    EXPECT_EQ(Lines(all.end() - 3, all.end()), (Lines{"doneinproc 11 C1 1", "status 0", "doneproc 0 E0 0"}));
    EXPECT_EQ(answer("exec sp_manca"), (Lines{"error 2812", "done 2 E0 0"}));
}

TEST_F(Conversation, CountsOfSevenTwoAreWider) {
    const auto all = answersTo(kVersion72, {packet(1, 1, ByteWriter().u32(4).ucs2("select 1 as n").bytes)});
    EXPECT_EQ(all.at(0), (Lines{"columns n int 4", "row 1", "done 10 C1 1"}));
}

Bytes transaction(std::uint16_t request, const Bytes& rest) {
    return packet(14, 1, ByteWriter().u16(request).raw(rest).bytes);
}

TEST_F(Conversation, ATransactionBeginsAndEndsByRequestsOfTheProtocol) {
    answer("create table t (n int)");
    const auto all = answers({transaction(5, {0, 0}), batch("insert into t values (1)"), transaction(8, {0, 0}),
                              batch("select count(*) as c from t"), transaction(5, {4, 0}),
                              batch("insert into t values (2)"), transaction(7, {0, 1, 0, 0}),
                              batch("select @@trancount as c"), transaction(8, {0, 0}), transaction(8, {0, 0})});
    EXPECT_EQ(all.at(0), (Lines{"change 8", "done 0 D4 0"}));
    EXPECT_EQ(all.at(2), (Lines{"change 10", "done 0 D2 0"}));
    EXPECT_EQ(all.at(3).at(1), "row 0");
    EXPECT_EQ(all.at(4), (Lines{"change 8", "done 0 D4 0"}));
    EXPECT_EQ(all.at(6), (Lines{"change 9", "done 1 D5 0", "change 8", "done 0 D4 0"})) << "and begins another";
    EXPECT_EQ(all.at(7).at(1), "row 1");
    EXPECT_EQ(all.at(9), (Lines{"error 3903", "done 2 D2 0"}));
    EXPECT_EQ(answer("select n from t").at(1), "row 2");
}

TEST_F(Conversation, ATransactionHasTheNameAndTheIsolationOfItsRequest) {
    const Bytes name = ByteWriter().u8(6).ucs2("uno").bytes;
    const auto named = [&](Bytes before) {
        before.insert(before.end(), name.begin(), name.end());
        return before;
    };
    const auto all = answers(
        {transaction(5, named({0})), batch("rollback tran altro"), transaction(8, named({})), transaction(5, {9, 0})});
    EXPECT_EQ(all.at(1).at(0), "error 6401");
    EXPECT_EQ(all.at(2), (Lines{"change 10", "done 0 D2 0"}));
    EXPECT_TRUE(all.at(3).at(0).starts_with("error ")) << "an isolation that isn't offered";
}

TEST_F(Conversation, ARequestThatIsNotKnownIsRefusedAndTheConnectionLives) {
    const Bytes unknownProcedure = ByteWriter().u16(0xFFFF).u16(99).u16(0).bytes;
    for (const Bytes& request :
         {packet(7, 1, {1, 2, 3}), packet(99, 1, {}), packet(8, 1, {0}), packet(17, 1, {0}), transaction(0, {}),
          transaction(1, {0, 0}), packet(14, 1, {}), packet(3, 1, {5}), packet(3, 1, unknownProcedure)}) {
        const auto all = answers({request, batch("select 1 as n")});
        ASSERT_EQ(all.size(), 2U) << int{request[0]};
        EXPECT_TRUE(all[0].at(0) == "error 4002" || all[0].at(0) == "error 2812") << all[0].at(0);
        EXPECT_EQ(all[0].back().substr(0, 6), "done 2");
        EXPECT_EQ(all[1], (Lines{"columns n int 4", "row 1", "done 10 C1 1"}));
    }
}

TEST_F(Conversation, ARequestThatItsSenderTookBackIsNotRun) {
    const auto all =
        answers({packet(1, 3, ByteWriter().ucs2("create table t (n int)").bytes), batch("select * from t")});
    EXPECT_EQ(all.at(0), Lines{"done 2 0 0"});
    EXPECT_EQ(all.at(1).at(0), "error 208");
}

Bytes resetting(std::uint8_t status, const std::string& text) {
    return packet(1, status, ByteWriter().ucs2(text).bytes);
}

TEST_F(Conversation, AConnectionIsResetBeforeTheRequestThatAsksForIt) {
    answer("create table t (n int)");
    const auto all = answers({batch("set rowcount 1; use master; begin tran"), batch("insert into prova..t values (1)"),
                              resetting(9, "select @@trancount as c, db_name() as d"), batch("select n from t"),
                              batch("insert into t values (2), (3)"), batch("select n from t")});
    EXPECT_EQ(all.at(2),
              (Lines{"change 1 prova", "change 18", "columns c int 4, d nvarchar 256", "row 0|prova", "done 10 C1 1"}));
    EXPECT_EQ(all.at(3), (Lines{"columns n int 4", "done 10 C1 0"})) << "the transaction was taken back";
    EXPECT_EQ(all.at(5).size(), 4U) << "ROWCOUNT is as at the login";
}

TEST_F(Conversation, AResetThatKeepsTheTransactionIsRefusedWhereOneIsOpen) {
    const auto all = answers({resetting(0x11, "select 1 as n"), batch("begin tran"), resetting(0x11, "select 2 as n"),
                              batch("select @@trancount as n")});
    EXPECT_EQ(all.at(0), (Lines{"change 18", "columns n int 4", "row 1", "done 10 C1 1"}));
    EXPECT_EQ(all.at(2), (Lines{"error 4002", "done 2 0 0"}));
    EXPECT_EQ(all.at(3).at(1), "row 1");
}

} // namespace
} // namespace peer

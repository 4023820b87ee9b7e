// How a client that asks to stop is answered.

#include "peer/ConversationFixture.h"

namespace peer {
namespace {

using wire::batch;
using wire::packet;

const Bytes kAttention = packet(6, 1, {});
const Lines kAcknowledged{"done 20 0 0"};
constexpr int kOften = 3;

class Attention : public Conversation {
protected:
    Attention() {
        answer("create table molte (n int)");
        answer("insert into molte values (1), (2), (3), (4), (5), (6), (7), (8), (9), (10)");
        for (int i = 0; i < 2; ++i) {
            answer("insert into molte select a.n from molte a, molte b");
        }
    }
    std::string count() const { return answer("select count(*) as c from molte").at(1); }
};

TEST_F(Attention, IsAcknowledgedByAMessageOfItsOwn) {
    EXPECT_EQ(answers({kAttention, batch("select 1 as n")}),
              (std::vector<Lines>{kAcknowledged, {"columns n int 4", "row 1", "done 10 C1 1"}}));
}

TEST_F(Attention, EndsTheRowsAndItsAcknowledgementFollows) {
    const auto all = answers({batch("select n from molte"), kAttention, batch("select 1 as n")}, 1);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_LT(all[0].size(), 300U);
    EXPECT_EQ(all[0].back(), "done 2 0 0");
    EXPECT_EQ(all[1], kAcknowledged);
    EXPECT_EQ(all[2].at(1), "row 1");
}

TEST_F(Attention, EndsAStatementWithoutRowsAndNothingOfItStays) {
    const std::string before = count();
    const auto all = answers({batch("insert into molte select a.n from molte a, molte b; print 'after'"), kAttention,
                              batch("select count(*) as c from molte")},
                             kOften);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[0], Lines{"done 2 0 0"});
    EXPECT_EQ(all[1], kAcknowledged);
    EXPECT_EQ(all[2].at(1), before);
}

TEST_F(Attention, EndsAStatementThatLooksForItsFirstRow) {
    const auto all = answers({batch("select a.n from molte a, molte b where a.n + b.n = 999"), kAttention}, kOften);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].back(), "done 2 0 0");
    EXPECT_EQ(all[1], kAcknowledged);
}

TEST_F(Attention, EndsTheWaitForAnotherWriter) {
    const auto writer = engine::Session::open(instance, {"sa", "segreta", "prova"});
    for (const char* text : {"begin tran", "update molte set n = 0"}) {
        const auto statement = writer->execute(text);
        statement->nextResult();
    }
    const auto all = answers({batch("update molte set n = 1"), kAttention, batch("select 1 as n")}, kOften);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[0], Lines{"done 2 0 0"});
    EXPECT_EQ(all[1], kAcknowledged);
    EXPECT_EQ(all[2].at(1), "row 1");
}

Bytes statementCall(const std::string& text) {
    ByteWriter call;
    call.u16(0xFFFF).u16(10).u16(0).shortText("").u8(0).u8(0xE7).u16(8000).raw(Bytes(5, 0));
    return call.u16(static_cast<std::uint16_t>(text.size() * 2)).ucs2(text).bytes;
}

TEST_F(Attention, EndsACallOfAProcedureTheSameWay) {
    const Bytes call = statementCall("delete from molte where n in (select a.n + b.n from molte a, molte b)");
    const std::string before = count();
    const auto all = answers({packet(3, 1, call), kAttention}, kOften);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].back(), "doneproc 0 E0 0");
    EXPECT_EQ(all[0].front(), "doneinproc 3 0 0");
    EXPECT_EQ(all[1], kAcknowledged);
    EXPECT_EQ(count(), before);
}

TEST_F(Attention, EndsAllCallsOfItsMessage) {
    Bytes calls = statementCall("select a.n from molte a, molte b where a.n + b.n = 999");
    const Bytes second = statementCall("create table mai (n int)");
    calls.push_back(0xFF);
    calls.insert(calls.end(), second.begin(), second.end());
    const auto all = answers({packet(3, 1, calls), kAttention, batch("select * from mai")}, kOften);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(
        std::count_if(all[0].begin(), all[0].end(), [](const auto& line) { return line.starts_with("doneproc"); }), 1);
    EXPECT_EQ(all[0].back(), "doneproc 0 E0 0");
    EXPECT_EQ(all[1], kAcknowledged);
    EXPECT_EQ(all[2].at(0), "error 208");
}

TEST_F(Attention, IsToldFromARequestThatComesTooEarlyAndIsAnsweredInItsTurn) {
    Script script({hello(), batch("select n from molte"), batch("select 77 as n")}, 0, true);
    Client(script, instance).serve();
    const auto all = heardMessages(script.got, kVersion71);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_GT(all[1].size(), 10'000U);
    EXPECT_TRUE(all[1].back().starts_with("done 10 C1 ")) << "the first one is answered whole";
    EXPECT_EQ(all[2].at(1), "row 77");
}

TEST_F(Attention, LeavesTheSessionAbleToWrite) {
    const auto all = answers({batch("begin tran; insert into molte values (77)"),
                              batch("insert into molte select a.n from molte a, molte b"), kAttention,
                              batch("insert into molte values (88)"), batch("if @@trancount > 0 commit tran"),
                              batch("select n from molte where n > 70 order by n")},
                             kOften);
    ASSERT_EQ(all.size(), 6U);
    EXPECT_EQ(all[5].at(all[5].size() - 2), "row 88");
}

} // namespace
} // namespace peer

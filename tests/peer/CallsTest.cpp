// Calls of procedures, by number and by name.

#include "peer/ConversationFixture.h"

namespace peer {
namespace {

using wire::batch;
using wire::packet;

const Bytes kCollated(5, 0);

ByteWriter national(const std::string& text) {
    ByteWriter out;
    const std::size_t bytes = toUtf16(text).size() * 2;
    out.u8(0xE7).u16(8000).raw(kCollated).u16(static_cast<std::uint16_t>(bytes)).ucs2(text);
    return out;
}

ByteWriter integer(std::int32_t value) {
    ByteWriter out;
    out.u8(0x26).u8(4).u8(4).u32(static_cast<std::uint32_t>(value));
    return out;
}

class Call {
public:
    explicit Call(std::uint16_t procedure) { out_.u16(0xFFFF).u16(procedure).u16(0); }
    explicit Call(const std::string& procedure) {
        out_.u16(static_cast<std::uint16_t>(procedure.size())).ucs2(procedure).u16(0);
    }
    Call& with(const std::string& name, const ByteWriter& typed, std::uint8_t status = 0) {
        out_.shortText(name).u8(status).raw(typed.bytes);
        return *this;
    }
    Call& then(const Call& another, std::uint8_t mark) {
        out_.u8(mark).raw(another.out_.bytes);
        return *this;
    }
    Bytes sent() const { return packet(3, 1, out_.bytes); }

private:
    ByteWriter out_;
};

constexpr std::uint16_t kExecuteSql = 10, kPrepare = 11, kExecute = 12, kPrepareExecute = 13, kUnprepare = 15;
constexpr std::uint8_t kByReference = 1;

Call executeSql(const std::string& text, const std::string& declarations) {
    return Call(kExecuteSql).with("", national(text)).with("", national(declarations));
}

class Calls : public Conversation {
protected:
    Lines called(const Call& call) const { return answers({call.sent()}).at(0); }
};

ByteWriter typed(std::initializer_list<int> bytes) {
    ByteWriter out;
    for (const int byte : bytes) {
        out.u8(static_cast<std::uint8_t>(byte));
    }
    return out;
}

TEST_F(Calls, RunAStatementWithItsParameters) {
    const Call call =
        executeSql("select @a as a, @B as b, '@a' as c, @@rowcount as d, -@a as e -- @a", "@a int, @b nvarchar(10)")
            .with("@b", national("d'è"))
            .with("@a", integer(-5));
    EXPECT_EQ(called(call), (Lines{"columns a int 4, b nvarchar 20, c varchar 8000, d int 4, e int 4",
                                   "row -5|d'\xC3\xA8|@a|0|5", "doneinproc 11 C1 1", "status 0", "doneproc 0 E0 0"}));
}

TEST_F(Calls, PassNoParameterIntoQuotesNamesAndComments) {
    const Call call =
        executeSql("select '@a' as [@a], /* @a ' */ @a as \"@a\"\n-- '@a\n, @a + @ab as z", "@a int,@ab int")
            .with("", integer(1))
            .with("", integer(2));
    EXPECT_EQ(called(call).at(0), "columns @a varchar 8000, @a int 4, z int 4");
    EXPECT_EQ(called(call).at(1), "row @a|1|3");
}

TEST_F(Calls, GiveAParameterTheTypeOfItsDeclaration) {
    EXPECT_EQ(called(executeSql("select @p as p", "@p nvarchar(2)").with("@p", national("abc"))).at(0),
              "columns p nvarchar 4");
    EXPECT_EQ(called(executeSql("select @p as p", "@p nvarchar(2) OUTPUT").with("@p", national("abc"))).at(1),
              "row ab");
    EXPECT_EQ(called(executeSql("select @p as p, @q as q", "@p decimal(10, 2), @q smallint")
                         .with("", integer(3))
                         .with("", integer(4)))
                  .at(0),
              "columns p decimal 9 10 2, q int 2");
    EXPECT_EQ(called(executeSql("select @p as p", "@p smallint").with("", integer(70000))).at(0), "error 220");
    EXPECT_EQ(called(executeSql("select @p as p", "@p sql_variant").with("", integer(7))).at(0), "error 243");
}

TEST_F(Calls, WithoutTheValueOfAParameterAreRefused) {
    EXPECT_EQ(called(executeSql("select @p as p", "@p int")),
              (Lines{"error 137", "doneinproc 3 0 0", "status 137", "doneproc 0 E0 0"}));
}

TEST_F(Calls, GiveBackWhatIsPassedByReferenceUnderItsName) {
    const Call call =
        executeSql("print @p", "@p nvarchar(9) out").with("@p", national("ab"), kByReference).with("@q", integer(7));
    EXPECT_EQ(called(call), (Lines{"info 0 ab", "doneinproc 1 0 0", "status 0", "value 2 @p ab", "doneproc 0 E0 0"}));
}

TEST_F(Calls, PrepareExecuteAndForgetAText) {
    const std::string text = "select @b as b, @a as a, @b as c";
    const auto all = answers({
        Call(kPrepare)
            .with("@handle", integer(0), kByReference)
            .with("", national("@a int, @b int"))
            .with("", national(text))
            .sent(),
        Call(kExecute).with("", integer(1)).with("", integer(7)).with("", integer(8)).sent(),
        Call(kExecute).with("", integer(1)).with("@b", integer(7)).with("@a", integer(8)).sent(),
        Call(kUnprepare).with("", integer(1)).sent(),
        Call(kExecute).with("", integer(1)).sent(),
        Call(kUnprepare).with("", integer(1)).sent(),
        Call(kPrepareExecute)
            .with("", integer(0), kByReference)
            .with("", national(""))
            .with("", national("select 5 as n"))
            .sent(),
        Call("SP_EXECUTE").with("", integer(2)).sent(),
    });
    EXPECT_EQ(all.at(0), (Lines{"status 0", "value 0 @handle 1", "doneproc 0 E0 0"}));
    EXPECT_EQ(all.at(1).at(1), "row 8|7|8");
    EXPECT_EQ(all.at(2).at(1), "row 7|8|7");
    EXPECT_EQ(all.at(3), (Lines{"status 0", "doneproc 0 E0 0"}));
    EXPECT_EQ(all.at(4), (Lines{"error 8179", "doneproc 2 E0 0"}));
    EXPECT_EQ(all.at(5), (Lines{"error 8179", "doneproc 2 E0 0"}));
    EXPECT_EQ(all.at(6),
              (Lines{"columns n int 4", "row 5", "doneinproc 11 C1 1", "status 0", "value 0  2", "doneproc 0 E0 0"}));
    EXPECT_EQ(all.at(7).at(1), "row 5");
}

TEST_F(Calls, OfAResetConnectionFindNoPreparedTexts) {
    const auto all = answers({
        Call(kPrepare).with("", integer(0), kByReference).with("", national("")).with("", national("select 5")).sent(),
        packet(1, 9, ByteWriter().ucs2("print 'x'").bytes),
        Call(kExecute).with("", integer(1)).sent(),
    });
    EXPECT_EQ(all.at(2).at(0), "error 8179");
}

TEST_F(Calls, OfOneMessageRunOneAfterTheOther) {
    for (const std::uint8_t mark : {0x80, 0xFF}) {
        Call two = executeSql("select 1 as n", "");
        two.then(Call(kUnprepare).with("", integer(9)), mark).then(executeSql("select 2 as n", ""), mark);
        EXPECT_EQ(called(two), (Lines{"columns n int 4", "row 1", "doneinproc 11 C1 1", "status 0", "doneproc 1 E0 0",
                                      "error 8179", "doneproc 3 E0 0", "columns n int 4", "row 2", "doneinproc 11 C1 1",
                                      "status 0", "doneproc 0 E0 0"}));
    }
}

TEST_F(Calls, TellTheErrorsOfTheirStatements) {
    EXPECT_EQ(called(executeSql("select * from manca; print 'x'", "")),
              (Lines{"error 208", "doneinproc 3 C1 0", "status 208", "doneproc 0 E0 0"}));
}

TEST_F(Calls, OfAProcedureByNameTakeItsParameters) {
    const Lines all = called(Call("sp_configure").with("@configname", national("show advanced options")));
    ASSERT_EQ(all.size(), 5U);
    EXPECT_EQ(all[2], "doneinproc 11 C1 1");
    EXPECT_EQ(all[3], "status 0");
    EXPECT_EQ(all[4], "doneproc 0 E0 0");
    const Lines listed =
        called(Call("sp_configure").with("", national("show advanced options")).with("", integer(1), 2));
    EXPECT_TRUE(listed.at(0).starts_with("columns name ")) << "a parameter left at its default isn't passed";
    EXPECT_EQ(called(Call("sp_configure").with("", national("manca"))).at(0), "error 15123");
    EXPECT_EQ(called(Call("sp_manca")).at(0), "error 2812");
}

TEST_F(Calls, ThatAreNotServedAreRefusedAndTheConnectionLives) {
    const Bytes guid = Call(kExecuteSql).with("", national("select 1")).with("@g", typed({0x24, 16, 0})).sent();
    const Bytes cursor = Call(2).with("", integer(0), kByReference).sent();
    const Bytes cut = Call(kExecuteSql).with("", ByteWriter().u8(0xE7).u16(8000).raw(kCollated).u16(500)).sent();
    const char* numbers[] = {"error 8009", "error 2812", "error 4002"};
    for (int i = 0; i < 3; ++i) {
        const auto all = answers({i == 0 ? guid : i == 1 ? cursor : cut, batch("select 1 as n")});
        ASSERT_EQ(all.size(), 2U) << i;
        EXPECT_EQ(all[0].at(0), numbers[i]);
        EXPECT_EQ(all[1].at(1), "row 1");
    }
}

} // namespace
} // namespace peer

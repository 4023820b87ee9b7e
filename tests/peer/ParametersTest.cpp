// Calls of procedures with parameters of every type.

#include "peer/ConversationFixture.h"

#include <bit>

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

Parameter read(const ByteWriter& typed) {
    const Bytes bytes = ByteWriter().shortText("@p").u8(0).raw(typed.bytes).bytes;
    ByteReader in(bytes);
    Parameter parameter = readParameter(in, 1);
    EXPECT_EQ(in.left(), 0U);
    EXPECT_EQ(parameter.raw, typed.bytes);
    return parameter;
}

ByteWriter typed(std::initializer_list<int> bytes) {
    ByteWriter out;
    for (const int byte : bytes) {
        out.u8(static_cast<std::uint8_t>(byte));
    }
    return out;
}

ByteWriter date(std::uint8_t token, std::int32_t days, std::uint32_t ticks) {
    return ByteWriter()
        .u8(token)
        .raw(token == 0x6F ? Bytes{8, 8} : Bytes{})
        .u32(static_cast<std::uint32_t>(days))
        .u32(ticks);
}

TEST(Parameters, OfEveryTypeAreReadToConstantsOfIt) {
    struct Case {
        ByteWriter typed;
        const char* cast;
    };
    const std::uint64_t third = std::bit_cast<std::uint64_t>(1.0 / 3);
    const Case cases[] = {
        {typed({0x30, 200}), "CAST(200 AS tinyint)"},
        {typed({0x26, 1, 1, 255}), "CAST(255 AS tinyint)"},
        {typed({0x32, 2}), "CAST(1 AS bit)"},
        {typed({0x68, 1, 1, 0}), "CAST(0 AS bit)"},
        {typed({0x34, 0xFE, 0xFF}), "CAST(-2 AS smallint)"},
        {typed({0x26, 2, 2, 0, 0x80}), "CAST(-32768 AS smallint)"},
        {typed({0x38, 0xFF, 0xFF, 0xFF, 0x7F}), "CAST(2147483647 AS int)"},
        {typed({0x26, 4, 4, 0xFB, 0xFF, 0xFF, 0xFF}), "CAST(-5 AS int)"},
        {typed({0x7F, 0, 0, 0, 0, 0, 1, 0, 0}), "CAST(1099511627776 AS bigint)"},
        {typed({0x26, 8, 8, 0, 0, 0, 0, 0, 0, 0, 0x80}), "CAST(-9223372036854775808 AS bigint)"},
        {ByteWriter().u8(0x3B).u32(std::bit_cast<std::uint32_t>(0.1F)), "CAST(1.0000000149011612e-01 AS real)"},
        {ByteWriter().u8(0x6D).u8(4).u8(4).u32(std::bit_cast<std::uint32_t>(-2.5F)), "CAST(-2.5e+00 AS real)"},
        {ByteWriter().u8(0x3E).u64(third), "CAST(3.333333333333333e-01 AS float)"},
        {ByteWriter().u8(0x6D).u8(8).u8(8).u64(third), "CAST(3.333333333333333e-01 AS float)"},
        {ByteWriter().u8(0x3C).u32(0).u32(12345), "CAST(1.2345 AS money)"},
        {ByteWriter().u8(0x6E).u8(8).u8(8).u32(0xFFFFFFFF).u32(0xFFFFFFFF), "CAST(-0.0001 AS money)"},
        {ByteWriter().u8(0x6E).u8(8).u8(8).u32(0x80000000).u32(0), "CAST(-922337203685477.5808 AS money)"},
        {ByteWriter().u8(0x7A).u32(50000), "CAST(5.0000 AS smallmoney)"},
        {ByteWriter().u8(0x6E).u8(4).u8(4).u32(0xFFFFFFFE), "CAST(-0.0002 AS smallmoney)"},
        {typed({0x6A, 5, 5, 2, 5, 0, 0x39, 0x30, 0, 0}), "CAST(-123.45 AS decimal(5,2))"},
        {typed({0x6C, 5, 3, 3, 5, 1, 7, 0, 0, 0}), "CAST(0.007 AS decimal(3,3))"},
        {typed({0x6A, 5, 9, 0, 5, 1, 0, 0, 0, 0}), "CAST(0 AS decimal(9,0))"},
        {typed({0x6A, 17,   38, 0,    17,   1,    0xFF, 0xFF, 0xFF, 0xFF, 0x3F,
                0x22, 0x8A, 9,  0x7A, 0xC4, 0x86, 0x5A, 0xA8, 0x4C, 0x3B, 0x4B}),
         "CAST(99999999999999999999999999999999999999 AS decimal(38,0))"},
        {date(0x3D, 38051, 14295900), "CAST('20040307 13:14:13.000' AS datetime)"},
        {date(0x6F, -53690, 1), "CAST('17530101 00:00:00.003' AS datetime)"},
        {date(0x6F, 2958463, 25919999), "CAST('99991231 23:59:59.997' AS datetime)"},
        {date(0x6F, 0, 2), "CAST('19000101 00:00:00.007' AS datetime)"},
        {ByteWriter().u8(0x3A).u16(38051).u16(794), "CAST('20040307 13:14:00.000' AS smalldatetime)"},
        {ByteWriter().u8(0x6F).u8(4).u8(4).u16(1).u16(1), "CAST('19000102 00:01:00.000' AS smalldatetime)"},
        {typed({0x28, 3, 0xFE, 0x29, 0x0B}), "CAST('20040307 00:00:00.000' AS date)"},
        {typed({0x2A, 3, 7, 0x79, 0xD3, 0xD6, 2, 0xFD, 0x29, 0x0B}), "CAST('20040306 13:13:53.273' AS datetime2(3))"},
        {ByteWriter().u8(0xA7).u16(20).raw(kCollated).u16(3).raw(Bytes{'c', 0x80, 0xE0}), "CAST('c€à' AS varchar(20))"},
        {ByteWriter().u8(0xAF).u16(5).raw(kCollated).u16(5).raw(Bytes{'a', '\'', 'b', ' ', ' '}),
         "CAST('a''b  ' AS char(5))"},
        {ByteWriter().u8(0xE7).u16(40).raw(kCollated).u16(4).ucs2("è€"), "CAST(N'è€' AS nvarchar(20))"},
        {ByteWriter().u8(0xEF).u16(4).raw(kCollated).u16(4).ucs2("ab"), "CAST(N'ab' AS nchar(2))"},
        {ByteWriter().u8(0xE7).u16(0xFFFF).raw(kCollated).u64(6).u32(2).ucs2("a").u32(4).ucs2("bc").u32(0),
         "CAST(N'abc' AS nvarchar(max))"},
        {ByteWriter().u8(0xA7).u16(0xFFFF).raw(kCollated).u64(1).u32(1).u8('x').u32(0), "CAST('x' AS varchar(max))"},
        {ByteWriter().u8(0x63).u32(100).raw(kCollated).u32(2).ucs2("z"), "CAST(N'z' AS ntext)"},
        {ByteWriter().u8(0x23).u32(100).raw(kCollated).u32(1).u8('z'), "CAST('z' AS text)"},
        {typed({0x1F}), "CAST(NULL AS int)"},
        {typed({0x26, 4, 0}), "CAST(NULL AS int)"},
        {typed({0x68, 1, 0}), "CAST(NULL AS bit)"},
        {typed({0x6D, 8, 0}), "CAST(NULL AS float)"},
        {typed({0x6E, 8, 0}), "CAST(NULL AS money)"},
        {typed({0x6F, 8, 0}), "CAST(NULL AS datetime)"},
        {typed({0x6A, 9, 18, 2, 0}), "CAST(NULL AS decimal(18,2))"},
        {ByteWriter().u8(0xE7).u16(40).raw(kCollated).u16(0xFFFF), "CAST(NULL AS nvarchar(20))"},
        {ByteWriter().u8(0xE7).u16(0xFFFF).raw(kCollated).u64(~0ULL), "CAST(NULL AS nvarchar(max))"},
        {ByteWriter().u8(0xA7).u16(9).raw(kCollated).u16(0xFFFF), "CAST(NULL AS varchar(9))"},
        {ByteWriter().u8(0xA5).u16(9).u16(0xFFFF), "CAST(NULL AS varbinary(9))"},
        {ByteWriter().u8(0xAD).u16(9).u16(0xFFFF), "CAST(NULL AS binary(9))"},
        {ByteWriter().u8(0x22).u32(9).u32(0xFFFFFFFF), "CAST(NULL AS image)"},
        {ByteWriter().u8(0x63).u32(9).raw(kCollated).u32(0xFFFFFFFF), "CAST(NULL AS ntext)"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(read(one.typed).typed(), one.cast);
    }
}

TEST(Parameters, ThatAreNoValueOfTheirTypeAreRefused) {
    const ByteWriter cases[] = {
        typed({0x26, 4, 2, 1, 1}),                                  // two bytes of an int
        typed({0x26, 3, 3, 1, 1, 1}),                               // an integer of three bytes
        typed({0x68, 1, 2, 1, 1}),                                  // a bit of two bytes
        ByteWriter().u8(0x3E).u64(0x7FF0000000000000),              // infinity
        ByteWriter().u8(0x3B).u32(0x7FC00000),                      // not a number
        typed({0x6A, 5, 2, 0, 5, 1, 100, 0, 0, 0}),                 // more digits than the precision
        typed({0x6A, 5, 40, 0, 5, 1, 1, 0, 0, 0}),                  // a precision that is none
        typed({0x6A, 5, 2, 3, 5, 1, 1, 0, 0, 0}),                   // a scale beyond the precision
        typed({0x6A, 5, 2, 0, 1, 1}),                               // a sign alone
        date(0x3D, -53691, 0),                                      // before 1753
        date(0x3D, 2958464, 0),                                     // after 9999
        date(0x3D, 0, 25920000),                                    // a second day
        typed({0x28, 2, 1, 1}),                                     // a date of two bytes
        ByteWriter().u8(0xE7).u16(8).raw(kCollated).u16(1).u8('a'), // half a character
    };
    for (const ByteWriter& one : cases) {
        try {
            read(one);
            ADD_FAILURE() << int{one.bytes[0]} << " " << one.bytes.size();
        } catch (const engine::Error& error) {
            EXPECT_EQ(error.number(), 8023);
        }
    }
    for (const ByteWriter& one : {typed({0x24, 16, 0}), typed({0x62, 0}), typed({0xF1, 0}), typed({0xF3, 0}),
                                  ByteWriter().u8(0xA5).u16(9).u16(1).u8(1)}) {
        try {
            read(one);
            ADD_FAILURE() << int{one.bytes[0]};
        } catch (const engine::Error& error) {
            EXPECT_EQ(error.number(), 8009);
            EXPECT_NE(std::string(error.what()).find("Parameter 1 (\"@p\"): Data type 0x"), std::string::npos);
        }
    }
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
    EXPECT_EQ(called(Call("sp_configure").with("", national("manca")).with("", integer(1), 2)).at(0), "error 15123");
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

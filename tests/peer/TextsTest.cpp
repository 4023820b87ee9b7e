// How values of each type, and long texts, are described and sent.

#include "peer/ConversationFixture.h"

namespace peer {
namespace {

class Values : public Conversation {
protected:
    Lines answer72(const std::string& text) const {
        return answersTo(kVersion72, packets(PacketType::Batch, ByteWriter().u32(4).ucs2(text).bytes)).at(0);
    }
    static std::vector<Bytes> packets(PacketType type, const Bytes& message) {
        return {peer::packets(type, message, 4096)};
    }
};

TEST_F(Values, OfEachTypeAreDescribedAndSent) {
    answer("create table tipi (b bit, t tinyint, s smallint, i int, g bigint, r real, f float, d decimal(5,2),"
           " w decimal(38,0), q datetime, c char(3), v varchar(9), h nchar(2), n nvarchar(9))");
    answer("insert into tipi values (1, 200, -2, 5, 9223372036854775807, 0.5, 0.25, -1.25,"
           " 123456789012, '20040307 00:00:01', 'a€', 'è', N'h', N'€')");
    answer("insert into tipi (b) values (null)");
    const Lines all = answer("select * from tipi");
    EXPECT_EQ(all.at(0), "columns b bit 1, t int 1, s int 2, i int 4, g int 8, r float 4, f float 8, d decimal 5 5 2,"
                         " w decimal 17 38 0, q datetime 8, c char 3, v varchar 9, h nchar 4, n nvarchar 18");
    EXPECT_EQ(all.at(1), "row 1|200|-2|5|9223372036854775807|0000003F|000000000000D03F|007D000000|"
                         "01141A99BE1C0000000000000000000000|A39400002C010000|a\x80 |\xE8|h |€");
    EXPECT_EQ(all.at(2), "row NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL");
}

TEST_F(Values, ThatAreLongTextsAreSentAsMaxTypes) {
    const std::string text(20'000, 'x');
    EXPECT_EQ(answer72("select N'" + text + "' as a, '" + text + "' as b"),
              (Lines{"columns a nvarchar 65535, b varchar 65535", "row " + text + "|" + text, "done 10 C1 1"}));
    EXPECT_EQ(answer72("select cast(N'è' as nvarchar(max)) as a, cast('è' as varchar(max)) as b"),
              (Lines{"columns a nvarchar 65535, b varchar 65535", "row è|\xE8", "done 10 C1 1"}));
    EXPECT_EQ(answer72("select cast('' as nvarchar(max)) as a, cast(null as varchar(max)) as b"),
              (Lines{"columns a nvarchar 65535, b varchar 65535", "row |NULL", "done 10 C1 1"}));
}

TEST_F(Values, ThatAreLongTextsAreSentToAnOlderClientAsItsLongTypes) {
    const std::string text(20'000, 'x');
    const std::string select = "select N'" + text + "' as a, '" + text + "' as b, cast(null as ntext) as c";
    EXPECT_EQ(answers(packets(PacketType::Batch, ByteWriter().ucs2(select).bytes)).at(0),
              (Lines{"columns a ntext 2147483646, b text 2147483647, c ntext 2147483646",
                     "row " + text + "|" + text + "|NULL", "done 10 C1 1"}));
}

TEST_F(Values, OfTheLongestTypesThatAreNotMaxStayThere) {
    answer("create table lunghi (v varchar(8000), n nvarchar(4000))");
    answer("insert into lunghi values (replicate('a', 8000), replicate(N'b', 4000))");
    const Lines all = answer72("select * from lunghi");
    EXPECT_EQ(all.at(0), "columns v varchar 8000, n nvarchar 8000");
    EXPECT_EQ(all.at(1), "row " + std::string(8000, 'a') + "|" + std::string(4000, 'b'));
}

TEST_F(Values, ThatAreParametersOfTwentyThousandCharactersComeBack) {
    const std::string text(20'000, 'y');
    ByteWriter call;
    const auto add = [&](const std::string& name, const std::string& value) {
        const auto bytes = static_cast<std::uint32_t>(value.size() * 2);
        call.shortText(name).u8(0).u8(0xE7).u16(0xFFFF).raw(Bytes(5, 0)).u64(bytes).u32(bytes).ucs2(value).u32(0);
    };
    call.u32(4).u16(0xFFFF).u16(10).u16(0);
    add("", "select @p as p");
    add("", "@p nvarchar(max)");
    add("@p", text);
    EXPECT_EQ(answersTo(kVersion72, packets(PacketType::Rpc, call.bytes)).at(0),
              (Lines{"columns p nvarchar 65535", "row " + text, "doneinproc 11 C1 1", "status 0", "doneproc 0 E0 0"}));
}

} // namespace
} // namespace peer

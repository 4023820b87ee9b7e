// Parameters of every type are read from the protocol.

#include "peer/Parameters.h"

#include <gtest/gtest.h>

#include <bit>

namespace peer {
namespace {

const Bytes kCollated(5, 0);

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

} // namespace
} // namespace peer

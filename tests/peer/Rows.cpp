// The dialect's types in the protocol: how columns are described and values written.

#include "peer/Tokens.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace peer {

namespace {

using Kind = engine::DataType::Kind;

constexpr int kLongestCharacters = 4000;
constexpr std::uint16_t kPartial = 0xFFFF; // "max": the value is sent in chunks
constexpr std::uint8_t kNText = 0x63;

int integerBytes(Kind kind) {
    switch (kind) {
    case Kind::TinyInt:
        return 1;
    case Kind::SmallInt:
        return 2;
    case Kind::BigInt:
        return 8;
    default:
        return 4;
    }
}

int decimalBytes(int precision) {
    return precision <= 9 ? 5 : precision <= 19 ? 9 : precision <= 28 ? 13 : 17;
}

bool unlimited(const engine::DataType& type) {
    return type.length < 0 || type.length > kLongestCharacters;
}

/// Days since 1900-01-01 and 1/300 seconds since midnight of `YYYY-MM-DD hh:mm:ss.mmm`.
struct WireDate {
    std::int32_t days;
    std::uint32_t ticks;
};

WireDate wireDate(std::string_view text) {
    int year = 1900, month = 1, day = 1, hour = 0, minute = 0, second = 0, milli = 0;
    std::sscanf(std::string(text).c_str(), "%d-%d-%d %d:%d:%d.%d", &year, &month, &day, &hour, &minute, &second,
                &milli);
    // Days of the civil calendar, counted in years that begin in March.
    const int y = month > 2 ? year : year - 1;
    const int era = y / 400;
    const int ofEra = y - era * 400;
    const int ofYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int days = era * 146097 + ofEra * 365 + ofEra / 4 - ofEra / 100 + ofYear - 693901;
    const long long millis = ((hour * 60LL + minute) * 60 + second) * 1000 + milli;
    return {days, static_cast<std::uint32_t>((millis * 3 + 5) / 10)};
}

/// The digits of a decimal without point and sign.
unsigned long long magnitude(std::string_view text, bool& negative) {
    unsigned long long value = 0;
    negative = false;
    for (const char c : text) {
        if (c == '-') {
            negative = true;
        } else if (c >= '0' && c <= '9') {
            value = value * 10 + static_cast<unsigned>(c - '0');
        }
    }
    return value;
}

/// The text in the collation's code page, with "?" for characters that it doesn't have.
std::string toCodePage(std::string_view text) {
    static constexpr char16_t kUpper[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                            0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
    std::string out;
    for (const char16_t c : toUtf16(text)) {
        const auto* upper = std::find(std::begin(kUpper), std::end(kUpper), c);
        if (c < 0x80 || (c >= 0xA0 && c < 0x100)) {
            out += static_cast<char>(c);
        } else {
            out += upper == std::end(kUpper) ? '?' : static_cast<char>(0x80 + (upper - std::begin(kUpper)));
        }
    }
    return out;
}

/// Bytes after their length as two bytes.
void writeNarrow(ByteWriter& out, bool null, const std::string& bytes) {
    out.u16(null ? kPartial : static_cast<std::uint16_t>(bytes.size()));
    for (const char byte : null ? std::string() : bytes) {
        out.u8(static_cast<std::uint8_t>(byte));
    }
}

} // namespace

void TokenWriter::typeInfo(const engine::DataType& type) {
    switch (type.kind) {
    case Kind::Bit:
        out_.u8(0x68).u8(1);
        return;
    case Kind::Unknown:
    case Kind::TinyInt:
    case Kind::SmallInt:
    case Kind::Int:
    case Kind::BigInt:
        out_.u8(0x26).u8(static_cast<std::uint8_t>(integerBytes(type.kind)));
        return;
    case Kind::Real:
        out_.u8(0x6D).u8(4);
        return;
    case Kind::Float:
        out_.u8(0x6D).u8(8);
        return;
    case Kind::Decimal:
        out_.u8(0x6A).u8(static_cast<std::uint8_t>(decimalBytes(type.precision)));
        out_.u8(static_cast<std::uint8_t>(type.precision)).u8(static_cast<std::uint8_t>(type.scale));
        return;
    case Kind::DateTime:
        out_.u8(0x6F).u8(8);
        return;
    case Kind::VarBinary:
        out_.u8(0xA5).u16(static_cast<std::uint16_t>(unlimited(type) ? 8000 : std::max(1, type.length)));
        return;
    case Kind::Char:
    case Kind::VarChar:
        if (unlimited(type)) {
            break;
        }
        out_.u8(type.kind == Kind::Char ? 0xAF : 0xA7).u16(static_cast<std::uint16_t>(std::max(1, type.length)));
        out_.raw(kCollation);
        return;
    case Kind::NChar:
    case Kind::NVarChar:
        break;
    }
    if (!unlimited(type)) {
        out_.u8(type.kind == Kind::NChar ? 0xEF : 0xE7)
            .u16(static_cast<std::uint16_t>(std::max(1, type.length) * 2))
            .raw(kCollation);
    } else if (atLeast72()) {
        out_.u8(0xE7).u16(kPartial).raw(kCollation);
    } else {
        out_.u8(kNText).u32(0x7FFFFFFE).raw(kCollation).longText("");
    }
}

void TokenWriter::value(const engine::ResultRow& row, int column, const engine::DataType& type) {
    const bool null = row.isNull(column);
    switch (type.kind) {
    case Kind::Bit:
        null ? out_.u8(0) : out_.u8(1).u8(row.integer(column) != 0);
        return;
    case Kind::Unknown:
    case Kind::TinyInt:
    case Kind::SmallInt:
    case Kind::Int:
    case Kind::BigInt: {
        if (null) {
            out_.u8(0);
            return;
        }
        const int bytes = integerBytes(type.kind);
        const auto number = static_cast<std::uint64_t>(row.integer(column));
        out_.u8(static_cast<std::uint8_t>(bytes));
        for (int i = 0; i < bytes; ++i) {
            out_.u8(static_cast<std::uint8_t>(number >> (8 * i)));
        }
        return;
    }
    case Kind::Real:
        null ? out_.u8(0) : out_.u8(4).u32(std::bit_cast<std::uint32_t>(static_cast<float>(row.real(column))));
        return;
    case Kind::Float:
        null ? out_.u8(0) : out_.u8(8).u64(std::bit_cast<std::uint64_t>(row.real(column)));
        return;
    case Kind::Decimal: {
        if (null) {
            out_.u8(0);
            return;
        }
        const int bytes = decimalBytes(type.precision);
        bool negative = false;
        unsigned long long digits = magnitude(row.text(column), negative);
        out_.u8(static_cast<std::uint8_t>(bytes)).u8(negative ? 0 : 1);
        for (int i = 1; i < bytes; ++i, digits = i <= 8 ? digits >> 8 : 0) {
            out_.u8(static_cast<std::uint8_t>(digits));
        }
        return;
    }
    case Kind::DateTime: {
        if (null) {
            out_.u8(0);
            return;
        }
        const WireDate date = wireDate(row.text(column));
        out_.u8(8).u32(static_cast<std::uint32_t>(date.days)).u32(date.ticks);
        return;
    }
    case Kind::VarBinary:
        writeNarrow(out_, null, std::string(row.text(column)));
        return;
    case Kind::Char:
    case Kind::VarChar:
        if (unlimited(type)) {
            break;
        }
        writeNarrow(out_, null, toCodePage(row.text(column)));
        return;
    case Kind::NChar:
    case Kind::NVarChar:
        break;
    }

    const std::u16string wide = null ? std::u16string() : toUtf16(row.text(column));
    const std::size_t bytes = wide.size() * 2;
    if (!unlimited(type)) {
        out_.u16(null ? kPartial : static_cast<std::uint16_t>(bytes));
    } else if (atLeast72()) {
        out_.u64(null ? ~0ULL : bytes);
        if (null) {
            return;
        }
        if (bytes > 0) {
            out_.u32(static_cast<std::uint32_t>(bytes));
        }
    } else if (null) {
        out_.u8(0);
    } else {
        out_.u8(16).raw(Bytes(24, 0)).u32(static_cast<std::uint32_t>(bytes)); // a text pointer and its time stamp
    }
    for (const char16_t c : wide) {
        out_.u16(c);
    }
    if (unlimited(type) && atLeast72()) {
        out_.u32(0);
    }
}

} // namespace peer

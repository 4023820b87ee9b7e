// The dialect's types in the protocol: how columns are described and values written.

#include "engine/values/CodePage.h"
#include "peer/Tokens.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace peer {

namespace {

using Kind = engine::DataType::Kind;

constexpr std::uint16_t kPartial = 0xFFFF; // "max": the value is sent in chunks

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

/// Whether a text or binary is sent as a "max" type.
bool unlimited(const engine::DataType& type) {
    return type.length < 0 || type.length > (type.isNational() ? engine::kLongestNationalText : engine::kLongestText);
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

/// The digits of a decimal without point and sign as a binary number, the lowest byte first.
std::array<std::uint8_t, 16> magnitude(std::string_view text) {
    std::array<std::uint8_t, 16> value{};
    for (const char c : text) {
        if (c < '0' || c > '9') {
            continue;
        }
        unsigned carried = static_cast<unsigned>(c - '0');
        for (std::uint8_t& byte : value) {
            carried += byte * 10U;
            byte = static_cast<std::uint8_t>(carried);
            carried >>= 8;
        }
    }
    return value;
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
    case Kind::Char:
    case Kind::VarChar:
    case Kind::NChar:
    case Kind::NVarChar:
    case Kind::VarBinary:
        textInfo(type);
        return;
    }
}

void TokenWriter::textInfo(const engine::DataType& type) {
    const bool binary = type.kind == Kind::VarBinary;
    const auto collated = [&] {
        if (!binary) {
            out_.raw(kCollation);
        }
    };
    const bool padded = type.kind == Kind::Char || type.kind == Kind::NChar;
    if (unlimited(type) && !atLeast72()) {
        out_.u8(binary ? 0x22 : type.isNational() ? 0x63 : 0x23).u32(type.isNational() ? 0x7FFFFFFE : 0x7FFFFFFF);
        collated();
        out_.longText(""); // the table
        return;
    }
    out_.u8(binary ? 0xA5 : type.isNational() ? (padded ? 0xEF : 0xE7) : (padded ? 0xAF : 0xA7));
    out_.u16(unlimited(type) ? kPartial
                             : static_cast<std::uint16_t>(std::max(1, type.length) * (type.isNational() ? 2 : 1)));
    collated();
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
        const std::string_view text = row.text(column);
        out_.u8(static_cast<std::uint8_t>(bytes)).u8(text.starts_with('-') ? 0 : 1);
        const auto digits = magnitude(text);
        out_.raw(std::span(digits).first(static_cast<std::size_t>(bytes - 1)));
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
    case Kind::Char:
    case Kind::VarChar:
    case Kind::NChar:
    case Kind::NVarChar:
    case Kind::VarBinary:
        textValue(null, row.text(column), type);
        return;
    }
}

void TokenWriter::textValue(bool null, std::string_view text, const engine::DataType& type) {
    ByteWriter value;
    if (!null && type.isNational()) {
        value.ucs2(text);
    } else if (!null) {
        const std::string bytes = type.kind == Kind::VarBinary ? std::string(text) : engine::toCodePage(text);
        value.raw({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
    }
    const auto bytes = static_cast<std::uint32_t>(value.bytes.size());
    if (!unlimited(type)) {
        out_.u16(null ? kPartial : static_cast<std::uint16_t>(bytes)).raw(value.bytes);
    } else if (!atLeast72()) {
        null ? out_.u8(0)
             : out_.u8(16).raw(Bytes(24, 0)).u32(bytes).raw(value.bytes); // a text pointer and its time stamp first
    } else if (null) {
        out_.u64(~0ULL);
    } else {
        out_.u64(bytes);
        if (bytes > 0) {
            out_.u32(bytes).raw(value.bytes);
        }
        out_.u32(0);
    }
}

} // namespace peer

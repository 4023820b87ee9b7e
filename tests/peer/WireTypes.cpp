// The types of the protocol as they stand before a value, and how long their values are.

#include "peer/WireTypes.h"

#include <algorithm>
#include <array>

namespace peer {

namespace {

using Kind = WireKind;

constexpr std::uint16_t kMax = 0xFFFF; // as a length: "max", its value comes in chunks; before a value: null

/// What stands behind a type's token, before the value.
enum class Layout {
    Fixed,   ///< nothing, and the value is never null
    Length,  ///< a byte: the length; the value has its own before it
    Decimal, ///< the same, with precision and scale behind it
    Nothing, ///< the value has its length before it
    Scale,   ///< the same behind a scale
    Sized,   ///< two bytes: the length, and the collation of a text
    Large    ///< the same in four bytes
};

struct TypeRow {
    std::uint8_t token;
    Kind kind;
    Layout layout;
    std::uint32_t bytes = 0; ///< of a fixed one
    const char* name = "";
};

constexpr auto kTypes = std::to_array<TypeRow>({
    {0x1F, Kind::Null, Layout::Fixed},
    {0x22, Kind::Binary, Layout::Large, 0, "image"},
    {0x23, Kind::Text, Layout::Large, 0, "text"},
    {0x26, Kind::Integer, Layout::Length},
    {0x28, Kind::Date, Layout::Nothing},
    {0x2A, Kind::DateTime2, Layout::Scale},
    {0x30, Kind::Integer, Layout::Fixed, 1},
    {0x32, Kind::Bit, Layout::Fixed, 1},
    {0x34, Kind::Integer, Layout::Fixed, 2},
    {0x38, Kind::Integer, Layout::Fixed, 4},
    {0x3A, Kind::DateTime, Layout::Fixed, 4},
    {0x3B, Kind::Float, Layout::Fixed, 4},
    {0x3C, Kind::Money, Layout::Fixed, 8},
    {0x3D, Kind::DateTime, Layout::Fixed, 8},
    {0x3E, Kind::Float, Layout::Fixed, 8},
    {0x63, Kind::NationalText, Layout::Large, 0, "ntext"},
    {0x68, Kind::Bit, Layout::Length},
    {0x6A, Kind::Decimal, Layout::Decimal},
    {0x6C, Kind::Decimal, Layout::Decimal},
    {0x6D, Kind::Float, Layout::Length},
    {0x6E, Kind::Money, Layout::Length},
    {0x6F, Kind::DateTime, Layout::Length},
    {0x7A, Kind::Money, Layout::Fixed, 4},
    {0x7F, Kind::Integer, Layout::Fixed, 8},
    {0xA5, Kind::Binary, Layout::Sized, 0, "varbinary"},
    {0xA7, Kind::Text, Layout::Sized, 0, "varchar"},
    {0xAD, Kind::Binary, Layout::Sized, 0, "binary"},
    {0xAF, Kind::Text, Layout::Sized, 0, "char"},
    {0xE7, Kind::NationalText, Layout::Sized, 0, "nvarchar"},
    {0xEF, Kind::NationalText, Layout::Sized, 0, "nchar"},
});

Bytes copied(std::span<const std::uint8_t> bytes) {
    return {bytes.begin(), bytes.end()};
}

WireValue shortValue(ByteReader& in) {
    const std::uint8_t length = in.u8();
    return length == 0 ? WireValue() : copied(in.take(length));
}

WireValue chunkedValue(ByteReader& in) {
    if (in.u64() == ~0ULL) {
        return {};
    }
    Bytes bytes;
    while (const std::uint32_t length = in.u32()) {
        const auto chunk = in.take(length);
        bytes.insert(bytes.end(), chunk.begin(), chunk.end());
    }
    return bytes;
}

void skipCollation(ByteReader& in, Kind kind) {
    in.take(kind == Kind::Binary ? 0 : 5);
}

std::string sized(const char* name, std::uint32_t length, std::uint32_t most) {
    return std::string(name) + "(" + (length > most ? "max" : std::to_string(std::max(1U, length))) + ")";
}

} // namespace

bool readTyped(ByteReader& in, WireType& type, WireValue& value) {
    type.token = in.u8();
    const auto* const row =
        std::find_if(kTypes.begin(), kTypes.end(), [&](const TypeRow& one) { return one.token == type.token; });
    if (row == kTypes.end()) {
        return false;
    }
    type.kind = row->kind;
    type.name = row->name;
    switch (row->layout) {
    case Layout::Fixed:
        type.largest = row->bytes;
        value = row->bytes == 0 ? WireValue() : copied(in.take(row->bytes));
        break;
    case Layout::Length:
        type.largest = in.u8();
        value = shortValue(in);
        break;
    case Layout::Decimal:
        type.largest = in.u8();
        type.precision = in.u8();
        type.scale = in.u8();
        value = shortValue(in);
        break;
    case Layout::Scale:
        type.scale = in.u8();
        value = shortValue(in);
        break;
    case Layout::Nothing:
        value = shortValue(in);
        break;
    case Layout::Sized: {
        type.largest = in.u16();
        skipCollation(in, type.kind);
        if (type.largest == kMax) {
            value = chunkedValue(in);
            break;
        }
        const std::uint16_t length = in.u16();
        value = length == kMax ? WireValue() : copied(in.take(length));
        break;
    }
    case Layout::Large: {
        type.isLarge = true;
        type.largest = in.u32();
        skipCollation(in, type.kind);
        const std::uint32_t length = in.u32();
        value = length == 0xFFFFFFFF ? WireValue() : copied(in.take(length));
        break;
    }
    }
    return true;
}

std::string typeName(const WireType& type) {
    constexpr std::uint32_t kLongest = 8000;
    const bool small = type.largest == 4;
    switch (type.kind) {
    case Kind::Integer:
        return type.largest == 1 ? "tinyint" : type.largest == 2 ? "smallint" : small ? "int" : "bigint";
    case Kind::Bit:
        return "bit";
    case Kind::Float:
        return small ? "real" : "float";
    case Kind::Money:
        return small ? "smallmoney" : "money";
    case Kind::DateTime:
        return small ? "smalldatetime" : "datetime";
    case Kind::Date:
        return "date";
    case Kind::DateTime2:
        return "datetime2(" + std::to_string(type.scale) + ")";
    case Kind::Decimal:
        return "decimal(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
    case Kind::Text:
    case Kind::Binary:
        return type.isLarge ? type.name : sized(type.name, type.largest, kLongest);
    case Kind::NationalText:
        return type.isLarge ? type.name : sized(type.name, type.largest / 2, kLongest / 2);
    case Kind::Null:
        break;
    }
    return "int";
}

bool lengthFits(const WireType& type, std::size_t length) {
    switch (type.kind) {
    case Kind::Integer:
        return length == type.largest && (length == 1 || length == 2 || length == 4 || length == 8);
    case Kind::Bit:
        return length == 1;
    case Kind::Float:
    case Kind::Money:
    case Kind::DateTime:
        return length == type.largest && (length == 4 || length == 8);
    case Kind::Decimal:
        return length > 1 && length <= 17 && type.precision >= 1 && type.precision <= 38;
    case Kind::Date:
        return length == 3;
    case Kind::DateTime2:
        return length >= 6 && length <= 8 && type.scale <= 7;
    case Kind::NationalText:
        return length % 2 == 0;
    case Kind::Text:
    case Kind::Binary:
    case Kind::Null:
        break;
    }
    return true;
}

} // namespace peer

// The types of the protocol as they stand before a value, and how long their values are.

#include "peer/WireTypes.h"

#include <algorithm>

namespace peer {

namespace {

constexpr std::uint16_t kMax = 0xFFFF; // as a length: "max", its value comes in chunks; before a value: null

Bytes copied(std::span<const std::uint8_t> bytes) {
    return {bytes.begin(), bytes.end()};
}

/// Bytes of a type that is never null; 0 for all others.
std::uint32_t fixedBytes(std::uint8_t token) {
    switch (token) {
    case 0x30:
    case 0x32:
        return 1;
    case 0x34:
        return 2;
    case 0x38:
    case 0x3A:
    case 0x3B:
    case 0x7A:
        return 4;
    case 0x3C:
    case 0x3D:
    case 0x3E:
    case 0x7F:
        return 8;
    default:
        return 0;
    }
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

std::string sized(const char* name, std::uint32_t length, std::uint32_t most) {
    return std::string(name) + "(" + (length > most ? "max" : std::to_string(std::max(1U, length))) + ")";
}

} // namespace

bool readTyped(ByteReader& in, WireType& type, WireValue& value) {
    type.token = in.u8();
    if (const std::uint32_t bytes = fixedBytes(type.token)) {
        type.largest = bytes;
        value = copied(in.take(bytes));
        return true;
    }
    switch (type.token) {
    case 0x1F:
        return true;
    case 0x26:
    case 0x68:
    case 0x6D:
    case 0x6E:
    case 0x6F:
        type.largest = in.u8();
        value = shortValue(in);
        return true;
    case 0x6A:
    case 0x6C:
        type.largest = in.u8();
        type.precision = in.u8();
        type.scale = in.u8();
        value = shortValue(in);
        return true;
    case 0x28:
        value = shortValue(in);
        return true;
    case 0x2A:
        type.scale = in.u8();
        value = shortValue(in);
        return true;
    case 0xA5:
    case 0xAD:
    case 0xA7:
    case 0xAF:
    case 0xE7:
    case 0xEF: {
        type.largest = in.u16();
        in.take(type.token == 0xA5 || type.token == 0xAD ? 0 : 5);
        if (type.largest == kMax) {
            value = chunkedValue(in);
            return true;
        }
        const std::uint16_t length = in.u16();
        value = length == kMax ? WireValue() : copied(in.take(length));
        return true;
    }
    case 0x22:
    case 0x23:
    case 0x63: {
        type.largest = in.u32();
        in.take(type.token == 0x22 ? 0 : 5);
        const std::uint32_t length = in.u32();
        value = length == 0xFFFFFFFF ? WireValue() : copied(in.take(length));
        return true;
    }
    default:
        return false;
    }
}

std::string typeName(const WireType& type) {
    constexpr std::uint32_t kLongest = 8000;
    const bool small = type.largest == 4;
    switch (type.token) {
    case 0x30:
    case 0x34:
    case 0x38:
    case 0x7F:
    case 0x26:
        return type.largest == 1 ? "tinyint" : type.largest == 2 ? "smallint" : small ? "int" : "bigint";
    case 0x32:
    case 0x68:
        return "bit";
    case 0x3B:
    case 0x3E:
    case 0x6D:
        return small ? "real" : "float";
    case 0x3C:
    case 0x7A:
    case 0x6E:
        return small ? "smallmoney" : "money";
    case 0x3A:
    case 0x3D:
    case 0x6F:
        return small ? "smalldatetime" : "datetime";
    case 0x28:
        return "date";
    case 0x2A:
        return "datetime2(" + std::to_string(type.scale) + ")";
    case 0x6A:
    case 0x6C:
        return "decimal(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
    case 0xA5:
        return sized("varbinary", type.largest, kLongest);
    case 0xAD:
        return sized("binary", type.largest, kLongest);
    case 0xA7:
        return sized("varchar", type.largest, kLongest);
    case 0xAF:
        return sized("char", type.largest, kLongest);
    case 0xE7:
        return sized("nvarchar", type.largest / 2, kLongest / 2);
    case 0xEF:
        return sized("nchar", type.largest / 2, kLongest / 2);
    case 0x22:
        return "image";
    case 0x23:
        return "text";
    case 0x63:
        return "ntext";
    default:
        return "int"; // a bare null
    }
}

bool lengthFits(const WireType& type, std::size_t length) {
    switch (type.token) {
    case 0x26:
        return length == type.largest && (length == 1 || length == 2 || length == 4 || length == 8);
    case 0x68:
        return length == 1;
    case 0x6D:
    case 0x6E:
    case 0x6F:
        return length == type.largest && (length == 4 || length == 8);
    case 0x6A:
    case 0x6C:
        return length > 1 && length <= 17 && type.precision >= 1 && type.precision <= 38;
    case 0x28:
        return length == 3;
    case 0x2A:
        return length >= 6 && length <= 8 && type.scale <= 7;
    case 0xE7:
    case 0xEF:
    case 0x63:
        return length % 2 == 0;
    default:
        return true;
    }
}

} // namespace peer

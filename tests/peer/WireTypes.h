#pragma once

#include "peer/Bytes.h"

#include <optional>
#include <string>

namespace peer {

/// What the values of a type are, in however many bytes.
enum class WireKind {
    Null,
    Bit,
    Integer,
    Float,
    Money,
    Decimal,
    DateTime,
    Date,
    DateTime2,
    Text,
    NationalText,
    Binary
};

/// A type as it stands before a value.
struct WireType {
    std::uint8_t token = 0;
    WireKind kind = WireKind::Null;
    const char* name = "";     ///< of texts and binaries
    std::uint32_t largest = 0; ///< bytes
    int precision = 0, scale = 0;
    bool isLarge = false; ///< image, text and ntext, whose name tells no length
};

/// The bytes of a value; nothing for a null.
using WireValue = std::optional<Bytes>;

/// Reads type and value. False for a type whose bytes aren't known.
bool readTyped(ByteReader& in, WireType& type, WireValue& value);
/// As a script writes it.
std::string typeName(const WireType& type);
/// Whether a value of the type may have so many bytes.
bool lengthFits(const WireType& type, std::size_t length);

} // namespace peer

#pragma once

// Reads and writes the protocol's little-endian bytes; reading is checked for bounds.

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace peer {

using Bytes = std::vector<std::uint8_t>;

/// The other side sent something that isn't a message of the protocol. The connection is closed.
class ProtocolError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class ByteReader {
public:
    explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::size_t left() const { return bytes_.size() - place_; }
    std::size_t place() const { return place_; }
    std::uint8_t u8() { return take(1)[0]; }
    std::uint16_t u16() { return static_cast<std::uint16_t>(number(2)); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(number(4)); }
    std::uint64_t u64() { return number(8); }
    std::uint16_t u16BigEndian() {
        const auto two = take(2);
        return static_cast<std::uint16_t>(two[0] << 8 | two[1]);
    }
    std::span<const std::uint8_t> take(std::size_t count) {
        if (count > left()) {
            throw ProtocolError("message ends early");
        }
        const auto piece = bytes_.subspan(place_, count);
        place_ += count;
        return piece;
    }
    /// The bytes at another place of the same message.
    std::span<const std::uint8_t> at(std::size_t offset, std::size_t count) const {
        if (offset > bytes_.size() || count > bytes_.size() - offset) {
            throw ProtocolError("offset outside the message");
        }
        return bytes_.subspan(offset, count);
    }
    std::string ucs2(std::size_t characters);

private:
    std::uint64_t number(std::size_t count) {
        std::uint64_t value = 0;
        const auto piece = take(count);
        for (std::size_t i = 0; i < count; ++i) {
            value |= static_cast<std::uint64_t>(piece[i]) << (8 * i);
        }
        return value;
    }

    std::span<const std::uint8_t> bytes_;
    std::size_t place_ = 0;
};

class ByteWriter {
public:
    Bytes bytes;

    ByteWriter& u8(std::uint8_t value) { return number(value, 1); }
    ByteWriter& u16(std::uint16_t value) { return number(value, 2); }
    ByteWriter& u32(std::uint32_t value) { return number(value, 4); }
    ByteWriter& u64(std::uint64_t value) { return number(value, 8); }
    ByteWriter& u16BigEndian(std::uint16_t value) {
        return u8(static_cast<std::uint8_t>(value >> 8)).u8(static_cast<std::uint8_t>(value));
    }
    ByteWriter& raw(std::span<const std::uint8_t> piece) {
        bytes.insert(bytes.end(), piece.begin(), piece.end());
        return *this;
    }
    /// UTF-16 without its length.
    ByteWriter& ucs2(std::string_view text);
    /// The length in characters as one byte, then UTF-16; cut where the length doesn't fit.
    ByteWriter& shortText(std::string_view text);
    /// The same with a length of two bytes.
    ByteWriter& longText(std::string_view text);

private:
    ByteWriter& number(std::uint64_t value, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        }
        return *this;
    }
};

std::u16string toUtf16(std::string_view text);
/// Unpaired surrogates become U+FFFD.
std::string toUtf8(std::u16string_view text);

} // namespace peer

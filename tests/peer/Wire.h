#pragma once

// Messages of a client, for the tests of the server's side and for the seeds of its fuzz target.

#include "peer/Packets.h"

#include <string>
#include <utility>

namespace peer::wire {

inline constexpr std::uint8_t kWhole = 1; ///< status: the packet ends its message

inline Bytes packet(std::uint8_t type, std::uint8_t status, const Bytes& body) {
    ByteWriter out;
    out.u8(type).u8(status).u16BigEndian(static_cast<std::uint16_t>(body.size() + kHeaderBytes)).u32(0).raw(body);
    return std::move(out.bytes);
}

/// A batch without headers, as a login of version 7.1 sends it.
inline Bytes batch(const std::string& text) {
    return packet(1, kWhole, ByteWriter().ucs2(text).bytes);
}

/// A login record; by default of version 7.1, which has no headers before its requests.
inline Bytes login(const std::string& user, const std::string& password, const std::string& database,
                   std::uint32_t version = 0x71000001) {
    constexpr std::size_t kFixed = 86;
    ByteWriter texts;
    ByteWriter places;
    const std::string fields[] = {"host", user, password, "app", "server", "", "", "", database};
    for (const std::string& text : fields) {
        places.u16(static_cast<std::uint16_t>(kFixed + texts.bytes.size()));
        places.u16(static_cast<std::uint16_t>(toUtf16(text).size()));
        const std::size_t begin = texts.bytes.size();
        texts.ucs2(text);
        if (&text == &fields[2]) {
            for (std::size_t i = begin; i < texts.bytes.size(); ++i) {
                const std::uint8_t byte = texts.bytes[i];
                texts.bytes[i] = static_cast<std::uint8_t>((byte << 4 | byte >> 4) ^ 0xA5);
            }
        }
    }
    ByteWriter out;
    out.u32(static_cast<std::uint32_t>(kFixed + texts.bytes.size())).u32(version).u32(4096);
    out.raw(Bytes(24, 0)).raw(places.bytes);
    out.raw(Bytes(kFixed - out.bytes.size(), 0)).raw(texts.bytes);
    return std::move(out.bytes);
}

} // namespace peer::wire

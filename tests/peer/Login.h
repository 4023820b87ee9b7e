#pragma once

#include "peer/Bytes.h"

#include <string>

namespace peer {

/// What a client says of itself before it may ask anything.
struct LoginRecord {
    std::uint32_t version = 0; ///< 0x71000001 … 0x74000004
    std::uint32_t packetSize = 4096;
    std::string host, user, password, application, server, database;
    bool integrated = false;

    bool atLeast72() const { return version >= 0x72000000; }
};

/// Throws ProtocolError for a record that points outside itself or asks for a version before 7.1.
LoginRecord readLogin(std::span<const std::uint8_t> message);

/// The answer to a pre-login: our version, and that nothing is encrypted here.
Bytes answerPreLogin(std::span<const std::uint8_t> message);

} // namespace peer

#pragma once

#include "peer/Bytes.h"

#include <string>

namespace peer {

/// The first message of a client, with the user and the settings of the connection.
struct LoginRecord {
    std::uint32_t version = 0; ///< 0x71000001 … 0x72090002
    std::uint32_t packetSize = 4096;
    std::string host, user, password, application, server, database;
    bool integrated = false;

    bool atLeast72() const { return version >= 0x72000000; }
};

/// Throws ProtocolError for a record that points outside itself or asks for a version before 7.1.
LoginRecord readLogin(std::span<const std::uint8_t> message);

/// The answer to a pre-login: the server's version, and that it doesn't encrypt.
Bytes answerPreLogin(std::span<const std::uint8_t> message);

} // namespace peer

#pragma once

#include "peer/Bytes.h"

#include <functional>
#include <optional>

namespace peer {

enum class PacketType : std::uint8_t {
    Batch = 1,
    Rpc = 3,
    Response = 4,
    Attention = 6,
    Bulk = 7,
    TransactionManager = 14,
    Login = 16,
    PreLogin = 18
    // Others are read too: who knows no such request refuses it.
};

inline constexpr std::size_t kHeaderBytes = 8;
inline constexpr std::size_t kLargestPacket = 32767;
inline constexpr std::size_t kLargestMessage = 64U << 20;

struct Message {
    PacketType type;
    Bytes body;
    bool ignored = false; ///< its sender thought better of it
    enum class Reset { None, All, AllButTransaction } reset = Reset::None;
};

/// Puts messages together from the pieces that the network delivers. Throws ProtocolError for invalid ones.
class PacketReader {
public:
    void feed(std::span<const std::uint8_t> bytes);
    /// The next whole message, nothing while more bytes are needed.
    std::optional<Message> next();

private:
    Bytes buffer_;
    std::optional<PacketType> type_;
    Bytes body_;
    Message::Reset reset_ = Message::Reset::None;
};

/// A message cut into packets of the agreed size; with `whole` false more of the message follows.
Bytes packets(PacketType type, std::span<const std::uint8_t> body, std::size_t packetSize, bool whole = true);

} // namespace peer

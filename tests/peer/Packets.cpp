#include "peer/Packets.h"

#include <algorithm>

namespace peer {

namespace {

constexpr std::uint8_t kEndOfMessage = 0x01;
constexpr std::uint8_t kIgnoreMessage = 0x02;

PacketType knownType(std::uint8_t type) {
    switch (static_cast<PacketType>(type)) {
    case PacketType::Batch:
    case PacketType::Rpc:
    case PacketType::Attention:
    case PacketType::Bulk:
    case PacketType::TransactionManager:
    case PacketType::Login:
    case PacketType::PreLogin:
        return static_cast<PacketType>(type);
    case PacketType::Response:
        break;
    }
    throw ProtocolError("unknown packet type");
}

} // namespace

void PacketReader::feed(std::span<const std::uint8_t> bytes) {
    buffer_.insert(buffer_.end(), bytes.begin(), bytes.end());
}

std::optional<Message> PacketReader::next() {
    while (buffer_.size() >= kHeaderBytes) {
        const PacketType type = knownType(buffer_[0]);
        const std::uint8_t status = buffer_[1];
        const std::size_t length = static_cast<std::size_t>(buffer_[2]) << 8 | buffer_[3];
        if (length < kHeaderBytes || length > kLargestPacket) {
            throw ProtocolError("packet of an impossible length");
        }
        if (type_ && *type_ != type) {
            throw ProtocolError("packets of two messages mixed");
        }
        if (buffer_.size() < length) {
            return std::nullopt;
        }
        if (body_.size() + length > kLargestMessage) {
            throw ProtocolError("message too long");
        }
        const auto packet = buffer_.begin() + static_cast<std::ptrdiff_t>(length);
        body_.insert(body_.end(), buffer_.begin() + kHeaderBytes, packet);
        buffer_.erase(buffer_.begin(), packet);
        type_ = type;
        if (!(status & kEndOfMessage)) {
            continue;
        }
        Message message{type, std::move(body_)};
        body_ = {};
        type_.reset();
        if (!(status & kIgnoreMessage)) {
            return message;
        }
    }
    return std::nullopt;
}

Bytes packets(PacketType type, std::span<const std::uint8_t> body, std::size_t packetSize, bool whole) {
    ByteWriter out;
    const std::size_t room = packetSize - kHeaderBytes;
    std::uint8_t number = 1;
    std::size_t place = 0;
    do {
        const std::size_t piece = std::min(room, body.size() - place);
        const bool last = whole && place + piece == body.size();
        out.u8(static_cast<std::uint8_t>(type)).u8(last ? kEndOfMessage : 0);
        out.u16BigEndian(static_cast<std::uint16_t>(piece + kHeaderBytes)).u16(0).u8(number++).u8(0);
        out.raw(body.subspan(place, piece));
        place += piece;
    } while (place < body.size());
    return std::move(out.bytes);
}

} // namespace peer

#include "peer/Packets.h"

#include <algorithm>
#include <utility>

namespace peer {

namespace {

constexpr std::uint8_t kEndOfMessage = 0x01;
constexpr std::uint8_t kIgnoreMessage = 0x02;

constexpr std::uint8_t kReset = 0x08;
constexpr std::uint8_t kResetButTransaction = 0x10;

PacketType requestType(std::uint8_t type) {
    if (type == 0 || static_cast<PacketType>(type) == PacketType::Response) {
        throw ProtocolError("no type of a request");
    }
    return static_cast<PacketType>(type);
}

Message::Reset resetOf(std::uint8_t status) {
    return status & kReset                 ? Message::Reset::All
           : status & kResetButTransaction ? Message::Reset::AllButTransaction
                                           : Message::Reset::None;
}

} // namespace

void PacketReader::feed(std::span<const std::uint8_t> bytes) {
    buffer_.insert(buffer_.end(), bytes.begin(), bytes.end());
}

std::optional<Message> PacketReader::next() {
    while (buffer_.size() >= kHeaderBytes) {
        const PacketType type = requestType(buffer_[0]);
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
        if (!type_) {
            reset_ = resetOf(status);
        }
        type_ = type;
        if (status & kEndOfMessage) {
            type_.reset();
            return Message{type, std::exchange(body_, {}), (status & kIgnoreMessage) != 0, reset_};
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

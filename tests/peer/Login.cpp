#include "peer/Login.h"

#include <algorithm>

namespace peer {

namespace {

constexpr std::uint32_t kOldestVersion = 0x71000000;
constexpr std::uint32_t kNewestVersion = 0x72090002; // later ones have types that the dialect hasn't
constexpr std::uint8_t kIntegratedSecurity = 0x80;
constexpr std::uint8_t kEncryptionNotSupported = 0x02;

std::string textAt(const ByteReader& record, std::size_t offset, std::size_t characters, bool scrambled) {
    const auto bytes = record.at(offset, characters * 2);
    Bytes clear(bytes.begin(), bytes.end());
    if (scrambled) {
        std::transform(clear.begin(), clear.end(), clear.begin(), [](std::uint8_t byte) {
            byte ^= 0xA5;
            return static_cast<std::uint8_t>(byte << 4 | byte >> 4);
        });
    }
    return ByteReader(clear).ucs2(characters);
}

} // namespace

LoginRecord readLogin(std::span<const std::uint8_t> message) {
    ByteReader in(message);
    LoginRecord login;
    if (in.u32() > message.size()) {
        throw ProtocolError("login record longer than its message");
    }
    login.version = in.u32();
    if (login.version < kOldestVersion) {
        throw ProtocolError("protocol version too old");
    }
    login.version = std::min(login.version, kNewestVersion);
    login.packetSize = std::clamp<std::uint32_t>(in.u32(), 512, 32767);
    in.take(12); // program version, process, connection
    in.u8();
    login.integrated = in.u8() & kIntegratedSecurity;
    in.take(10); // type flags, further flags, time zone, locale

    std::string* const fields[] = {&login.host, &login.user, &login.password, &login.application, &login.server,
                                   nullptr,     nullptr,     nullptr,         &login.database};
    for (std::string* field : fields) {
        const std::uint16_t offset = in.u16();
        const std::uint16_t characters = in.u16();
        if (field) {
            *field = textAt(in, offset, characters, field == &login.password);
        }
    }
    return login;
}

Bytes answerPreLogin(std::span<const std::uint8_t> message) {
    ByteReader in(message);
    while (in.left() > 0 && in.u8() != 0xFF) {
        const std::uint16_t offset = in.u16BigEndian();
        const std::uint16_t length = in.u16BigEndian();
        in.at(offset, length);
    }

    struct Option {
        std::uint8_t token;
        Bytes data;
    };
    const Option options[] = {
        {0, {10, 50, 0x06, 0x40, 0, 0}}, {1, {kEncryptionNotSupported}}, {2, {0}}, {3, {}}, {4, {0}}};
    ByteWriter head;
    ByteWriter data;
    const std::size_t headBytes = std::size(options) * 5 + 1;
    for (const Option& option : options) {
        head.u8(option.token);
        head.u16BigEndian(static_cast<std::uint16_t>(headBytes + data.bytes.size()));
        head.u16BigEndian(static_cast<std::uint16_t>(option.data.size()));
        data.raw(option.data);
    }
    head.u8(0xFF).raw(data.bytes);
    return std::move(head.bytes);
}

} // namespace peer

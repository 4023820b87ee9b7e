// A whole connection of a client with the server: whatever the client sends is refused or answered completely, in whole
// packets. The first byte chooses what is sent first (nothing, or a login of 7.1 or of 7.4), the second how the rest is
// cut into pieces. An empty corpus folder is filled with real requests as seeds.

#include "engine/fuzz/FuzzInstance.h"
#include "peer/Client.h"
#include "peer/Wire.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kVersions[] = {0x71000001, 0x74000004};

/// Sends its bytes in pieces and checks the packets that come back.
class Wire : public peer::Channel {
public:
    Wire(peer::Bytes sent, std::size_t piece) : sent_(std::move(sent)), piece_(piece) {}

    peer::Bytes read() override {
        const std::size_t count = std::min(piece_, sent_.size() - place_);
        const auto begin = sent_.begin() + static_cast<std::ptrdiff_t>(place_);
        place_ += count;
        return {begin, begin + static_cast<std::ptrdiff_t>(count)};
    }
    void write(std::span<const std::uint8_t> bytes) override {
        while (!bytes.empty()) {
            needed(bytes.size() >= peer::kHeaderBytes && bytes[0] == static_cast<int>(peer::PacketType::Response));
            const std::size_t length = static_cast<std::size_t>(bytes[2]) << 8 | bytes[3];
            needed(length >= peer::kHeaderBytes && length <= bytes.size());
            const auto body = bytes.subspan(peer::kHeaderBytes, length - peer::kHeaderBytes);
            answer_.insert(answer_.end(), body.begin(), body.end());
            if (bytes[1] & peer::wire::kWhole) {
                needed(isGreeting() || endsWithDone(9) || endsWithDone(13));
                answer_.clear();
            }
            bytes = bytes.subspan(length);
        }
    }
    bool waiting() override { return place_ < sent_.size(); }

private:
    static void needed(bool promise) {
        if (!promise) {
            std::abort();
        }
    }
    bool isGreeting() const { return !answer_.empty() && answer_[0] == 0; }
    /// Whether the last token says that nothing follows; its length depends on the version.
    bool endsWithDone(std::size_t length) const {
        if (answer_.size() < length) {
            return false;
        }
        const auto token = std::span(answer_).last(length);
        return (token[0] == 0xFD || token[0] == 0xFE) && !(token[1] & peer::done::kMore);
    }

    peer::Bytes sent_;
    std::size_t piece_;
    std::size_t place_ = 0;
    peer::Bytes answer_; ///< received so far
};

peer::Bytes joined(std::initializer_list<peer::Bytes> parts) {
    peer::Bytes all;
    for (const peer::Bytes& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

peer::Bytes loginPacket(std::uint32_t version) {
    return peer::wire::packet(16, peer::wire::kWhole, peer::wire::login("sa", "segreta", "prova", version));
}

/// The headers of a request of 7.2 and later: the transaction that it runs in.
peer::Bytes headed(const peer::Bytes& request) {
    return joined({peer::ByteWriter().u32(22).u32(18).u16(2).u64(0).u32(1).bytes, request});
}

peer::ByteWriter& wideArgument(peer::ByteWriter& out, std::string_view name, std::string_view text) {
    const auto bytes = static_cast<std::uint16_t>(peer::toUtf16(text).size() * 2);
    return out.shortText(name).u8(0).u8(0xE7).u16(8000).raw(peer::Bytes(5, 0)).u16(bytes).ucs2(text);
}

peer::Bytes call(std::uint16_t procedure, bool handle) {
    peer::ByteWriter out;
    out.u16(0xFFFF).u16(procedure).u16(0);
    if (handle) {
        out.shortText("").u8(1).u8(0x26).u8(4).u8(4).u32(1);
    }
    if (procedure == 13 || procedure == 11) {
        wideArgument(out, "", "@a nvarchar(20), @b int");
    }
    if (procedure != 12 && procedure != 15) {
        wideArgument(out, "", "select * from tipi where n = @a or id = @b");
    }
    if (procedure == 10) {
        wideArgument(out, "", "@a nvarchar(20), @b int");
    }
    wideArgument(out, "@a", "Città");
    out.shortText("@b").u8(0).u8(0x26).u8(4).u8(4).u32(1);
    out.shortText("@c").u8(0).u8(0x6D).u8(8).u8(8).u64(0x3FF8000000000000);
    out.shortText("@d").u8(0).u8(0xA7).u16(10).raw(peer::Bytes(5, 0)).u16(2).u8('x').u8('y');
    return std::move(out.bytes);
}

void writeSeeds(const fs::path& folder) {
    std::vector<peer::Bytes> requests; // one packet each, without headers
    for (const char* text :
         {"select * from tipi", "select 1; select N'x'; print 'detto'", "update tipi set d = d + 1 where id = 1",
          "insert into tipi (n) values (N'nuovo')", "select * from manca", "begin transaction; rollback transaction",
          "if @@trancount > 0 commit transaction", "use master", "create database altra", "exec sp_configure"}) {
        requests.push_back(joined({{1}, peer::ByteWriter().ucs2(text).bytes}));
    }
    for (const std::uint16_t procedure : {2, 10, 11, 12, 13, 15}) {
        requests.push_back(joined({{3}, call(procedure, procedure != 10)}));
    }
    for (const std::uint16_t request : {5, 7, 8}) {
        requests.push_back(joined({{14}, peer::ByteWriter().u16(request).u16(0).bytes}));
    }

    int number = 0;
    const auto write = [&](const peer::Bytes& bytes) {
        std::ofstream file(folder / ("seed" + std::to_string(number++)), std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    };
    for (const peer::Bytes& request : requests) {
        const peer::Bytes body(request.begin() + 1, request.end());
        write(joined({{0, 255}, peer::wire::packet(request[0], peer::wire::kWhole, body)}));
        write(joined({{1, 255}, peer::wire::packet(request[0], peer::wire::kWhole, headed(body))}));
    }
    const peer::Bytes greeting =
        peer::wire::packet(18, peer::wire::kWhole, {0, 0, 11, 0, 6, 1, 0, 17, 0, 1, 0xFF, 9, 0, 0, 0, 0, 0, 0});
    write(joined({{2, 20}, greeting, loginPacket(kVersions[0]), peer::wire::batch("select * from tipi")}));
    const peer::Bytes attention = peer::wire::packet(6, peer::wire::kWhole, {});
    const peer::Bytes many = peer::wire::batch("select * from molte");
    write(joined({{0, 200}, peer::wire::batch("select * from tipi"), attention}));
    write(joined({{0, 7}, many, attention}));
    write(joined({{0, 7}, many, many}));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    for (int i = 1; i < *argc; ++i) {
        const fs::path folder((*argv)[i]);
        if (fs::is_directory(folder) && fs::is_empty(folder)) {
            writeSeeds(folder);
            break;
        }
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static engine::fuzz::FuzzInstance instance;
    if (size < 2) {
        return 0;
    }
    peer::Bytes sent;
    if (data[0] < std::size(kVersions)) {
        sent = loginPacket(kVersions[data[0]]);
    }
    const std::size_t piece = data[1] == 255 ? 16384 : data[1] + 1U;
    sent.insert(sent.end(), data + 2, data + size);
    Wire wire(std::move(sent), piece);
    try {
        peer::Client(wire, instance.get()).serve();
    } catch (const peer::ProtocolError&) {
        return 0;
    }
    return 0;
}

#include "support/CutWire.h"

#include <algorithm>
#include <array>
#include <vector>

namespace support {

using loopback::Socket;

namespace {

/// The connections with a caller and, for it, with the server.
struct Pair {
    Socket caller;
    Socket server;
};

} // namespace

CutWire::CutWire(int port) : server_(port) {
    thread_ = std::thread([this] { run(); });
}

CutWire::~CutWire() {
    over_ = true;
    loopback::call(port_); // ends the thread's wait, so that it sees the end
    thread_.join();
}

void CutWire::cutAfter(long bytes) {
    passed_ = 0;
    limit_ = bytes;
}

void CutWire::mend() {
    limit_ = -1;
    passed_ = 0;
    cut_ = false;
}

void CutWire::run() {
    std::vector<Pair> pairs;
    bool cut = false; // a copy for this turn, since the test may mend the wire meanwhile
    // Passes what has arrived; false where the connection has ended.
    const auto pass = [&](const Socket& from, const Socket& to, bool answer) {
        std::array<char, 4096> bytes{};
        auto count = static_cast<long>(from.receive(bytes.data(), bytes.size()));
        if (count == 0) {
            return false;
        }
        if (const long limit = limit_; answer && limit >= 0) {
            count = std::min(count, limit - passed_);
            if (passed_ + count >= limit) {
                cut_ = cut = true;
            }
        }
        if (answer) {
            passed_ += count;
        }
        return to.send(bytes.data(), static_cast<std::size_t>(std::max(count, 0L)));
    };
    while (!over_) {
        std::vector<const Socket*> waiting{&listener_};
        for (const Pair& pair : pairs) {
            waiting.push_back(&pair.caller);
            waiting.push_back(&pair.server);
        }
        const std::vector<bool> arrived = loopback::arrivals(waiting);
        cut = cut_;
        std::vector<Pair> kept;
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            Pair& pair = pairs[i];
            const bool stands = !cut && (!arrived[1 + 2 * i] || pass(pair.caller, pair.server, false)) &&
                                (!arrived[2 + 2 * i] || pass(pair.server, pair.caller, true));
            if (stands) {
                kept.push_back(std::move(pair));
            }
        }
        pairs = std::move(kept);
        if (cut) {
            pairs.clear();
        }
        if (arrived[0]) {
            Pair pair{loopback::accept(listener_), loopback::call(server_)};
            if (!cut && pair.caller && pair.server) {
                pairs.push_back(std::move(pair));
            }
        }
    }
}

} // namespace support

#include "support/CutWire.h"

#include "support/Loopback.h"

#include <algorithm>
#include <array>
#include <poll.h>
#include <vector>

namespace support {

namespace {

/// The sockets to a caller and, for it, to the server.
struct Pair {
    int caller;
    int server;
};

void hangUp(const Pair& pair) {
    ::close(pair.caller);
    ::close(pair.server);
}

bool sendAll(int to, const char* bytes, ssize_t count) {
    while (count > 0) {
        const ssize_t sent = ::send(to, bytes, static_cast<std::size_t>(count), MSG_NOSIGNAL);
        if (sent <= 0) {
            return false;
        }
        bytes += sent;
        count -= sent;
    }
    return true;
}

} // namespace

CutWire::CutWire(int port) : server_(port), listener_(loopback::listener()), port_(loopback::portOf(listener_)) {
    thread_ = std::thread([this] { run(); });
}

CutWire::~CutWire() {
    over_ = true;
    ::close(loopback::call(port_)); // a call ends the thread's wait, so that it sees the end
    thread_.join();
    ::close(listener_);
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
    const auto pass = [&](int from, int to, bool answer) {
        std::array<char, 4096> bytes{};
        ssize_t count = ::recv(from, bytes.data(), bytes.size(), 0);
        if (count <= 0) {
            return false;
        }
        if (const long limit = limit_; answer && limit >= 0) {
            count = std::min<ssize_t>(count, limit - passed_);
            if (passed_ + count >= limit) {
                cut_ = cut = true;
            }
        }
        if (answer) {
            passed_ += count;
        }
        return sendAll(to, bytes.data(), count);
    };
    while (!over_) {
        std::vector<pollfd> waiting{{listener_, POLLIN, 0}};
        for (const Pair& pair : pairs) {
            waiting.push_back({pair.caller, POLLIN, 0});
            waiting.push_back({pair.server, POLLIN, 0});
        }
        ::poll(waiting.data(), waiting.size(), -1);
        cut = cut_;
        std::vector<Pair> kept;
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const Pair& pair = pairs[i];
            const bool stands = !cut && (waiting[1 + 2 * i].revents == 0 || pass(pair.caller, pair.server, false)) &&
                                (waiting[2 + 2 * i].revents == 0 || pass(pair.server, pair.caller, true));
            if (stands) {
                kept.push_back(pair);
            } else {
                hangUp(pair);
            }
        }
        pairs = std::move(kept);
        if (cut) {
            for (const Pair& pair : pairs) {
                hangUp(pair);
            }
            pairs.clear();
        }
        if (waiting[0].revents != 0) {
            const Pair pair{loopback::accept(listener_), loopback::call(server_)};
            if (cut || pair.server < 0) {
                hangUp(pair);
            } else {
                pairs.push_back(pair);
            }
        }
    }
    for (const Pair& pair : pairs) {
        hangUp(pair);
    }
}

} // namespace support

#pragma once

#include "support/Loopback.h"

#include <string>

namespace support {

/// A place on loopback where every caller gets through to somebody who never says a word.
class SilentServer {
public:
    SilentServer() = default;
    ~SilentServer() { ::close(listener_); }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    /// As connection texts name it: address and port.
    std::string server() const { return "127.0.0.1," + std::to_string(loopback::portOf(listener_)); }

    /// How many have called since this was last asked.
    int callers() const {
        int count = 0;
        for (int caller = loopback::accept(listener_); caller >= 0; caller = loopback::accept(listener_), ++count) {
            ::close(caller);
        }
        return count;
    }

private:
    int listener_ = loopback::listener();
};

} // namespace support

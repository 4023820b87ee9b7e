#pragma once

#include "support/Loopback.h"

#include <string>

namespace support {

/// A server on loopback that accepts connections and never answers.
class SilentServer {
public:
    SilentServer() = default;
    ~SilentServer() { ::close(listener_); }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    /// Address and port, as a connection text names them.
    std::string server() const { return "127.0.0.1," + std::to_string(loopback::portOf(listener_)); }

    /// How many have connected since the last call of this function.
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

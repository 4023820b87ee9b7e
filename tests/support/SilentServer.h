#pragma once

#include "support/loopback/Loopback.h"

#include <string>

namespace support {

/// A server on loopback that accepts connections and never answers.
class SilentServer {
public:
    /// Address and port, as a connection text names them.
    std::string server() const { return "127.0.0.1," + std::to_string(loopback::portOf(listener_)); }

    /// How many have connected since the last call of this function.
    int callers() const {
        int count = 0;
        while (loopback::accept(listener_)) {
            ++count;
        }
        return count;
    }

private:
    loopback::Socket listener_ = loopback::listener();
};

} // namespace support

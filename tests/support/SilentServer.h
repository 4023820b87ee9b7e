#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <stdexcept>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace support {

/// A place on loopback where every caller gets through to somebody who never says a word.
class SilentServer {
public:
    SilentServer() : listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
        constexpr int kCallers = 64;
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        if (listener_ < 0 || ::bind(listener_, generic, length) < 0 || ::listen(listener_, kCallers) < 0 ||
            ::getsockname(listener_, generic, &length) < 0)
            throw std::runtime_error("No place to listen on loopback.");
        port_ = ntohs(address.sin_port);
    }
    ~SilentServer() { ::close(listener_); }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    /// As connection texts name it: address and port.
    std::string server() const { return "127.0.0.1," + std::to_string(port_); }

    /// How many have called since this was last asked.
    int callers() const {
        int count = 0;
        for (int caller = accept(); caller >= 0; caller = accept(), ++count)
            ::close(caller);
        return count;
    }

private:
    int accept() const { return ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC); }

    int listener_;
    int port_ = 0;
};

} // namespace support

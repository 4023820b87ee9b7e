#pragma once

#include "support/Loopback.h"

#include <array>
#include <cstdint>
#include <string>

namespace support {

/// The service that drivers ask for the ports of a machine's instances, on a loopback address of this process. It never
/// answers.
class SilentResolver {
public:
    SilentResolver() {
        constexpr int kPort = 1434;
        sockaddr_in place = loopback::address(kPort);
        place.sin_addr.s_addr = htonl(address_);
        if (::bind(handle_, reinterpret_cast<sockaddr*>(&place), sizeof place) < 0) {
            throw std::runtime_error("No place for a resolver on loopback.");
        }
    }
    ~SilentResolver() { ::close(handle_); }
    SilentResolver(const SilentResolver&) = delete;
    SilentResolver& operator=(const SilentResolver&) = delete;

    std::string address() const {
        std::array<char, INET_ADDRSTRLEN> text{};
        const in_addr place{htonl(address_)};
        return ::inet_ntop(AF_INET, &place, text.data(), text.size());
    }

    /// How often it was asked since the last call of this function.
    int questions() const {
        int count = 0;
        std::array<char, 512> question{};
        while (::recv(handle_, question.data(), question.size(), 0) >= 0) {
            ++count;
        }
        return count;
    }

private:
    /// 127.x.y.z from the process id, so that tests that run at the same time have different addresses.
    std::uint32_t address_ = INADDR_LOOPBACK + 1 + (static_cast<std::uint32_t>(::getpid()) & 0x3fffffU);
    int handle_ = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
};

} // namespace support

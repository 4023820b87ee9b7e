#pragma once

#include "os/Machine.h"
#include "support/loopback/Loopback.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <string>

namespace support {

/// The service that drivers ask for the ports of a machine's instances, on a loopback address of this process. It never
/// answers.
class SilentResolver {
public:
    std::string address() const {
        const auto part = [this](unsigned bits) { return std::to_string((address_ >> bits) & 0xffU); };
        return part(24) + "." + part(16) + "." + part(8) + "." + part(0);
    }

    /// How often it was asked since the last call of this function.
    int questions() const {
        int count = 0;
        std::array<char, 512> question{};
        while (loopback::arrives(socket_, std::chrono::milliseconds(0)) &&
               socket_.receive(question.data(), question.size()) > 0) {
            ++count;
        }
        return count;
    }

private:
    static constexpr std::uint32_t kFirst = 0x7f000002; // 127.0.0.2
    static constexpr int kPort = 1434;

    /// 127.x.y.z from the process id, so that tests that run at the same time have different addresses.
    std::uint32_t address_ = kFirst + (static_cast<std::uint32_t>(os::processNumber()) & 0x3fffffU);
    loopback::Socket socket_ = loopback::datagrams(address_, kPort);
};

} // namespace support

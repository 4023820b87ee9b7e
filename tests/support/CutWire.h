#pragma once

#include <atomic>
#include <string>
#include <thread>

namespace support {

/// A wire on loopback between callers and a server there, which can be cut: behind a number of bytes of the server's
/// answers all connections end, and whoever calls then is hung up on, until it is mended. An answer that
/// nobody reads holds up all others.
class CutWire {
public:
    explicit CutWire(int port);
    ~CutWire();
    CutWire(const CutWire&) = delete;
    CutWire& operator=(const CutWire&) = delete;

    /// As connection texts name it: address and port.
    std::string server() const { return "127.0.0.1," + std::to_string(port_); }

    /// Counts anew and cuts once so many bytes have come from the server.
    void cutAfter(long bytes);
    /// Counts anew, and lets everything pass.
    void mend();
    /// Bytes that have come from the server since it counts.
    long passed() const { return passed_; }

private:
    void run();

    int server_;
    int listener_;
    int port_ = 0;
    std::atomic<long> limit_{-1};
    std::atomic<long> passed_{0};
    std::atomic<bool> cut_{false};
    std::atomic<bool> over_{false};
    std::thread thread_;
};

} // namespace support

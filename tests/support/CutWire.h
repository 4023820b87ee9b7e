#pragma once

#include "support/loopback/Loopback.h"

#include <atomic>
#include <string>
#include <thread>

namespace support {

/// A proxy on loopback between callers and a server, which can be cut: after a number of bytes of the server's answers
/// all connections are closed, and so are new ones, until it is mended. It has one thread, so an answer that isn't read
/// blocks all others.
class CutWire {
public:
    explicit CutWire(int port);
    ~CutWire();
    CutWire(const CutWire&) = delete;
    CutWire& operator=(const CutWire&) = delete;

    /// Address and port, as a connection text names them.
    std::string server() const { return "127.0.0.1," + std::to_string(port_); }

    /// Sets the count to zero, and cuts when that many bytes have come from the server.
    void cutAfter(long bytes);
    /// Sets the count to zero, and lets everything pass.
    void mend();
    /// Bytes that have come from the server since the count was set to zero.
    long passed() const { return passed_; }

private:
    void run();

    int server_;
    loopback::Socket listener_ = loopback::listener();
    int port_ = loopback::portOf(listener_);
    std::atomic<long> limit_{-1};
    std::atomic<long> passed_{0};
    std::atomic<bool> cut_{false};
    std::atomic<bool> over_{false};
    std::thread thread_;
};

} // namespace support

#pragma once

#include "support/Processes.h"

#include <filesystem>
#include <memory>
#include <string>

namespace support {

/// A server of the wire protocol over one instance, on loopback, in a process of its own that ends with the object.
class Peer {
public:
    /// The folder of the instance, and the folder that its paths "C:\…" lie in.
    Peer(std::filesystem::path instance, std::filesystem::path driveC);

    /// As connection texts name it: address and port.
    std::string server() const { return "127.0.0.1," + std::to_string(port_); }
    int port() const { return port_; }

    long long pid() const { return process_->pid(); }
    void kill() { process_->kill(); }
    /// Holds the process still, and lets it go on.
    void freeze() const;
    void thaw() const;
    /// After `kill`: the same databases on the same port.
    void restart() { start(port_); }

private:
    void start(int port);

    std::filesystem::path instance_, driveC_;
    std::unique_ptr<HelperProcess> process_;
    int port_ = 0;
};

} // namespace support

#pragma once

#include "support/Processes.h"

#include <filesystem>
#include <memory>
#include <string>

namespace support {

/// A server of the wire protocol for one instance, on loopback, in a process of its own that ends with this object.
class Peer {
public:
    /// The folder of the instance, and the folder for its paths "C:\…".
    Peer(std::filesystem::path instance, std::filesystem::path driveC);

    /// Address and port, as a connection text names them.
    std::string server() const { return "127.0.0.1," + std::to_string(port_); }
    int port() const { return port_; }

    long long pid() const { return process_->pid(); }
    void kill() { process_->kill(); }
    /// Stops the process, and lets it continue.
    void freeze() const { process_->freeze(); }
    void thaw() const { process_->thaw(); }
    /// After `kill`: starts it again with the same databases on the same port.
    void restart() { start(port_); }

private:
    void start(int port);

    std::filesystem::path instance_, driveC_;
    std::unique_ptr<HelperProcess> process_;
    int port_ = 0;
};

} // namespace support

#pragma once

#include "engine/Instance.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <memory>
#include <string>

namespace ado::test {

/// A server of the wire protocol in a process of its own, with a login "sa" and an empty database Vabodati.
class Peer {
public:
    Peer();

    /// Driver, server, port, user and password, closed by ";".
    std::string connectionString() const;
    int port() const { return port_; }
    const std::filesystem::path& folder() const { return folder_.path(); }

    void addLogin(const std::string& user, const std::string& password) const;

    void kill() { process_->kill(); }
    /// Holds the process still, and lets it go on.
    void freeze() const;
    void thaw() const;
    /// After `kill`: the same databases on the same port.
    void restart();

private:
    engine::InstanceOptions options() const;
    void start(int port);

    support::TemporaryFolder folder_;
    std::unique_ptr<support::HelperProcess> process_;
    int port_ = 0;
};

} // namespace ado::test

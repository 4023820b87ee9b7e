#pragma once

#include "support/Peer.h"
#include "support/Road.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace ado::test {

/// A server of its own for one test, at the end of a road, with a login "sa" and an empty database Vabodati.
class TestServer {
public:
    explicit TestServer(support::Road road = support::road());
    TestServer(const TestServer&) = delete;
    TestServer& operator=(const TestServer&) = delete;
    ~TestServer();

    std::string connectionString(const std::string& database = "Vabodati") const;
    /// What another process needs to reach it: arguments of the helper executable.
    std::vector<std::string> helperArguments() const { return {instances().string(), connectionString()}; }

    void addLogin(const std::string& user, const std::string& password) const;
    std::filesystem::path databaseFile() const { return instance() / "Vabodati.mdf"; }
    /// The process behind the wire. On no other road.
    support::Peer& peer() { return *peer_; }

private:
    std::filesystem::path instances() const { return folder_.path() / "istanze"; }
    std::filesystem::path instance() const;

    support::TemporaryFolder folder_;
    std::unique_ptr<support::Peer> peer_;
};

} // namespace ado::test

#pragma once

#include "support/Peer.h"
#include "support/TemporaryFolder.h"
#include "support/TestedDriver.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace ado::test {

/// A server for one test, reached by one driver, with a login "sa" and an empty database Vabodati.
class TestServer {
public:
    explicit TestServer(support::TestedDriver driver = support::testedDriver());
    TestServer(const TestServer&) = delete;
    TestServer& operator=(const TestServer&) = delete;
    ~TestServer();

    std::string connectionString(const std::string& database = "Vabodati") const;
    /// The arguments with which the helper executable reaches this server.
    std::vector<std::string> helperArguments() const { return {instances().string(), connectionString()}; }

    void addLogin(const std::string& user, const std::string& password) const;
    std::filesystem::path databaseFile() const { return instance() / "Vabodati.mdf"; }
    /// The server process. Only with the wire driver.
    support::Peer& peer() { return *peer_; }

private:
    std::filesystem::path instances() const { return folder_.path() / "istanze"; }
    std::filesystem::path instance() const;

    support::TemporaryFolder folder_;
    std::unique_ptr<support::Peer> peer_;
};

} // namespace ado::test

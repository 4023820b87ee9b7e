#pragma once

#include <filesystem>
#include <memory>

namespace peer {

/// Listens on a port of 127.0.0.1 and serves one instance folder, each client in its own thread.
class Server {
public:
    /// `port` 0 means any free one.
    Server(std::filesystem::path instanceFolder, std::filesystem::path driveC, int port = 0);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    int port() const;
    /// Serves until the process is ended.
    void serve();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace peer

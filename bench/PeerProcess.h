#pragma once

#include <filesystem>
#include <string>
#include <sys/types.h>

namespace bench {

/// The server of the wire protocol in its own process, on a free port of the loopback, with a login "sa" and a database
/// "prova". Process and folder are removed with the object.
class PeerProcess {
public:
    /// `program` is the server's executable. Throws std::runtime_error where it doesn't start.
    explicit PeerProcess(const std::string& program);
    ~PeerProcess();
    PeerProcess(const PeerProcess&) = delete;
    PeerProcess& operator=(const PeerProcess&) = delete;

    /// Driver, server, port, user, password and the database.
    std::string connectionString() const;
    const std::filesystem::path& folder() const { return folder_; }

private:
    void start(const std::string& program);

    std::filesystem::path folder_;
    pid_t process_ = -1;
    int port_ = 0;
};

} // namespace bench

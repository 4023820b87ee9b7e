#include "support/Peer.h"

#include <csignal>
#include <stdexcept>
#include <sys/wait.h>
#include <utility>

namespace support {

Peer::Peer(std::filesystem::path instance, std::filesystem::path driveC)
    : instance_(std::move(instance)), driveC_(std::move(driveC)) {
    start(0);
}

void Peer::start(int port) {
    process_ = std::make_unique<HelperProcess>(
        "vabo-peer", std::vector<std::string>{instance_.string(), driveC_.string(), std::to_string(port)});
    const std::string line = process_->readLine().value_or("nothing");
    if (!line.starts_with("port ")) {
        throw std::runtime_error("The peer says: " + line);
    }
    port_ = std::stoi(line.substr(5));
}

void Peer::freeze() const {
    ::kill(static_cast<pid_t>(process_->pid()), SIGSTOP);
    siginfo_t stopped{};
    ::waitid(P_PID, static_cast<id_t>(process_->pid()), &stopped, WSTOPPED | WNOWAIT);
}

void Peer::thaw() const {
    ::kill(static_cast<pid_t>(process_->pid()), SIGCONT);
}

} // namespace support

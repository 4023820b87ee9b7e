#include "ado/Peer.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>

namespace ado::test {

Peer::Peer() {
    const auto instance = engine::Instance::create(folder_.path() / "server", options());
    instance->addLogin("sa", "segreta");
    instance->createDatabase("Vabodati", "", "");
    start(0);
}

engine::InstanceOptions Peer::options() const {
    return {[folder = folder_.path()](std::string_view path) { return folder / path; }};
}

void Peer::addLogin(const std::string& user, const std::string& password) const {
    engine::Instance::open(folder_.path() / "server", options())->addLogin(user, password);
}

void Peer::start(int port) {
    process_ = std::make_unique<support::HelperProcess>(
        "vabo-peer",
        std::vector<std::string>{(folder_.path() / "server").string(), folder_.path().string(), std::to_string(port)});
    const std::string line = process_->readLine().value_or("nothing");
    ASSERT_TRUE(line.starts_with("port ")) << line;
    port_ = std::stoi(line.substr(5));
}

std::string Peer::connectionString() const {
    return "Driver=SQL Server;Server=127.0.0.1;Port=" + std::to_string(port_) + ";UID=sa;PWD=segreta;";
}

void Peer::freeze() const {
    ::kill(static_cast<pid_t>(process_->pid()), SIGSTOP);
    siginfo_t stopped{};
    ::waitid(P_PID, static_cast<id_t>(process_->pid()), &stopped, WSTOPPED | WNOWAIT);
}

void Peer::thaw() const {
    ::kill(static_cast<pid_t>(process_->pid()), SIGCONT);
}

void Peer::restart() {
    start(port_);
}

} // namespace ado::test

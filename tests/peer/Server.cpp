#include "peer/Server.h"

#include "engine/store/Instance.h"
#include "peer/Client.h"
#include "support/loopback/Loopback.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <thread>

namespace peer {

namespace loopback = support::loopback;

namespace {

class Connection : public Channel {
public:
    explicit Connection(const loopback::Socket& socket) : socket_(socket) {}

    Bytes read() override {
        Bytes bytes(16384);
        bytes.resize(socket_.receive(bytes.data(), bytes.size()));
        return bytes;
    }

    void write(std::span<const std::uint8_t> bytes) override {
        if (!socket_.send(bytes.data(), bytes.size())) {
            throw std::runtime_error("the client has gone");
        }
    }

    bool waiting() override { return loopback::arrives(socket_, std::chrono::milliseconds(0)); }

private:
    const loopback::Socket& socket_;
};

std::filesystem::path onDrive(const std::filesystem::path& drive, std::string_view serverPath) {
    std::string path(serverPath.substr(serverPath.size() > 2 && serverPath[1] == ':' ? 3 : 0));
    std::replace(path.begin(), path.end(), '\\', '/');
    return drive / path;
}

} // namespace

struct Server::State {
    std::filesystem::path folder;
    engine::InstanceOptions options;
    loopback::Socket listener;
};

Server::Server(std::filesystem::path instanceFolder, std::filesystem::path driveC, int port)
    : state_(std::make_unique<State>()) {
    state_->folder = std::move(instanceFolder);
    state_->options.mapPath = [drive = std::move(driveC)](std::string_view path) { return onDrive(drive, path); };
    state_->listener = loopback::listener(port);
}

Server::~Server() = default;

int Server::port() const {
    return loopback::portOf(state_->listener);
}

void Server::serve() {
    constexpr std::chrono::milliseconds kForever{-1};
    while (true) {
        loopback::arrives(state_->listener, kForever);
        loopback::Socket caller = loopback::accept(state_->listener);
        if (!caller) {
            continue;
        }
        std::thread([socket = std::move(caller), folder = state_->folder, options = state_->options] {
            Connection connection(socket);
            try {
                Client(connection, engine::Instance::open(folder, options)).serve();
            } catch (const std::exception& error) {
                std::fprintf(stderr, "client dropped: %s\n", error.what());
            }
        }).detach();
    }
}

} // namespace peer

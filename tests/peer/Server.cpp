#include "peer/Server.h"

#include "engine/store/Instance.h"
#include "peer/Client.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/socket.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace peer {

namespace {

class Socket : public Channel {
public:
    explicit Socket(int handle) : handle_(handle) {
        const int yes = 1;
        ::setsockopt(handle_, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    }
    ~Socket() override { ::close(handle_); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    Bytes read() override {
        Bytes bytes(16384);
        ssize_t count = 0;
        do {
            count = ::recv(handle_, bytes.data(), bytes.size(), 0);
        } while (count < 0 && errno == EINTR);
        bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
        return bytes;
    }

    void write(std::span<const std::uint8_t> bytes) override {
        while (!bytes.empty()) {
            const ssize_t count = ::send(handle_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (count < 0 && errno == EINTR) {
                continue;
            }
            if (count <= 0) {
                throw std::runtime_error("the client has gone");
            }
            bytes = bytes.subspan(static_cast<std::size_t>(count));
        }
    }

    bool waiting() override {
        pollfd question{handle_, POLLIN, 0};
        return ::poll(&question, 1, 0) > 0;
    }

private:
    int handle_;
};

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

std::filesystem::path onDrive(const std::filesystem::path& drive, std::string_view serverPath) {
    std::string path(serverPath.substr(serverPath.size() > 2 && serverPath[1] == ':' ? 3 : 0));
    std::replace(path.begin(), path.end(), '\\', '/');
    return drive / path;
}

/// A server that comes back binds its port of before, which somebody's connection may have taken for a while.
void bindListener(int listener, const sockaddr_in& address) {
    constexpr int kMostTries = 200;
    constexpr std::chrono::milliseconds kPause{50};
    for (int tries = 1; ::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) < 0; ++tries) {
        if (errno != EADDRINUSE || tries == kMostTries) {
            fail("bind");
        }
        std::this_thread::sleep_for(kPause);
    }
}

} // namespace

struct Server::State {
    std::filesystem::path folder;
    engine::InstanceOptions options;
    int listener = -1;
    std::uint16_t port = 0;
};

Server::Server(std::filesystem::path instanceFolder, std::filesystem::path driveC, int port)
    : state_(std::make_unique<State>()) {
    state_->folder = std::move(instanceFolder);
    state_->options.mapPath = [drive = std::move(driveC)](std::string_view path) { return onDrive(drive, path); };
    state_->listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (state_->listener < 0) {
        fail("socket");
    }
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    const int yes = 1;
    ::setsockopt(state_->listener, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    bindListener(state_->listener, address);
    if (::listen(state_->listener, 64) < 0) {
        fail("listen");
    }
    socklen_t length = sizeof address;
    if (::getsockname(state_->listener, reinterpret_cast<sockaddr*>(&address), &length) < 0) {
        fail("getsockname");
    }
    state_->port = ntohs(address.sin_port);
}

Server::~Server() {
    ::close(state_->listener);
}

std::uint16_t Server::port() const {
    return state_->port;
}

void Server::serve() {
    while (true) {
        const int handle = ::accept4(state_->listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (handle < 0 && errno == EINTR) {
            continue;
        }
        if (handle < 0) {
            fail("accept");
        }
        std::thread([handle, folder = state_->folder, options = state_->options] {
            Socket socket(handle);
            try {
                Client(socket, engine::Instance::open(folder, options)).serve();
            } catch (const std::exception& error) {
                std::fprintf(stderr, "client dropped: %s\n", error.what());
            }
        }).detach();
    }
}

} // namespace peer

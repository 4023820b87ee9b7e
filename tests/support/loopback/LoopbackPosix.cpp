#include "support/loopback/Loopback.h"

#include <cerrno>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace support::loopback {

namespace {

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

int number(const Socket& socket) {
    return static_cast<int>(socket.handle());
}

sockaddr_in place(std::uint32_t address, int port) {
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(address);
    place.sin_port = htons(static_cast<in_port_t>(port));
    return place;
}

Socket made(int kind) {
    Socket socket(::socket(AF_INET, kind | SOCK_CLOEXEC, 0));
    if (!socket) {
        fail("socket");
    }
    return socket;
}

void bindTo(const Socket& socket, const sockaddr_in& place) {
    constexpr int kMostTries = 200;
    constexpr std::chrono::milliseconds kPause{50};
    for (int tries = 1; ::bind(number(socket), reinterpret_cast<const sockaddr*>(&place), sizeof place) < 0; ++tries) {
        if (errno != EADDRINUSE || tries == kMostTries) {
            fail("bind");
        }
        std::this_thread::sleep_for(kPause);
    }
}

/// Answers are sent at once, however short they are.
void hasten(const Socket& socket) {
    const int yes = 1;
    ::setsockopt(number(socket), IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
}

} // namespace

void Socket::close() {
    if (*this) {
        ::close(static_cast<int>(std::exchange(handle_, kNone)));
    }
}

bool Socket::send(const void* bytes, std::size_t count) const {
    const char* next = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t sent = ::send(number(*this), next, count, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) {
            continue;
        }
        if (sent <= 0) {
            return false;
        }
        next += sent;
        count -= static_cast<std::size_t>(sent);
    }
    return true;
}

std::size_t Socket::receive(void* room, std::size_t size) const {
    ssize_t count = 0;
    do {
        count = ::recv(number(*this), room, size, 0);
    } while (count < 0 && errno == EINTR);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

Socket listener(int port) {
    constexpr int kCallers = 64;
    Socket socket = made(SOCK_STREAM | SOCK_NONBLOCK);
    const int yes = 1;
    ::setsockopt(number(socket), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    bindTo(socket, place(INADDR_LOOPBACK, port));
    if (::listen(number(socket), kCallers) < 0) {
        fail("listen");
    }
    return socket;
}

int portOf(const Socket& socket) {
    sockaddr_in place{};
    socklen_t length = sizeof place;
    if (::getsockname(number(socket), reinterpret_cast<sockaddr*>(&place), &length) < 0) {
        fail("getsockname");
    }
    return ntohs(place.sin_port);
}

Socket accept(const Socket& listener) {
    const int caller = ::accept4(number(listener), nullptr, nullptr, SOCK_CLOEXEC);
    if (caller < 0) {
        if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED) {
            fail("accept");
        }
        return {};
    }
    Socket socket(caller);
    hasten(socket);
    return socket;
}

Socket call(int port) {
    Socket socket = made(SOCK_STREAM);
    const sockaddr_in there = place(INADDR_LOOPBACK, port);
    if (::connect(number(socket), reinterpret_cast<const sockaddr*>(&there), sizeof there) < 0) {
        return {};
    }
    hasten(socket);
    return socket;
}

Socket datagrams(std::uint32_t address, int port) {
    Socket socket = made(SOCK_DGRAM);
    bindTo(socket, place(address, port));
    return socket;
}

bool arrives(const Socket& at, std::chrono::milliseconds patience) {
    pollfd question{number(at), POLLIN, 0};
    return ::poll(&question, 1, static_cast<int>(patience.count())) > 0;
}

std::vector<bool> arrivals(const std::vector<const Socket*>& at) {
    std::vector<pollfd> questions;
    for (const Socket* socket : at) {
        questions.push_back({number(*socket), POLLIN, 0});
    }
    ::poll(questions.data(), questions.size(), -1);
    std::vector<bool> arrived;
    for (const pollfd& question : questions) {
        arrived.push_back(question.revents != 0);
    }
    return arrived;
}

} // namespace support::loopback

#include "support/loopback/Loopback.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <winsock2.h>
#include <ws2tcpip.h>

namespace support::loopback {

namespace {

[[noreturn]] void fail(const char* what) {
    throw std::system_error(WSAGetLastError(), std::system_category(), what);
}

SOCKET number(const Socket& socket) {
    return static_cast<SOCKET>(socket.handle());
}

sockaddr_in place(std::uint32_t address, int port) {
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(address);
    place.sin_port = htons(static_cast<u_short>(port));
    return place;
}

/// Before the first socket of the process is made.
void begin() {
    static const int result = [] {
        WSADATA version{};
        return WSAStartup(MAKEWORD(2, 2), &version);
    }();
    if (result != 0) {
        throw std::system_error(result, std::system_category(), "WSAStartup");
    }
}

Socket made(int kind, int protocol) {
    begin();
    const SOCKET made =
        WSASocketW(AF_INET, kind, protocol, nullptr, 0, WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
    if (made == INVALID_SOCKET) {
        fail("socket");
    }
    return Socket(static_cast<Socket::Handle>(made));
}

void bindTo(const Socket& socket, const sockaddr_in& place) {
    constexpr int kMostTries = 200;
    constexpr std::chrono::milliseconds kPause{50};
    for (int tries = 1; ::bind(number(socket), reinterpret_cast<const sockaddr*>(&place), sizeof place) != 0; ++tries) {
        if (WSAGetLastError() != WSAEADDRINUSE || tries == kMostTries) {
            fail("bind");
        }
        std::this_thread::sleep_for(kPause);
    }
}

void setWaiting(const Socket& socket, bool waits) {
    u_long immediate = waits ? 0 : 1;
    if (ioctlsocket(number(socket), static_cast<long>(FIONBIO), &immediate) != 0) {
        fail("ioctlsocket");
    }
}

/// Answers are sent at once, however short they are.
void hasten(const Socket& socket) {
    const BOOL yes = TRUE;
    ::setsockopt(number(socket), IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&yes), sizeof yes);
}

int asLength(std::size_t size) {
    constexpr std::size_t kMost = 1 << 30;
    return static_cast<int>(std::min(size, kMost));
}

} // namespace

void Socket::close() {
    if (*this) {
        ::closesocket(static_cast<SOCKET>(std::exchange(handle_, kNone)));
    }
}

bool Socket::send(const void* bytes, std::size_t count) const {
    const char* next = static_cast<const char*>(bytes);
    while (count > 0) {
        const int sent = ::send(number(*this), next, asLength(count), 0);
        if (sent <= 0) {
            return false;
        }
        next += sent;
        count -= static_cast<std::size_t>(sent);
    }
    return true;
}

std::size_t Socket::receive(void* room, std::size_t size) const {
    // Under Wine the connection of a process that is killed inside of recv stays open; waiting ahead of it mostly
    // avoids that.
    arrivals({this});
    const int count = ::recv(number(*this), static_cast<char*>(room), asLength(size), 0);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

// A port that was in use a moment ago can be taken at once; the option for it would let two listen on one port.
Socket listener(int port) {
    constexpr int kCallers = 64;
    Socket socket = made(SOCK_STREAM, IPPROTO_TCP);
    setWaiting(socket, false);
    bindTo(socket, place(INADDR_LOOPBACK, port));
    if (::listen(number(socket), kCallers) != 0) {
        fail("listen");
    }
    return socket;
}

int portOf(const Socket& socket) {
    sockaddr_in place{};
    int length = sizeof place;
    if (::getsockname(number(socket), reinterpret_cast<sockaddr*>(&place), &length) != 0) {
        fail("getsockname");
    }
    return ntohs(place.sin_port);
}

Socket accept(const Socket& listener) {
    const SOCKET caller = ::accept(number(listener), nullptr, nullptr);
    if (caller == INVALID_SOCKET) {
        if (WSAGetLastError() != WSAEWOULDBLOCK && WSAGetLastError() != WSAECONNRESET) {
            fail("accept");
        }
        return {};
    }
    Socket socket(static_cast<Socket::Handle>(caller));
    SetHandleInformation(reinterpret_cast<HANDLE>(caller), HANDLE_FLAG_INHERIT, 0);
    setWaiting(socket, true); // it has its listener's way
    hasten(socket);
    return socket;
}

Socket call(int port) {
    Socket socket = made(SOCK_STREAM, IPPROTO_TCP);
    const sockaddr_in there = place(INADDR_LOOPBACK, port);
    if (::connect(number(socket), reinterpret_cast<const sockaddr*>(&there), sizeof there) != 0) {
        return {};
    }
    hasten(socket);
    return socket;
}

Socket datagrams(std::uint32_t address, int port) {
    Socket socket = made(SOCK_DGRAM, IPPROTO_UDP);
    bindTo(socket, place(address, port));
    return socket;
}

bool arrives(const Socket& at, std::chrono::milliseconds patience) {
    WSAPOLLFD question{number(at), POLLRDNORM, 0};
    return WSAPoll(&question, 1, static_cast<int>(patience.count())) > 0;
}

std::vector<bool> arrivals(const std::vector<const Socket*>& at) {
    std::vector<WSAPOLLFD> questions;
    for (const Socket* socket : at) {
        questions.push_back({number(*socket), POLLRDNORM, 0});
    }
    WSAPoll(questions.data(), static_cast<ULONG>(questions.size()), -1);
    std::vector<bool> arrived;
    for (const WSAPOLLFD& question : questions) {
        arrived.push_back(question.revents != 0);
    }
    return arrived;
}

} // namespace support::loopback

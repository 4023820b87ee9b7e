#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

/// The few functions for sockets on loopback that tests need.
namespace support::loopback {

inline sockaddr_in address(int port) {
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    place.sin_port = htons(static_cast<in_port_t>(port));
    return place;
}

/// A non-blocking socket that listens on a port chosen by the system.
inline int listener() {
    constexpr int kCallers = 64;
    const int handle = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_in place = address(0);
    if (handle < 0 || ::bind(handle, reinterpret_cast<sockaddr*>(&place), sizeof place) < 0 ||
        ::listen(handle, kCallers) < 0) {
        throw std::runtime_error("No place to listen on loopback.");
    }
    return handle;
}

inline int portOf(int listener) {
    sockaddr_in place{};
    socklen_t length = sizeof place;
    ::getsockname(listener, reinterpret_cast<sockaddr*>(&place), &length);
    return ntohs(place.sin_port);
}

/// The connection of the next caller, -1 where there is none.
inline int accept(int listener) {
    return ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
}

/// Connects to that port; -1 where nothing listens there.
inline int call(int port) {
    const int handle = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in place = address(port);
    if (::connect(handle, reinterpret_cast<sockaddr*>(&place), sizeof place) == 0) {
        return handle;
    }
    ::close(handle);
    return -1;
}

} // namespace support::loopback

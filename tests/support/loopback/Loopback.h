#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// The few functions for sockets on loopback that tests need.
namespace support::loopback {

/// A socket, or none. No process that this one starts inherits it.
class Socket {
public:
    using Handle = std::intptr_t;

    Socket() = default;
    explicit Socket(Handle handle) : handle_(handle) {}
    Socket(Socket&& other) noexcept : handle_(std::exchange(other.handle_, kNone)) {}
    Socket& operator=(Socket&& other) noexcept {
        close();
        handle_ = std::exchange(other.handle_, kNone);
        return *this;
    }
    ~Socket() { close(); }

    explicit operator bool() const { return handle_ != kNone; }
    Handle handle() const { return handle_; }
    void close();

    /// False where the other end has gone.
    bool send(const void* bytes, std::size_t count) const;
    /// Puts what arrives next into the room and returns how many bytes that are; 0 where the connection has ended.
    std::size_t receive(void* room, std::size_t size) const;

private:
    static constexpr Handle kNone = -1;
    Handle handle_ = kNone;
};

/// Listens on that port, or with 0 on one that the system chooses. Waits for a port that is in use, which may be
/// somebody's connection of a moment. Throws std::system_error.
Socket listener(int port = 0);
int portOf(const Socket& socket);
/// The connection of the next caller; none where nobody waits. Throws std::system_error.
Socket accept(const Socket& listener);
/// Connects to that port; none where nothing listens there.
Socket call(int port);
/// Takes datagrams for that port of a loopback address, 127.x.y.z as a number. Throws std::system_error.
Socket datagrams(std::uint32_t address, int port);

/// Waits until something has arrived, a caller or the end of a connection included; false where nothing has by then.
bool arrives(const Socket& at, std::chrono::milliseconds patience);
/// Waits until something has arrived at one of them, and tells for each whether it has.
std::vector<bool> arrivals(const std::vector<const Socket*>& at);

} // namespace support::loopback

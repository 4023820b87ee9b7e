#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>
#include <xcb/xcb.h>

namespace desktop {

/// What the X library hands out is freed by the caller.
struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};
template<typename Reply>
using Owned = std::unique_ptr<Reply, Freed>;

/// A test's own connection to an X server, beside that of the program.
class XConnection {
public:
    /// Throws std::runtime_error where the display doesn't answer.
    explicit XConnection(const std::string& display);
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;
    ~XConnection();

    xcb_connection_t* server() const { return server_; }
    xcb_window_t root() const { return root_; }
    xcb_atom_t atom(const std::string& name) const;
    /// Waits until the server has done all that it was asked for.
    void waitUntilDone() const;
    /// A property of a window, empty where the window or the property is gone.
    std::string text(xcb_window_t window, const std::string& property) const;
    std::vector<std::uint32_t> numbers(xcb_window_t window, const std::string& property) const;

private:
    Owned<xcb_get_property_reply_t> property(xcb_window_t window, const std::string& name) const;

    xcb_connection_t* server_;
    xcb_window_t root_ = 0;
};

} // namespace desktop

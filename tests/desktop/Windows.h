#pragma once

#include "desktop/XConnection.h"

#include <string>
#include <vector>

namespace desktop {

struct Window {
    xcb_window_t id = XCB_NONE;
    std::string title;
};

/// The windows that the window manager has on a display.
class Windows {
public:
    explicit Windows(const XConnection& x);

    std::vector<Window> all() const;
    /// The window with that title that a program has hidden; none where there is no such window.
    Window hidden(const std::string& title) const;
    /// The window that gets the keys; none while the manager and the server don't agree.
    Window active() const;
    /// Waits until the program of that window has handled what was sent before, or the keys go to another window.
    /// Returns false where neither comes in time.
    bool waitUntilHandled(xcb_window_t window);
    /// Waits until the program of that window says that it is there; whether it does in time.
    bool answers(xcb_window_t window);

private:
    Window window(xcb_window_t id) const { return {id, x_.text(id, "_NET_WM_NAME")}; }
    bool answersOrLeaves(xcb_window_t window);
    void ask(xcb_window_t window);
    bool takeAnswer() const;

    const XConnection& x_;
    const xcb_atom_t protocols_, ping_;
    std::uint32_t asked_ = 0;
};

} // namespace desktop

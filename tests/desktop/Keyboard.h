#pragma once

#include "desktop/XConnection.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace desktop {

/// The keys of a display. They go where the window manager has put the focus, as those of a user.
class Keyboard {
public:
    explicit Keyboard(const XConnection& x);

    /// Types a text. Throws std::invalid_argument for a letter that the keyboard hasn't.
    void type(std::u32string_view text);
    /// Presses one key, as "Return", "shift+Tab", "alt+F4", "ctrl+d".
    void press(std::string_view key);

private:
    /// The key of a symbol and what is held down for it.
    struct Stroke {
        xcb_keycode_t key = 0;
        std::vector<xcb_keysym_t> held;
    };

    void readMapping();
    const Stroke& strokeOf(xcb_keysym_t symbol) const;
    void strike(const Stroke& stroke, const std::vector<xcb_keysym_t>& held = {});
    void send(std::uint8_t kind, xcb_keycode_t key) const;

    const XConnection& x_;
    std::map<xcb_keysym_t, Stroke> strokes_;
    xcb_keycode_t last_ = 0;
};

} // namespace desktop

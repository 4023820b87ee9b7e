#pragma once

#include "desktop/Keyboard.h"
#include "desktop/VirtualDisplay.h"
#include "desktop/Windows.h"
#include "desktop/XConnection.h"

#include <QImage>

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace desktop {

/// A user who has a display and a keyboard, but no mouse, and who looks at the screen after each key and each text: the
/// program has handled it then. What doesn't come in time throws std::runtime_error, whose text names the windows that
/// are there and a picture of the screen.
class User {
public:
    /// The pictures are named after the test that runs.
    explicit User(std::filesystem::path pictures);

    const VirtualDisplay& display() const { return display_; }

    void type(std::u32string_view text);
    void press(std::string_view key, int times = 1);
    /// Types the texts, each with Return behind it.
    void enter(std::initializer_list<std::u32string_view> texts);

    /// Has these keys waiting for that process when it handles the first: it is stopped meanwhile.
    void ahead(long long process, const std::function<void()>& keys);

    /// Waits until the window with that title gets the keys.
    void awaitWindow(const std::string& title);
    /// Waits for a box that wasn't there at the last call, and leaves it with a key.
    void answerBox(std::string_view key);
    /// Waits until no window is left but that one, which is hidden and whose program still runs.
    void awaitOnlyHidden(const std::string& title);
    void awaitThat(const std::string& what, const std::function<bool()>& condition);
    /// What the screen shows, which is written to a file too.
    QImage look(const std::string& name);
    /// Waits until the screen shows just that again.
    void awaitSight(const QImage& before);

private:
    void awaitHandled();
    [[noreturn]] void giveUp(const std::string& what) const;
    std::filesystem::path fileOf(const std::string& name) const;

    std::filesystem::path pictures_;
    VirtualDisplay display_;
    XConnection x_{display_.name()};
    Keyboard keyboard_{x_};
    Windows windows_{x_};
    xcb_window_t lastBox_ = XCB_NONE;
    int looks_ = 0;
    bool ahead_ = false;
};

} // namespace desktop

#include "desktop/VirtualDisplay.h"

#include "desktop/Waiting.h"
#include "desktop/XConnection.h"

#include <QStandardPaths>

#include <stdexcept>

namespace desktop {

namespace {

constexpr const char* kServer = "Xvfb";
constexpr const char* kManager = "openbox";
constexpr const char* kKeyboard = "setxkbmap";

std::string pathOf(const char* program) {
    return QStandardPaths::findExecutable(QLatin1String(program)).toStdString();
}

} // namespace

support::Capability virtualDisplay() {
    for (const char* program : {kServer, kManager, kKeyboard}) {
        if (pathOf(program).empty()) {
            return support::kMachineWithoutDisplay;
        }
    }
    return {};
}

VirtualDisplay::VirtualDisplay()
    : server_(pathOf(kServer), {"-displayfd", "1", "-screen", "0", "1366x768x24", "-nolisten", "tcp", "-noreset"}) {
    name_ = ":" + server_.readLine().value_or("");
    support::HelperProcess keyboard(pathOf(kKeyboard), {"it"}, environment());
    if (keyboard.finish() != 0) {
        throw std::runtime_error("There is no Italian keyboard.");
    }
    manager_ = std::make_unique<support::HelperProcess>(pathOf(kManager), std::vector<std::string>{"--sm-disable"},
                                                        environment());
    waitForManager();
}

// A server that is killed leaves its socket behind.
VirtualDisplay::~VirtualDisplay() {
    manager_->kill();
    server_.terminate();
    server_.finish();
}

std::map<std::string, std::string> VirtualDisplay::environment() const {
    return {{"DISPLAY", name_},
            {"HOME", home_.path().string()},
            {"XDG_RUNTIME_DIR", home_.path().string()},
            {"QT_QPA_PLATFORM", "xcb"},
            {"WAYLAND_DISPLAY", ""},
            {"XAUTHORITY", ""},
            // No bus: the program's desktop is this display alone.
            {"DBUS_SESSION_BUS_ADDRESS", "disabled:"}};
}

void VirtualDisplay::waitForManager() const {
    const XConnection x(name_);
    if (!within(kPatience, [&] { return !x.numbers(x.root(), "_NET_SUPPORTING_WM_CHECK").empty(); })) {
        throw std::runtime_error("The window manager doesn't start.");
    }
}

} // namespace desktop

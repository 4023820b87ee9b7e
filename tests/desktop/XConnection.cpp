#include "desktop/XConnection.h"

#include <stdexcept>

namespace desktop {

XConnection::XConnection(const std::string& display) : server_(xcb_connect(display.c_str(), nullptr)) {
    if (xcb_connection_has_error(server_) != 0) {
        xcb_disconnect(server_);
        throw std::runtime_error("The display " + display + " doesn't answer.");
    }
    root_ = xcb_setup_roots_iterator(xcb_get_setup(server_)).data->root;
}

XConnection::~XConnection() {
    xcb_disconnect(server_);
}

void XConnection::waitUntilDone() const {
    const auto asked = xcb_get_input_focus(server_);
    const Owned<xcb_get_input_focus_reply_t> answer(xcb_get_input_focus_reply(server_, asked, nullptr));
}

xcb_atom_t XConnection::atom(const std::string& name) const {
    const auto asked = xcb_intern_atom(server_, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server_, asked, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

Owned<xcb_get_property_reply_t> XConnection::property(xcb_window_t window, const std::string& name) const {
    constexpr std::uint32_t kLongest = 4096;
    const auto asked = xcb_get_property(server_, 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, kLongest);
    return Owned<xcb_get_property_reply_t>(xcb_get_property_reply(server_, asked, nullptr));
}

std::string XConnection::text(xcb_window_t window, const std::string& name) const {
    const auto reply = property(window, name);
    if (!reply) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::vector<std::uint32_t> XConnection::numbers(xcb_window_t window, const std::string& name) const {
    const auto reply = property(window, name);
    if (!reply || reply->format != 8 * sizeof(std::uint32_t)) {
        return {};
    }
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

} // namespace desktop

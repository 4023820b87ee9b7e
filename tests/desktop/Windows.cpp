#include "desktop/Windows.h"

#include "desktop/Waiting.h"

#include <algorithm>

namespace desktop {

Windows::Windows(const XConnection& x) : x_(x), protocols_(x.atom("WM_PROTOCOLS")), ping_(x.atom("_NET_WM_PING")) {
    // The answers are sent to the root window.
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x_.server(), x_.root(), XCB_CW_EVENT_MASK, &events);
}

std::vector<Window> Windows::all() const {
    std::vector<Window> windows;
    std::ranges::transform(x_.numbers(x_.root(), "_NET_CLIENT_LIST"), std::back_inserter(windows),
                           [this](xcb_window_t id) { return window(id); });
    return windows;
}

// The manager gives a hidden window back to the root window.
Window Windows::hidden(const std::string& title) const {
    const auto asked = xcb_query_tree(x_.server(), x_.root());
    const Owned<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(x_.server(), asked, nullptr));
    const int count = tree ? xcb_query_tree_children_length(tree.get()) : 0;
    for (int i = 0; i < count; ++i) {
        const Window child = window(xcb_query_tree_children(tree.get())[i]);
        if (child.title == title) {
            return child;
        }
    }
    return {};
}

Window Windows::active() const {
    const auto managers = x_.numbers(x_.root(), "_NET_ACTIVE_WINDOW");
    const auto asked = xcb_get_input_focus(x_.server());
    const Owned<xcb_get_input_focus_reply_t> servers(xcb_get_input_focus_reply(x_.server(), asked, nullptr));
    const bool agree = servers && !managers.empty() && servers->focus == managers.front();
    return agree ? window(servers->focus) : Window{};
}

// An answer comes when the program reads the question, and what it read before may still lie in its own queue. The
// second question is read after that.
bool Windows::waitUntilHandled(xcb_window_t window) {
    return answersOrLeaves(window) && answersOrLeaves(window);
}

bool Windows::answersOrLeaves(xcb_window_t window) {
    ask(window);
    return within(kPatience, [&] { return takeAnswer() || active().id != window; });
}

bool Windows::answers(xcb_window_t window) {
    ask(window);
    return within(kPatience, [&] { return takeAnswer(); });
}

void Windows::ask(xcb_window_t window) {
    ++asked_;
    xcb_client_message_event_t question{};
    question.response_type = XCB_CLIENT_MESSAGE;
    question.format = 32;
    question.window = window;
    question.type = protocols_;
    question.data.data32[0] = ping_;
    question.data.data32[1] = asked_;
    question.data.data32[2] = window;
    xcb_send_event(x_.server(), 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&question));
    xcb_flush(x_.server());
}

bool Windows::takeAnswer() const {
    constexpr std::uint8_t kSent = 0x80; // by a program, which this event is
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(x_.server())}) {
        if ((event->response_type & ~kSent) != XCB_CLIENT_MESSAGE) {
            continue;
        }
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
        if (message.type == protocols_ && message.data.data32[0] == ping_ && message.data.data32[1] == asked_) {
            return true;
        }
    }
    return false;
}

} // namespace desktop

#include "desktop/Keyboard.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <utility>
#include <xcb/xtest.h>

namespace desktop {

namespace {

constexpr xcb_keysym_t kShift = 0xFFE1, kControl = 0xFFE3, kAlt = 0xFFE9, kAltGr = 0xFE03;

/// The symbols of keys without a letter, by their names.
const std::map<std::string_view, xcb_keysym_t> kNamed = {
    {"Tab", 0xFF09}, {"Return", 0xFF0D}, {"Escape", 0xFF1B}, {"Home", 0xFF50},      {"Left", 0xFF51},
    {"Up", 0xFF52},  {"Right", 0xFF53},  {"Down", 0xFF54},   {"Page_Down", 0xFF56}, {"End", 0xFF57},
    {"F4", 0xFFC1},  {"Delete", 0xFFFF}, {"space", 0x0020},
};
const std::map<std::string_view, xcb_keysym_t> kHeld = {{"shift", kShift}, {"ctrl", kControl}, {"alt", kAlt}};

/// The columns of the server's table that are used, and what is held down for them.
struct Column {
    int place;
    std::vector<xcb_keysym_t> held;
};
const std::vector<Column> kColumns = {{0, {}}, {1, {kShift}}, {4, {kAltGr}}};

} // namespace

Keyboard::Keyboard(const XConnection& x) : x_(x) {
    readMapping();
}

void Keyboard::readMapping() {
    const xcb_setup_t* setup = xcb_get_setup(x_.server());
    const auto keys = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto asked = xcb_get_keyboard_mapping(x_.server(), setup->min_keycode, keys);
    const Owned<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(x_.server(), asked, nullptr));
    if (!mapping) {
        throw std::runtime_error("The display has no keyboard.");
    }
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int columns = mapping->keysyms_per_keycode;
    for (const Column& column : kColumns) {
        for (int key = 0; key < keys && column.place < columns; ++key) {
            const auto code = static_cast<xcb_keycode_t>(setup->min_keycode + key);
            strokes_.try_emplace(symbols[key * columns + column.place], Stroke{code, column.held});
        }
    }
}

const Keyboard::Stroke& Keyboard::strokeOf(xcb_keysym_t symbol) const {
    const auto found = strokes_.find(symbol);
    if (found == strokes_.end()) {
        throw std::invalid_argument("The keyboard has no key for symbol " + std::to_string(symbol) + ".");
    }
    return found->second;
}

void Keyboard::type(std::u32string_view text) {
    for (const char32_t letter : text) {
        strike(strokeOf(static_cast<xcb_keysym_t>(letter))); // the symbols of Latin letters are their codes
    }
}

void Keyboard::press(std::string_view key) {
    std::vector<xcb_keysym_t> held;
    for (auto plus = key.find('+'); plus != std::string_view::npos; plus = key.find('+')) {
        held.push_back(kHeld.at(key.substr(0, plus)));
        key.remove_prefix(plus + 1);
    }
    strike(strokeOf(key.size() == 1 ? static_cast<xcb_keysym_t>(key.front()) : kNamed.at(key)), held);
}

// A release and a press of one key at the same moment look like a key held down, and there are servers that count time
// in steps of some milliseconds.
void Keyboard::strike(const Stroke& stroke, const std::vector<xcb_keysym_t>& held) {
    constexpr std::chrono::milliseconds kAnotherMoment(25);
    if (std::exchange(last_, stroke.key) == stroke.key) {
        std::this_thread::sleep_for(kAnotherMoment);
    }
    std::vector<xcb_keycode_t> keys;
    for (const auto& symbols : {held, stroke.held}) {
        std::ranges::transform(symbols, std::back_inserter(keys), [this](auto each) { return strokeOf(each).key; });
    }
    keys.push_back(stroke.key);
    std::ranges::for_each(keys, [this](auto each) { send(XCB_KEY_PRESS, each); });
    std::ranges::reverse(keys);
    std::ranges::for_each(keys, [this](auto each) { send(XCB_KEY_RELEASE, each); });
    x_.waitUntilDone();
}

void Keyboard::send(std::uint8_t kind, xcb_keycode_t key) const {
    xcb_test_fake_input(x_.server(), kind, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

} // namespace desktop

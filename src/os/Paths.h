#pragma once

// Texts are UTF-8 everywhere in the program, whatever the system's own encoding of names is.

#include <filesystem>
#include <string>
#include <string_view>

namespace os {

inline std::filesystem::path pathOf(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

inline std::string utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace os

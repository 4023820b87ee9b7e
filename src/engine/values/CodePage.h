#pragma once

// The code page of the server's collation, windows-1252: what a text without N is made of.

#include <string>
#include <string_view>

namespace engine {

/// UTF-8 in the bytes of the code page. A character that it hasn't is the one that fits it best, or else "?".
std::string toCodePage(std::string_view text);
/// The code page's bytes as UTF-8.
std::string fromCodePage(std::string_view bytes);
/// A text with the characters that the code page keeps of it.
std::string inCodePage(std::string text);

} // namespace engine

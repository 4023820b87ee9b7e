#pragma once

// The encoding in which the system's programs leave texts in files for one another: its code page.

#include <string>
#include <string_view>

namespace os {

/// A text of such a file in UTF-8. Where the code page is UTF-8 itself, its bytes as they are.
std::string fromSystemText(std::string_view bytes);
/// A text in UTF-8 for such a file. A character that the code page hasn't is the one that fits it best, or else "?".
std::string toSystemText(std::string_view utf8);

} // namespace os

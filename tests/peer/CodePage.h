#pragma once

#include <string>
#include <string_view>

namespace peer {

/// UTF-8 in the collation's code page, with "?" for characters that it doesn't have.
std::string toCodePage(std::string_view text);
/// The code page's bytes as UTF-8.
std::string fromCodePage(std::string_view bytes);

} // namespace peer

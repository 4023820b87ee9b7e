#pragma once

// Kinds of ASCII characters, trimming and lists of pieces.

#include <algorithm>
#include <string>
#include <string_view>

namespace ado {

inline constexpr std::string_view kBlanks = " \t\r\n";

constexpr bool isBlank(char c) {
    return kBlanks.find(c) != std::string_view::npos;
}
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}
/// Whether a name may begin with it: a letter of any language or an underscore.
constexpr bool isNameStart(char c) {
    return (lower(c) >= 'a' && lower(c) <= 'z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

inline std::string lowered(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), lower);
    return result;
}

/// The text without the blanks around it.
constexpr std::string_view trimmed(std::string_view text, std::string_view blanks = kBlanks) {
    const auto begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// Appends a piece, after a divider where the list isn't empty.
inline void addPiece(std::string& list, std::string_view divider, std::string_view piece) {
    if (!list.empty()) {
        list += divider;
    }
    list += piece;
}

} // namespace ado

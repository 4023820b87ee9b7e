#pragma once

// Digits, blanks and letters of ASCII, for keywords, numbers and names of the dialect. What a user wrote is compared by
// the collation (Collation.h).

#include <algorithm>
#include <string>
#include <string_view>

namespace engine {

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr char capital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr char smallLetter(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline std::string capitals(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), capital);
    return result;
}

inline std::string smallLetters(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), smallLetter);
    return result;
}

/// True for an empty text too.
constexpr bool isAllDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isDigit);
}

constexpr std::string_view withoutTrailingBlanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Without the blanks at both ends.
constexpr std::string_view trimmed(std::string_view text) {
    text = withoutTrailingBlanks(text);
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

} // namespace engine

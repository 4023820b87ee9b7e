// The program's Like. Unlike the server's it has other wildcards and is case-sensitive.

#include "ado/Conversions.h"
#include "ado/Error.h"

namespace ado {

namespace {

constexpr int kInvalidPattern = 93;

/// Takes one UTF-8 character; an invalid byte counts as a character.
char32_t takeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    std::size_t size = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    size = std::min(size, text.size());
    char32_t character = 0;
    for (const char c : text.substr(0, size)) {
        character = character << 8U | static_cast<unsigned char>(c);
    }
    text.remove_prefix(size);
    return character;
}

/// Whether a character is in the list after "["; takes the list up to its "]".
bool takeList(std::string_view& pattern, char32_t character) {
    const auto end = pattern.find(']');
    if (end == std::string_view::npos) {
        throw Error(kInvalidPattern, "Invalid pattern string");
    }
    std::string_view list = pattern.substr(0, end);
    pattern.remove_prefix(end + 1);
    const bool negated = list.size() > 1 && list.front() == '!';
    if (negated) {
        list.remove_prefix(1);
    }
    bool found = false;
    while (!list.empty()) {
        const char32_t low = takeCharacter(list);
        char32_t high = low;
        if (list.size() > 1 && list.front() == '-') {
            list.remove_prefix(1);
            high = takeCharacter(list);
        }
        found = found || (character >= low && character <= high);
    }
    return found != negated;
}

/// Takes the first element of the pattern and the first character of the text, and returns whether they match.
bool takeOne(std::string_view& text, std::string_view& pattern) {
    const char32_t element = takeCharacter(pattern);
    const char32_t character = takeCharacter(text);
    switch (element) {
    case U'?':
        return true;
    case U'#':
        return character >= U'0' && character <= U'9';
    case U'[':
        return takeList(pattern, character);
    default:
        return element == character;
    }
}

} // namespace

bool matches(std::string_view text, std::string_view pattern) {
    std::string_view retryText, retryPattern;
    bool retry = false;
    for (;;) {
        while (pattern.starts_with("[]")) {
            pattern.remove_prefix(2);
        }
        if (pattern.starts_with('*')) {
            pattern.remove_prefix(1);
            retryText = text;
            retryPattern = pattern;
            retry = true;
            continue;
        }
        if (text.empty() && pattern.empty()) {
            return true;
        }
        if (!text.empty() && !pattern.empty() && takeOne(text, pattern)) {
            continue;
        }
        if (!retry || retryText.empty()) {
            return false;
        }
        takeCharacter(retryText);
        text = retryText;
        pattern = retryPattern;
    }
}

} // namespace ado

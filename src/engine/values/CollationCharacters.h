#pragma once

// Single characters of UTF-8 texts, and how the server's collation orders them.

#include <string>
#include <string_view>

namespace engine {

/// Whether a byte is the first of its character.
constexpr bool startsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0U) != 0x80U;
}

/// < 0, 0, > 0 by the collation, one character against one.
int compareCharacters(char32_t left, char32_t right);

/// The character at `place`, which goes on behind it; U+FFFD for malformed bytes. `place` must lie in the text.
char32_t nextCharacter(std::string_view text, std::size_t& place);
void appendCharacter(std::string& text, char32_t character);

} // namespace engine

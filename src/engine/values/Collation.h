#pragma once

// Latin1_General_CI_AS: case ignored, accents told apart, trailing blanks ignored by comparisons (not by LIKE),
// apostrophe and hyphen compared last (the server's word sort).
// No other source uses ICU.

#include <string>
#include <string_view>

namespace engine {

/// < 0, 0, > 0. UTF-8; malformed bytes compare as replacement characters.
int compareTexts(std::string_view left, std::string_view right);
inline bool sameText(std::string_view left, std::string_view right) {
    return compareTexts(left, right) == 0;
}

/// Two texts are the same under the collation exactly where their keys are.
std::string collationKey(std::string_view text);

/// LIKE of the dialect: `% _ [a-z] [^a]`, blanks at the end of the pattern count, and those at the end of the text
/// where `blanksCount`; `escape` is one character or empty.
bool like(std::string_view text, std::string_view pattern, std::string_view escape = {}, bool blanksCount = false);

/// Length in characters; upper and lower case as the server makes them.
std::size_t characters(std::string_view text);
std::string upper(std::string_view text);
std::string lower(std::string_view text);
/// The first n characters.
std::string_view leftOf(std::string_view text, std::size_t n);

} // namespace engine

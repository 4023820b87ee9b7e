#include "engine/values/Collation.h"

#include "engine/values/Ascii.h"
#include "engine/values/CollationCharacters.h"
#include "os/OfThread.h"

#include <unicode/uchar.h>
#include <unicode/ucol.h>
#include <unicode/ustring.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace engine {
namespace {

struct Collator {
    Collator() {
        UErrorCode status = U_ZERO_ERROR;
        opened.reset(ucol_open("en", &status));
        if (U_FAILURE(status)) {
            throw std::runtime_error(std::string("the collation can't be opened: ") + u_errorName(status));
        }
        ucol_setStrength(opened.get(), UCOL_SECONDARY);
    }

    std::unique_ptr<UCollator, decltype(&ucol_close)> opened{nullptr, &ucol_close};
};

/// Opened once a thread: opening takes long, and threads may not share a collator.
UCollator* collator() {
    thread_local Collator* ofThread = nullptr;
    return os::ofThread(ofThread, [] { return std::make_unique<Collator>(); }).opened.get();
}

int collatedLetters(std::string_view left, std::string_view right) {
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(collator(), left.data(), static_cast<int32_t>(left.size()), right.data(),
                            static_cast<int32_t>(right.size()), &status);
}

/// Apostrophe and hyphen count least: "d'asti" stands behind "dasti" and before "dasto".
constexpr std::string_view kMarks = "'-";

bool hasMark(std::string_view text) {
    return text.find_first_of(kMarks) != std::string_view::npos;
}

/// A text without its marks, and the marks, each with the number of bytes before it.
struct Word {
    explicit Word(std::string_view text) {
        for (const char byte : text) {
            if (const auto mark = kMarks.find(byte); mark != std::string_view::npos) {
                marks.emplace_back(letters.size(), mark);
            } else {
                letters += byte;
            }
        }
        letters.resize(withoutTrailingBlanks(letters).size());
    }

    std::string letters;
    std::vector<std::pair<std::size_t, std::size_t>> marks;
};

int collated(std::string_view left, std::string_view right) {
    if (!hasMark(left) && !hasMark(right)) {
        return collatedLetters(left, right);
    }
    const Word a(left);
    const Word b(right);
    const int order = collatedLetters(a.letters, b.letters);
    return order != 0 ? order : a.marks < b.marks ? -1 : a.marks > b.marks ? 1 : 0;
}

using Ranks = std::array<unsigned char, 256>;

bool standsForItself(char character) {
    return ((character >= ' ' && character <= '~') || (character >= '\t' && character <= '\r')) &&
           kMarks.find(character) == std::string_view::npos;
}

/// The rank of each ASCII character in the order of the collation. Such a character has one weight and is never part of
/// a longer element, so that two ASCII texts compare as their ranks do. 0 is for what needs the whole text: control
/// characters, which the collator skips, the marks, and everything beyond ASCII.
Ranks makeRanks() {
    std::vector<char> ordered;
    for (char character = '\t'; character <= '~'; ++character) {
        if (standsForItself(character)) {
            ordered.push_back(character);
        }
    }
    const auto compare = [](char left, char right) { return collated({&left, 1}, {&right, 1}); };
    std::stable_sort(ordered.begin(), ordered.end(), [&](char a, char b) { return compare(a, b) < 0; });

    Ranks ranks{};
    unsigned char rank = 0;
    for (std::size_t i = 0; i < ordered.size(); ++i) {
        if (i == 0 || compare(ordered[i - 1], ordered[i]) != 0) {
            ++rank;
        }
        ranks[static_cast<unsigned char>(ordered[i])] = rank;
    }
    return ranks;
}

const Ranks& ranks() {
    static const Ranks made = makeRanks();
    return made;
}

bool endsInAscii(std::string_view text, std::size_t place) {
    return place + 1 >= text.size() || ranks()[static_cast<unsigned char>(text[place + 1])] != 0;
}

template<typename Map>
std::string mapped(std::string_view text, Map map) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t place = 0; place < text.size();) {
        appendCharacter(result, map(nextCharacter(text, place)));
    }
    return result;
}

} // namespace

int compareTexts(std::string_view left, std::string_view right) {
    left = withoutTrailingBlanks(left);
    right = withoutTrailingBlanks(right);
    const Ranks& rank = ranks();
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        const unsigned char a = rank[static_cast<unsigned char>(left[i])];
        const unsigned char b = rank[static_cast<unsigned char>(right[i])];
        if (a == 0 || b == 0) {
            return collated(left, right);
        }
        if (a != b) {
            // An accent behind the character would change it: the collator decides.
            return endsInAscii(left, i) && endsInAscii(right, i) ? a - b : collated(left, right);
        }
    }
    const std::string_view rest = (left.size() > right.size() ? left : right).substr(common);
    if (std::any_of(rest.begin(), rest.end(), [&](char c) { return rank[static_cast<unsigned char>(c)] == 0; })) {
        return collated(left, right);
    }
    return left.size() < right.size() ? -1 : left.size() > right.size() ? 1 : 0;
}

namespace {

std::string lettersKey(std::string_view text) {
    std::vector<UChar> wide(text.size() + 1);
    UErrorCode status = U_ZERO_ERROR;
    int32_t wideSize = 0;
    u_strFromUTF8WithSub(wide.data(), static_cast<int32_t>(wide.size()), &wideSize, text.data(),
                         static_cast<int32_t>(text.size()), 0xfffd, nullptr, &status);
    std::string key(text.size() * 3 + 16, '\0');
    while (true) {
        const int32_t size = ucol_getSortKey(collator(), wide.data(), wideSize, reinterpret_cast<uint8_t*>(key.data()),
                                             static_cast<int32_t>(key.size()));
        const bool fits = static_cast<std::size_t>(size) <= key.size();
        key.resize(static_cast<std::size_t>(size));
        if (fits) {
            key.pop_back(); // the closing zero
            return key;
        }
    }
}

} // namespace

std::string collationKey(std::string_view text) {
    text = withoutTrailingBlanks(text);
    if (!hasMark(text)) {
        return lettersKey(text);
    }
    const Word word(text);
    std::string key = lettersKey(word.letters);
    for (const auto& [place, mark] : word.marks) {
        key += '\0' + std::to_string(place) + kMarks[mark]; // no key of letters holds a zero
    }
    return key;
}

int compareCharacters(char32_t left, char32_t right) {
    if (left == right) {
        return 0;
    }
    if (left < 0x80 && right < 0x80) {
        const unsigned char a = ranks()[left];
        const unsigned char b = ranks()[right];
        if (a != 0 && b != 0) {
            return a - b;
        }
    }
    std::string first;
    std::string second;
    appendCharacter(first, left);
    appendCharacter(second, right);
    return collated(first, second);
}

char32_t nextCharacter(std::string_view text, std::size_t& place) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
    UChar32 character = bytes[place];
    if (character < 0x80) {
        ++place;
        return static_cast<char32_t>(character);
    }
    auto at = static_cast<int64_t>(place);
    U8_NEXT_OR_FFFD(bytes, at, static_cast<int64_t>(text.size()), character);
    place = static_cast<std::size_t>(at);
    return static_cast<char32_t>(character);
}

void appendCharacter(std::string& text, char32_t character) {
    std::array<uint8_t, U8_MAX_LENGTH> bytes{};
    std::size_t size = 0;
    U8_APPEND_UNSAFE(bytes, size, character);
    text.append(reinterpret_cast<const char*>(bytes.data()), size);
}

std::string upper(std::string_view text) {
    // The code page has no capitals of these two.
    return mapped(text, [](char32_t c) {
        return c == U'µ' || c == U'ƒ' ? c : static_cast<char32_t>(u_toupper(static_cast<UChar32>(c)));
    });
}

std::string lower(std::string_view text) {
    return mapped(text, [](char32_t c) { return static_cast<char32_t>(u_tolower(static_cast<UChar32>(c))); });
}

namespace {

/// The server counts in units of UTF-16: a character beyond the first plane is two.
std::size_t unitsOf(char lead) {
    if (!startsCharacter(lead)) {
        return 0;
    }
    return static_cast<unsigned char>(lead) >= 0xf0U ? 2 : 1;
}

} // namespace

std::size_t characters(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text) {
        count += unitsOf(byte);
    }
    return count;
}

std::string_view leftOf(std::string_view text, std::size_t n) {
    std::size_t count = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        count += unitsOf(text[place]);
        if (count > n) {
            return text.substr(0, place);
        }
    }
    return text;
}

} // namespace engine

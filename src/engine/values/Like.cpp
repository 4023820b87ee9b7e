#include "engine/values/Collation.h"
#include "engine/values/CollationCharacters.h"
#include "os/OfThread.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace engine {
namespace {

struct Range {
    char32_t first, last;
};

/// One place of a pattern.
struct Element {
    enum class Kind { Many, Any, Literal, Set };
    Kind kind;
    char32_t literal = 0;
    bool negated = false;
    std::vector<Range> ranges;

    bool matches(char32_t character) const {
        switch (kind) {
        case Kind::Literal:
            return compareCharacters(character, literal) == 0;
        case Kind::Set:
            return negated != std::any_of(ranges.begin(), ranges.end(), [&](const Range& range) {
                       return compareCharacters(range.first, character) <= 0 &&
                              compareCharacters(character, range.last) <= 0;
                   });
        default:
            return true;
        }
    }
};

/// A parsed pattern. The last one is kept, since a statement compares every row with the same one.
class Pattern {
public:
    Pattern(std::string_view text, std::string_view escape) : text_(text) {
        if (!escape.empty()) {
            std::size_t place = 0;
            escape_ = nextCharacter(escape, place);
        }
        while (valid_ && place_ < text_.size()) {
            readElement();
        }
    }

    bool matches(std::string_view text, bool blanksCount) const;

private:
    /// A character, and whether the escape character stood before it.
    struct Character {
        char32_t value = 0;
        bool escaped = false;
        bool is(char32_t wanted) const { return !escaped && value == wanted; }
    };

    Character read() {
        Character character{nextCharacter(text_, place_)};
        if (escape_ && character.value == *escape_) {
            if (place_ == text_.size()) {
                valid_ = false;
                return character;
            }
            character = {nextCharacter(text_, place_), true};
        }
        return character;
    }

    void readElement() {
        const Character character = read();
        if (character.is('%')) {
            if (elements_.empty() || elements_.back().kind != Element::Kind::Many) {
                elements_.push_back({Element::Kind::Many, 0, false, {}});
            }
        } else if (character.is('_')) {
            elements_.push_back({Element::Kind::Any, 0, false, {}});
        } else if (character.is('[')) {
            readSet();
        } else {
            elements_.push_back({Element::Kind::Literal, character.value, false, {}});
        }
    }

    void readSet() {
        Element set{Element::Kind::Set, 0, false, {}};
        bool first = true;
        while (valid_ && place_ < text_.size()) {
            const Character character = read();
            if (character.is(']')) {
                elements_.push_back(std::move(set));
                return;
            }
            if (first && !set.negated && character.is('^')) {
                set.negated = true;
                continue;
            }
            first = false;
            set.ranges.push_back({character.value, endOfRange(character.value)});
        }
        valid_ = false; // the bracket never closes
    }

    /// `-` makes a range only between two characters; at either end of the set it stands for itself.
    char32_t endOfRange(char32_t begin) {
        const std::size_t before = place_;
        if (place_ < text_.size() && read().is('-') && place_ < text_.size()) {
            const Character end = read();
            if (!end.is(']')) {
                return end.value;
            }
        }
        place_ = before;
        return begin;
    }

    std::string_view text_;
    std::size_t place_ = 0;
    std::optional<char32_t> escape_;
    std::vector<Element> elements_;
    bool valid_ = true;
};

/// Where the rest doesn't match, the last `%` takes one more character. The earlier ones needn't: what follows them
/// matched at its first place, which leaves the most to the last one.
bool Pattern::matches(std::string_view text, bool blanksCount) const {
    if (!valid_) {
        return false;
    }
    constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    std::size_t element = 0;
    std::size_t place = 0;
    std::size_t many = kNone;
    std::size_t retry = 0;
    while (true) {
        if (element < elements_.size() && elements_[element].kind == Element::Kind::Many) {
            many = ++element;
            retry = place;
            if (many == elements_.size()) {
                return true;
            }
            continue;
        }
        if (element == elements_.size() &&
            (blanksCount ? place == text.size() : text.find_first_not_of(' ', place) == std::string_view::npos)) {
            return true;
        }
        if (element < elements_.size() && place < text.size()) {
            std::size_t next = place;
            if (elements_[element].matches(nextCharacter(text, next))) {
                ++element;
                place = next;
                continue;
            }
        }
        if (many == kNone || retry >= text.size()) {
            return false;
        }
        nextCharacter(text, retry);
        place = retry;
        element = many;
    }
}

struct LastPattern {
    std::string text, escape;
    std::optional<Pattern> pattern;
};

const Pattern& patternOf(std::string_view text, std::string_view escape) {
    thread_local LastPattern* ofThread = nullptr;
    LastPattern& last = os::ofThread(ofThread, [] { return std::make_unique<LastPattern>(); });
    if (!last.pattern || last.text != text || last.escape != escape) {
        last.pattern.reset();
        last.text = text;
        last.escape = escape;
        last.pattern.emplace(last.text, last.escape);
    }
    return *last.pattern;
}

} // namespace

bool like(std::string_view text, std::string_view pattern, std::string_view escape, bool blanksCount) {
    return patternOf(pattern, escape).matches(text, blanksCount);
}

} // namespace engine

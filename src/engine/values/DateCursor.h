#pragma once

// A place in the text of a date, and what may stand there.

#include "engine/errors/ValueErrors.h"
#include "engine/values/Ascii.h"

#include <cstddef>
#include <string_view>

namespace engine {

struct DateNumber {
    int value = 0;
    int digits = 0;
};

class DateCursor {
protected:
    explicit DateCursor(std::string_view text) : text_(text) {}

    [[noreturn]] static void refuse() { throw errors::dateConversion(); }

    bool atEnd() const { return place_ == text_.size(); }
    char peek() const { return atEnd() ? '\0' : text_[place_]; }
    bool takes(char wanted) {
        const bool found = peek() == wanted;
        place_ += found ? 1 : 0;
        return found;
    }
    bool takesBlank() { return takes(' '); }
    void skipBlanks() {
        while (takesBlank()) {
        }
    }

    DateNumber number() {
        constexpr int kLongest = 8;
        DateNumber number;
        while (isDigit(peek())) {
            number.value = number.value * 10 + (text_[place_++] - '0');
            if (++number.digits > kLongest) {
                refuse();
            }
        }
        if (number.digits == 0) {
            refuse();
        }
        return number;
    }

    bool isTimeBehindNumber() {
        const std::size_t here = place_;
        skipBlanks();
        const char next = capital(peek());
        const bool half =
            (next == 'A' || next == 'P') && place_ + 1 < text_.size() && capital(text_[place_ + 1]) == 'M';
        place_ = here;
        return half || peek() == ':';
    }

    static bool isLetter(char character) { return capital(character) >= 'A' && capital(character) <= 'Z'; }

    void skipBetween() {
        skipBlanks();
        if (takes(',') || takes('-') || takes('/') || takes('.')) {
            skipBlanks();
        }
    }

    std::string_view text_;
    std::size_t place_ = 0;
};

} // namespace engine

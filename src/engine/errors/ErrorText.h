#pragma once

// What a row of the server's errors is. The rows stand in the headers of this folder, one for each stage that raises
// them; what several stages raise stands with the first of them. Source of numbers and texts: the public list of
// database engine events and errors.

#include "engine/errors/Error.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace engine::errors {

using Reach = Error::Reach;
using Text = std::string_view;

/// Number, reach and words of an error. The words have a place in braces, `{table}`, for each argument.
class Words {
public:
    constexpr Words(int number, Reach reach, std::string_view words) : number_(number), reach_(reach), words_(words) {}

    constexpr std::string_view words() const { return words_; }

protected:
    constexpr std::size_t places() const {
        std::size_t count = 0;
        for (const char c : words_) {
            count += c == '{' ? 1 : 0;
        }
        return count;
    }
    /// The arguments fill the places in their order.
    Error filled(std::initializer_list<std::string> arguments, int position) const;

    static std::string shown(std::string_view text) { return std::string(text); }
    static std::string shown(long long number) { return std::to_string(number); }

private:
    int number_;
    Reach reach_;
    std::string_view words_;
};

/// An error with so many arguments of these types; a row whose words have another number of places doesn't compile.
template<typename... Arguments>
class ErrorText : public Words {
public:
    constexpr ErrorText(int number, Reach reach, std::string_view words) : Words(number, reach, words) {
        if (places() != sizeof...(Arguments)) {
            throw "the words have another number of places";
        }
    }

    Error operator()(Arguments... arguments) const { return filled({shown(arguments)...}, -1); }
};

/// An error that tells where in the batch it was noticed: the byte offset is the last argument.
template<typename... Arguments>
class PlacedErrorText : public ErrorText<Arguments...> {
public:
    using ErrorText<Arguments...>::ErrorText;

    Error operator()(Arguments... arguments, int position) const {
        return this->filled({this->shown(arguments)...}, position);
    }
};

} // namespace engine::errors

#pragma once

#include <stdexcept>
#include <string>

namespace engine {

namespace errors {
class Words;
}

/// What the server answers to a text it refuses. Number and words are the server's own; they are rows of the headers
/// beside this one, and only such a row makes an error.
class Error : public std::runtime_error {
public:
    /// How much of a batch an error ends.
    enum class Reach { Statement, Batch, Connection };

    int number() const { return number_; }
    Reach reach() const { return reach_; }
    /// Byte offset in the batch where the error was noticed, -1 where there is none.
    int position() const { return position_; }

private:
    friend class errors::Words;
    Error(int number, Reach reach, const std::string& text, int position)
        : std::runtime_error(text), number_(number), reach_(reach), position_(position) {}

    int number_;
    Reach reach_;
    int position_;
};

/// A bug of the engine, never the user's doing: one stage didn't keep what another relies on. It never leaves a
/// session, see run/InternalErrors.h.
class InternalError : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

} // namespace engine

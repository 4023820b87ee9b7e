#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace monkey {

/// What the process holds each time its program has ended and everything of it should be gone.
class Growth {
public:
    struct Held {
        long objects;      ///< of the toolkit
        std::size_t bytes; ///< of the heap
        int files;         ///< open
    };

    Growth();
    ~Growth();
    Growth(const Growth&) = delete;
    Growth& operator=(const Growth&) = delete;

    void measure();
    /// What grows, empty where nothing does. What is made once, such as fonts and caches, comes in the first lives:
    /// compared are the least of the second quarter and the least of the last, so one larger number means nothing.
    std::string complaint() const;
    std::string text() const;

private:
    std::vector<Held> held_;
};

} // namespace monkey

#pragma once

#include <utility>
#include <vector>

namespace os {

/// What is to be called when a thread ends; the last one first.
struct ThreadEnds {
    std::vector<std::pair<void (*)(void*), void*>> all;

    ThreadEnds() = default;
    ThreadEnds(const ThreadEnds&) = delete;
    ThreadEnds& operator=(const ThreadEnds&) = delete;
    ~ThreadEnds() {
        while (!all.empty()) {
            const auto [function, argument] = all.back();
            all.pop_back();
            function(argument);
        }
    }
};

} // namespace os

#include "os/OfThread.h"

#include <utility>
#include <vector>

namespace os {

namespace {

struct Ends {
    std::vector<std::pair<void (*)(void*), void*>> all;

    ~Ends() {
        while (!all.empty()) {
            const auto [function, argument] = all.back();
            all.pop_back();
            function(argument);
        }
    }
};

} // namespace

void atThreadEnd(void (*function)(void*), void* argument) {
    thread_local Ends ends;
    ends.all.emplace_back(function, argument);
}

} // namespace os

#include "app/monkey/Watchdog.h"

#include "app/monkey/Story.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace monkey {

namespace {

// A server that doesn't answer is given up after 15 seconds, once in an event.
constexpr std::chrono::seconds kPatience{60};

} // namespace

Watchdog::Watchdog() : thread_([this] { watch(); }) {
    see();
}

Watchdog::~Watchdog() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    over_.notify_all();
    thread_.join();
}

void Watchdog::seeEnd() {
    longest_ = std::max(longest_, std::chrono::duration_cast<std::chrono::milliseconds>(sinceSeen()));
    see();
}

std::chrono::steady_clock::duration Watchdog::sinceSeen() const {
    return std::chrono::steady_clock::now().time_since_epoch() - std::chrono::steady_clock::duration(seen_.load());
}

void Watchdog::watch() {
    std::unique_lock lock(mutex_);
    while (!over_.wait_for(lock, std::chrono::seconds(1), [this] { return ends_; })) {
        if (sinceSeen() > kPatience) {
            std::fprintf(stderr, "An event hasn't ended in %ld seconds.\n", static_cast<long>(kPatience.count()));
            std::abort(); // which prints the story
        }
    }
}

} // namespace monkey

#include "ado/WhileWaiting.h"

#include "ado/Error.h"
#include "engine/store/Idler.h"
#include "os/OfThread.h"

#include <chrono>
#include <memory>
#include <utility>

namespace ado {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds kPause{50};

struct Waiting {
    std::function<void()> hook;
    Clock::time_point last;
    bool running = false;
};

Waiting& waiting() {
    thread_local Waiting* ofThread = nullptr;
    return os::ofThread(ofThread, [] { return std::make_unique<Waiting>(); });
}

} // namespace

std::function<void()> setWhileWaiting(std::function<void()> hook) {
    engine::setIdler(hook ? whileWaiting : nullptr);
    waiting().last = Clock::now();
    return std::exchange(waiting().hook, std::move(hook));
}

bool isWaitingUsed() {
    return static_cast<bool>(waiting().hook);
}

void whileWaiting() noexcept {
    if (!waiting().hook || waiting().running || Clock::now() - waiting().last < kPause) {
        return;
    }
    waiting().running = true;
    try {
        const auto hook = waiting().hook; // a copy, since it may set another
        hook();
    } catch (...) { // NOLINT(bugprone-empty-catch)
        // It would pass through the storage or the driver manager.
    }
    waiting().running = false;
    waiting().last = Clock::now();
}

void refuseWhileWaiting() {
    if (waiting().running) {
        throw Error(kStillExecuting);
    }
}

} // namespace ado

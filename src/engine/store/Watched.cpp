#include "engine/store/Watched.h"

#include "engine/store/Idler.h"

#include <sqlite3.h>

#include <algorithm>

namespace engine::sqlite {

namespace {

constexpr int kSteps = 10'000; // a few milliseconds

int keepOn(void* /*unused*/) {
    return idle() ? 0 : 1;
}

} // namespace

Watched::Watched(sqlite3* handle) : handle_(hasIdler() ? handle : nullptr) {
    if (handle_ != nullptr) {
        sqlite3_progress_handler(handle_, kSteps, keepOn, nullptr);
    }
}

Watched::~Watched() {
    if (handle_ != nullptr) {
        sqlite3_progress_handler(handle_, 0, nullptr, nullptr);
    }
}

int waitForWriter(void* patience, int times) {
    constexpr int kLongestPause = 25; // milliseconds; the first ones are shorter
    auto& wait = *static_cast<Patience*>(patience);
    const auto now = std::chrono::steady_clock::now();
    if (times == 0) {
        wait.since = now;
    }
    if (now - wait.since >= wait.most) {
        return 0;
    }
    sqlite3_sleep(std::min(times + 1, kLongestPause));
    return idle() ? 1 : 0;
}

} // namespace engine::sqlite

#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace desktop {

/// How long a test waits at most; only a program that hangs, or that does something else, takes as long.
inline constexpr std::chrono::seconds kPatience(60);

/// Waits until the condition is true; whether it came true in that time.
inline bool within(std::chrono::milliseconds patience, const std::function<bool()>& condition) {
    constexpr std::chrono::milliseconds kPause(10);
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
        std::this_thread::sleep_for(kPause);
    }
    return true;
}

} // namespace desktop

#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace monkey {

/// Ends the process with the story where one event takes longer than its patience.
class Watchdog {
public:
    Watchdog();
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// An event is over, or begins.
    void see() { seen_ = std::chrono::steady_clock::now().time_since_epoch().count(); }
    /// The longest that one event took so far.
    std::chrono::milliseconds longest() const { return longest_; }
    /// Like `see`, and takes the time since the last.
    void seeEnd();

private:
    void watch();
    std::chrono::steady_clock::duration sinceSeen() const;

    std::atomic<std::chrono::steady_clock::rep> seen_;
    std::chrono::milliseconds longest_{0};
    std::mutex mutex_;
    std::condition_variable over_;
    bool ends_ = false;
    std::thread thread_;
};

} // namespace monkey

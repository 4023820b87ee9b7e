#pragma once

#include <chrono>

struct sqlite3;

namespace engine::sqlite {

/// Lets the thread's idler run while SQLite works, for the length of a scope.
class Watched {
public:
    explicit Watched(sqlite3* handle);
    ~Watched();
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;

private:
    sqlite3* handle_; ///< nullptr where there is no idler
};

/// How long a connection waits for another writer.
struct Patience {
    static constexpr std::chrono::milliseconds kUsual{10'000};
    std::chrono::milliseconds most = kUsual;
    std::chrono::steady_clock::time_point since; ///< of the present wait
};

/// For sqlite3_busy_handler with a Patience: waits for another writer, and lets the thread's idler run meanwhile. 0
/// gives up.
int waitForWriter(void* patience, int times);

} // namespace engine::sqlite

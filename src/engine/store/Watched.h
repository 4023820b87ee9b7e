#pragma once

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

/// For sqlite3_busy_handler: waits for another writer, and lets the thread's idler run meanwhile. After some ten
/// seconds 0, which gives up.
int waitForWriter(void* unused, int times);

} // namespace engine::sqlite

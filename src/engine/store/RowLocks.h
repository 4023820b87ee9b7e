#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

namespace engine {

/// Holds on rows of one database, known to every session of every process that uses it; they end with their holder.
/// One object per session and database.
class RowLocks {
public:
    /// `database` is the database's file; the locks live in a file beside it.
    explicit RowLocks(const std::filesystem::path& database);
    ~RowLocks();
    RowLocks(const RowLocks&) = delete;
    RowLocks& operator=(const RowLocks&) = delete;

    /// False at once when another session holds the row. Counted: as many releases as acquires.
    bool acquire(std::string_view table, std::int64_t row);
    void release(std::string_view table, std::int64_t row);

    /// Asks once for the whole database, so that writers needn't ask for each row while no row is held.
    bool anyHeldByOthers() const;
    bool heldByOthers(std::string_view table, std::int64_t row) const;

    /// Whether any session has an object for the database.
    static bool databaseInUse(const std::filesystem::path& database);
    /// Removes the lock file of a database that is dropped.
    static void removeFile(const std::filesystem::path& database);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace engine

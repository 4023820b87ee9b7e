#pragma once

#include "engine/store/Catalog.h"
#include "engine/store/Sqlite.h"

#include <memory>
#include <random>
#include <string>
#include <unordered_map>

namespace engine {

/// The catalog's rows and the cache of them. Each change draws a random number and stores it as the file's
/// `user_version`, in the transaction of the change itself. Reading that number is cheap and tells whether the cache is
/// still right, after a rollback too.
struct Catalog::State {
    struct Entry {
        std::int64_t id = 0;
        TableInfo info;
    };

    /// Makes the catalog's own tables where they are missing.
    explicit State(sqlite::Connection& opened);

    std::int64_t storedVersion();
    void load();
    /// Reads one table anew.
    void reload(Entry& entry);
    /// Called before a change, so that the cache counts as stale where the change fails half way. The change itself
    /// keeps the cache up to date.
    void changed();
    /// Throws InternalError where there is none.
    Entry& entry(std::string_view name);

    Entry& insertTable(const std::string& name);
    void insertColumn(std::int64_t table, std::size_t place, const ColumnInfo& column);
    void insertKey(std::int64_t table, std::size_t number, const KeyInfo& key);
    void remove(std::string_view name);

    std::int64_t storedNext(std::int64_t table);
    void storeNext(std::int64_t table, std::int64_t next);

    sqlite::Connection& connection;
    std::int64_t version = -1;
    bool ownChange = false; ///< since the last refresh
    std::unordered_map<std::string, std::unique_ptr<Entry>> tables;
    std::unordered_map<std::int64_t, std::int64_t> given; ///< by table: the next identity as this session knows it

private:
    void readColumns(Entry& entry);
    void readKeys(Entry& entry);

    sqlite::Statement readVersion_, columnsOf_, keysOf_, readIdentity_, writeIdentity_;
    std::minstd_rand numbers_{std::random_device{}()};
};

} // namespace engine

#pragma once

#include "engine/store/Catalog.h"
#include "engine/store/Sqlite.h"

#include <memory>
#include <random>
#include <string>
#include <unordered_map>

namespace engine {

/// The catalog's rows and the cache of them. The number of the present description is kept in the file's
/// `user_version`: it is drawn anew by each change and stored in the transaction of the change itself, so that reading
/// it is the one cheap question that tells whether the cache still holds, after a rollback too.
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
    /// Comes before the change itself, so that whatever fails behind it makes the cache stale. The cache is kept up to
    /// date by the change.
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

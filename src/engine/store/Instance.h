#pragma once

#include "engine/store/Sqlite.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

struct InstanceOptions {
    /// Where a path of the server's own (`C:\vabo\sedi\x.mdf`) lies on this machine.
    std::function<std::filesystem::path(std::string_view)> mapPath;
};

struct DatabaseEntry {
    int id = 0;
    std::string name;
    std::filesystem::path file;
    std::string serverPath; ///< as CREATE DATABASE named it, or else the file's own
    std::string created;    ///< YYYY-MM-DD hh:mm:ss.mmm

    bool operator==(const DatabaseEntry&) const = default;
};

/// A folder with databases in it, each one file. Several processes may use one instance.
class Instance {
public:
    /// Throws std::filesystem::filesystem_error when the folder is missing or can't be used.
    static std::shared_ptr<Instance> open(const std::filesystem::path& folder, const InstanceOptions& options);
    /// Makes the folder (owner only) and an empty instance in it; opens what is there already.
    static std::shared_ptr<Instance> create(const std::filesystem::path& folder, const InstanceOptions& options);
    Instance(std::filesystem::path folder, InstanceOptions options, bool create);

    const std::filesystem::path& folder() const { return folder_; }
    /// False where the folder has gone, or another instance lies in it by now.
    bool isThere() const { return !registry_.isMoved(); }
    std::filesystem::path mapPath(std::string_view serverPath) const;

    std::vector<DatabaseEntry> databases() const;
    /// Names compare under the server's collation.
    std::optional<DatabaseEntry> database(std::string_view name) const;
    /// `fileName` empty: `<name>.mdf` in the instance; a bare name lies there too. Throws 1801, 5133, 5170.
    DatabaseEntry createDatabase(const std::string& name, const std::string& fileName, const std::string& logName);
    /// Throws 3701, 3702 while a session uses it, 3708 for the server's own.
    void dropDatabase(const std::string& name);

    /// Server options of sp_configure; see ServerOptions.h.
    struct Option {
        std::string name;
        long long minimum = 0, maximum = 0, configured = 0, running = 0;
        bool advanced = false;
    };
    std::vector<Option> options() const;
    /// `name` may be any part that only one option has. Throws 15123, 15124, 15129.
    void configure(const std::string& name, long long value);
    /// Makes the configured values the running ones.
    void reconfigure();

    /// The major version that the server reports; stored in the instance.
    int version() const;
    void setVersion(int version);
    static constexpr int kStandardVersion = 8;
    /// From this version on there is no sp_dboption.
    static constexpr int kFirstVersionWithoutDatabaseOptions = 11;

    /// Options of one database, as sp_dboption sets them; see DatabaseOptions.h. Throws 15010 for an unknown database,
    /// 15011 and 15242 for an option.
    std::vector<std::pair<std::string, bool>> databaseOptions(const std::string& database) const;
    void setDatabaseOption(const std::string& database, const std::string& option, bool value);

    /// Adds a login or changes its password. Names compare under the collation, passwords letter for letter.
    void addLogin(const std::string& user, const std::string& password);
    bool authenticates(const std::string& user, const std::string& password) const;

private:
    struct Place {
        std::string serverPath; ///< empty for a file in the instance
        std::string localName;  ///< empty for a file outside
        std::filesystem::path file;
    };

    void makeRegistry();
    void makeSystemDatabases();
    void insertDatabase(std::int64_t id, const std::string& name, const Place& place);
    Place placeOf(const std::string& name, const std::string& fileName) const;
    bool isTaken(const std::filesystem::path& file) const;
    void checkFolder(const std::string& serverPath) const;
    DatabaseEntry entryOf(const sqlite::Statement& row) const;
    std::optional<DatabaseEntry> find(std::string_view name) const;
    DatabaseEntry needed(const std::string& name) const;
    std::vector<Option> readOptions() const;

    std::filesystem::path folder_;
    InstanceOptions options_;
    mutable std::mutex mutex_; ///< sessions of several threads share an instance
    mutable sqlite::Connection registry_;
};

} // namespace engine

#pragma once

#include <filesystem>
#include <functional>
#include <memory>
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
};

/// A folder with databases in it, each one file. Several processes may use one instance.
class Instance {
public:
    /// Throws std::filesystem::filesystem_error when the folder is missing or can't be used.
    static std::shared_ptr<Instance> open(const std::filesystem::path& folder, const InstanceOptions& options);
    /// Makes the folder (owner only) and an empty instance in it; opens what is there already.
    static std::shared_ptr<Instance> create(const std::filesystem::path& folder, const InstanceOptions& options);
    virtual ~Instance() = default;

    virtual const std::filesystem::path& folder() const = 0;
    /// False where the folder has gone, or another instance lies in it by now.
    virtual bool isThere() const = 0;
    virtual std::filesystem::path mapPath(std::string_view serverPath) const = 0;

    virtual std::vector<DatabaseEntry> databases() const = 0;
    /// Names compare under the server's collation.
    virtual std::optional<DatabaseEntry> database(std::string_view name) const = 0;
    /// `fileName` empty: `<name>.mdf` in the instance; a bare name lies there too. Throws 1801, 5133, 5170.
    virtual DatabaseEntry createDatabase(const std::string& name, const std::string& fileName,
                                         const std::string& logName) = 0;
    /// Throws 3701, 3702 while a session uses it, 3708 for the server's own.
    virtual void dropDatabase(const std::string& name) = 0;

    /// Server options of sp_configure; see ServerOptions.h.
    struct Option {
        std::string name;
        long long minimum = 0, maximum = 0, configured = 0, running = 0;
        bool advanced = false;
    };
    virtual std::vector<Option> options() const = 0;
    /// `name` may be any part that only one option has. Throws 15123, 15124, 15129.
    virtual void configure(const std::string& name, long long value) = 0;
    /// Makes the configured values the running ones.
    virtual void reconfigure() = 0;

    /// The major version that the server reports; stored in the instance.
    virtual int version() const = 0;
    virtual void setVersion(int version) = 0;
    static constexpr int kStandardVersion = 8;
    /// From this version on there is no sp_dboption.
    static constexpr int kFirstVersionWithoutDatabaseOptions = 11;

    /// Options of one database, as sp_dboption sets them; see DatabaseOptions.h. Throws 15010 for an unknown database,
    /// 15011 and 15242 for an option.
    virtual std::vector<std::pair<std::string, bool>> databaseOptions(const std::string& database) const = 0;
    virtual void setDatabaseOption(const std::string& database, const std::string& option, bool value) = 0;

    /// Adds a login or changes its password. Names compare under the collation, passwords letter for letter.
    virtual void addLogin(const std::string& user, const std::string& password) = 0;
    virtual bool authenticates(const std::string& user, const std::string& password) const = 0;
};

} // namespace engine

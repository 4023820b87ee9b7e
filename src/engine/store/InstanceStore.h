#pragma once

#include "engine/store/Instance.h"
#include "engine/store/Sqlite.h"
#include "engine/text/ServerOptions.h"

#include <mutex>

namespace engine {

/// An instance whose registry of databases, options and logins lies in `instance.db` of its folder.
class InstanceStore : public Instance {
public:
    static std::filesystem::path registryFile(const std::filesystem::path& folder);

    InstanceStore(std::filesystem::path folder, InstanceOptions options, bool create);

    const std::filesystem::path& folder() const override { return folder_; }
    bool isThere() const override { return !registry_.isMoved(); }
    std::filesystem::path mapPath(std::string_view serverPath) const override;

    std::vector<DatabaseEntry> databases() const override;
    std::optional<DatabaseEntry> database(std::string_view name) const override;
    DatabaseEntry createDatabase(const std::string& name, const std::string& fileName,
                                 const std::string& logName) override;
    void dropDatabase(const std::string& name) override;

    std::vector<Option> options() const override;
    void configure(const std::string& name, long long value) override;
    void reconfigure() override;

    int version() const override;
    void setVersion(int version) override;

    std::vector<std::pair<std::string, bool>> databaseOptions(const std::string& database) const override;
    void setDatabaseOption(const std::string& database, const std::string& option, bool value) override;

    void addLogin(const std::string& user, const std::string& password) override;
    bool authenticates(const std::string& user, const std::string& password) const override;

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

#include "engine/store/Instance.h"

#include "engine/errors/StoreErrors.h"
#include "engine/store/RowLocks.h"
#include "engine/store/Watched.h"
#include "engine/values/Collation.h"
#include "engine/values/Conversions.h"
#include "os/Files.h"
#include "os/Machine.h"
#include "os/Paths.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <initializer_list>

namespace engine {
namespace {

constexpr const char* kRegistryTables = R"(
CREATE TABLE databases (
    id INTEGER PRIMARY KEY, name TEXT NOT NULL COLLATE TSQL UNIQUE,
    local_name TEXT NOT NULL, server_path TEXT NOT NULL, created TEXT NOT NULL);
CREATE TABLE database_options (
    database_id INTEGER NOT NULL, name TEXT NOT NULL, value INTEGER NOT NULL, PRIMARY KEY (database_id, name));
CREATE TABLE options (name TEXT PRIMARY KEY, configured INTEGER NOT NULL, running INTEGER NOT NULL);
CREATE TABLE logins (name TEXT PRIMARY KEY COLLATE TSQL, hash TEXT NOT NULL);
)";

constexpr std::string_view kDatabaseColumns = "SELECT id, name, local_name, server_path, created FROM databases ";

struct SystemDatabase {
    int id;
    const char* name;
    const char* file;
};

constexpr std::array kSystemDatabases{
    SystemDatabase{1, "master", "master.mdf"},
    SystemDatabase{2, "tempdb", "tempdb.mdf"},
    SystemDatabase{3, "model", "model.mdf"},
    SystemDatabase{4, "msdb", "msdbdata.mdf"},
};

constexpr std::string_view kSeparators = "\\/:";

/// Removes files of a database where they exist: the file itself for "", its log for "-wal", the log's index for
/// "-shm".
void removeParts(const std::filesystem::path& database, std::initializer_list<const char*> endings) {
    for (const char* ending : endings) {
        std::filesystem::path part = database;
        os::removeFile(part += ending);
    }
}

/// Where an open file can't be removed, another program's event may still have it open, without a session: an event
/// doesn't last long.
bool isSoonClosed(const std::filesystem::path& database) {
    sqlite::Patience patience;
    for (int times = 0; !os::canBeRemoved(database); ++times) {
        if (sqlite::waitForWriter(&patience, times) == 0) {
            return false;
        }
    }
    return true;
}

void makeEmptyFile(const std::filesystem::path& file) {
    if (!std::ofstream(file, std::ios::app)) {
        throw std::filesystem::filesystem_error("cannot make the file of a database", file,
                                                std::make_error_code(std::errc::io_error));
    }
    if (const std::error_code error = os::keepForOwner(file)) {
        throw std::filesystem::filesystem_error("cannot keep the file of a database for its owner", file, error);
    }
}

std::string now(sqlite::Connection& connection) {
    constexpr int kWithMilliseconds = 121;
    sqlite::Statement clock(connection, "SELECT strftime('%Y-%m-%d %H:%M:%f', 'now', 'localtime')");
    clock.step();
    return toDateTime(clock.text(0), kWithMilliseconds);
}

std::filesystem::path registryFile(const std::filesystem::path& folder) {
    return folder / "instance.db";
}

std::string fileNameOf(std::string name) {
    for (char& character : name) {
        if (kSeparators.find(character) != std::string_view::npos) {
            character = '_';
        }
    }
    return name + ".mdf";
}

} // namespace

std::shared_ptr<Instance> Instance::open(const std::filesystem::path& folder, const InstanceOptions& options) {
    const std::filesystem::path registry = registryFile(folder);
    if (!std::filesystem::is_regular_file(registry)) {
        throw std::filesystem::filesystem_error("no instance", registry,
                                                std::make_error_code(std::errc::no_such_file_or_directory));
    }
    return std::make_shared<Instance>(folder, options, false);
}

std::shared_ptr<Instance> Instance::create(const std::filesystem::path& folder, const InstanceOptions& options) {
    os::makePrivateFolders(folder); // whose rights are those of the files that SQLite makes, on some systems
    return std::make_shared<Instance>(folder, options, true);
}

Instance::Instance(std::filesystem::path folder, InstanceOptions options, bool create)
    : folder_(std::move(folder)), options_(std::move(options)), registry_(registryFile(folder_), create) {
    os::refuseTooLargeFiles();
    if (create) {
        makeRegistry();
    }
}

void Instance::makeRegistry() {
    sqlite::Transaction transaction(registry_);
    bool missing = true;
    {
        sqlite::Statement there(registry_, "SELECT 1 FROM sqlite_schema WHERE name = 'databases'");
        missing = !there.step();
    }
    if (missing) {
        registry_.run(kRegistryTables);
        makeSystemDatabases();
    }
    transaction.commit();
}

void Instance::makeSystemDatabases() {
    for (const SystemDatabase& database : kSystemDatabases) {
        const std::filesystem::path file = folder_ / database.file;
        makeEmptyFile(file);
        insertDatabase(database.id, database.name, {"", database.file, file});
    }
}

std::filesystem::path Instance::mapPath(std::string_view serverPath) const {
    return options_.mapPath ? options_.mapPath(serverPath) : os::pathOf(serverPath);
}

DatabaseEntry Instance::entryOf(const sqlite::Statement& row) const {
    const std::string_view localName = row.text(2);
    std::string serverPath(row.text(3));
    std::filesystem::path file = localName.empty() ? mapPath(serverPath) : folder_ / os::pathOf(localName);
    if (serverPath.empty()) {
        serverPath = os::utf8Of(file);
    }
    return {static_cast<int>(row.integer(0)), std::string(row.text(1)), std::move(file), std::move(serverPath),
            std::string(row.text(4))};
}

std::vector<DatabaseEntry> Instance::databases() const {
    const std::scoped_lock guard(mutex_);
    std::vector<DatabaseEntry> entries;
    sqlite::Statement rows(registry_, std::string(kDatabaseColumns) + "ORDER BY id");
    while (rows.step()) {
        entries.push_back(entryOf(rows));
    }
    return entries;
}

std::optional<DatabaseEntry> Instance::database(std::string_view name) const {
    const std::scoped_lock guard(mutex_);
    return find(name);
}

std::optional<DatabaseEntry> Instance::find(std::string_view name) const {
    sqlite::Statement row(registry_, std::string(kDatabaseColumns) + "WHERE name = ?1");
    row.bind(1, name);
    if (!row.step()) {
        return std::nullopt;
    }
    return entryOf(row);
}

/// The error names the file as the statement wrote it.
void Instance::checkFolder(const std::string& serverPath) const {
    if (serverPath.find_first_of(kSeparators) == std::string::npos) {
        return;
    }
    if (!std::filesystem::is_directory(mapPath(serverPath).parent_path())) {
        throw errors::directoryLookup(serverPath, "2(The system cannot find the file specified.)");
    }
}

Instance::Place Instance::placeOf(const std::string& name, const std::string& fileName) const {
    const std::string file = fileName.empty() ? fileNameOf(name) : fileName;
    if (file.find_first_of(kSeparators) == std::string::npos) {
        return {"", file, folder_ / os::pathOf(file)};
    }
    return {file, "", mapPath(file)};
}

/// An empty file without a database is free: a process left it that died before it had registered its database.
bool Instance::isTaken(const std::filesystem::path& file) const {
    if (std::filesystem::exists(file) && os::sizeOf(file) != 0U) {
        return true;
    }
    sqlite::Statement rows(registry_, kDatabaseColumns);
    while (rows.step()) {
        if (entryOf(rows).file == file) {
            return true;
        }
    }
    return false;
}

void Instance::insertDatabase(std::int64_t id, const std::string& name, const Place& place) {
    sqlite::Statement insert(registry_, "INSERT INTO databases VALUES (?1, ?2, ?3, ?4, ?5)");
    insert.bind(1, id);
    insert.bind(2, name);
    insert.bind(3, place.localName);
    insert.bind(4, place.serverPath);
    insert.bind(5, now(registry_));
    insert.step();
}

DatabaseEntry Instance::createDatabase(const std::string& name, const std::string& fileName,
                                       const std::string& logName) {
    const std::scoped_lock guard(mutex_);
    sqlite::Transaction transaction(registry_);
    if (find(name)) {
        throw errors::databaseExists(name);
    }
    checkFolder(fileName);
    checkFolder(logName);
    const Place place = placeOf(name, fileName);
    if (isTaken(place.file)) {
        throw errors::fileExists(fileName.empty() ? place.localName : fileName);
    }
    removeParts(place.file, {"-wal", "-shm"}); // left where a process was killed while it dropped a database
    makeEmptyFile(place.file);

    sqlite::Statement freeId(registry_,
                             "SELECT min(id) + 1 FROM databases WHERE id + 1 NOT IN (SELECT id FROM databases)");
    freeId.step();
    insertDatabase(freeId.integer(0), name, place);
    freeId.reset();
    transaction.commit();
    return needed(name);
}

void Instance::dropDatabase(const std::string& name) {
    const std::scoped_lock guard(mutex_);
    sqlite::Transaction transaction(registry_);
    const std::optional<DatabaseEntry> entry = find(name);
    if (!entry) {
        throw errors::cannotDrop("database", name);
    }
    if (entry->id <= static_cast<int>(kSystemDatabases.size())) {
        throw errors::systemDatabase(entry->name);
    }
    if (RowLocks::databaseInUse(entry->file) || !isSoonClosed(entry->file)) {
        throw errors::databaseInUse(entry->name);
    }
    for (const char* text :
         {"DELETE FROM databases WHERE id = ?1", "DELETE FROM database_options WHERE database_id = ?1"}) {
        sqlite::Statement remove(registry_, text);
        remove.bind(1, std::int64_t{entry->id});
        remove.step();
    }
    transaction.commit();
    removeParts(entry->file, {"", "-wal", "-shm"});
    RowLocks::removeFile(entry->file);
}

DatabaseEntry Instance::needed(const std::string& name) const {
    std::optional<DatabaseEntry> entry = find(name);
    if (!entry) {
        throw errors::databaseUnknown(name);
    }
    return *std::move(entry);
}

} // namespace engine

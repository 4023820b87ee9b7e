// The settings of an instance: options of the server, options of its databases, logins.

#include "engine/store/Instance.h"
#include "engine/text/DatabaseOptions.h"
#include "engine/text/ServerOptions.h"
#include "os/Passwords.h"

#include <algorithm>

namespace engine {

namespace {

constexpr std::string_view kVersionOption = "server version"; ///< sp_configure has no option of this name

} // namespace

std::vector<Instance::Option> Instance::readOptions() const {
    std::vector<Option> all;
    for (const ServerOption& option : serverOptions()) {
        all.push_back({option.name, option.minimum, option.maximum, option.standard, option.standard, option.advanced});
    }
    sqlite::Statement rows(registry_, "SELECT name, configured, running FROM options");
    while (rows.step()) {
        const auto option =
            std::find_if(all.begin(), all.end(), [&](const Option& o) { return o.name == rows.text(0); });
        if (option != all.end()) {
            option->configured = rows.integer(1);
            option->running = rows.integer(2);
        }
    }
    return all;
}

std::vector<Instance::Option> Instance::options() const {
    const std::scoped_lock guard(mutex_);
    return readOptions();
}

void Instance::configure(const std::string& name, long long value) {
    const std::scoped_lock guard(mutex_);
    sqlite::Transaction transaction(registry_);
    const std::vector<Option> all = readOptions();
    const bool advancedShown = std::any_of(
        all.begin(), all.end(), [](const Option& o) { return o.name == kShowAdvancedOptions && o.running != 0; });
    const ServerOption& option = serverOption(name, advancedShown);
    checkServerOptionValue(option, value);

    sqlite::Statement store(registry_, "INSERT INTO options VALUES (?1, ?2, ?3) "
                                       "ON CONFLICT (name) DO UPDATE SET configured = ?2");
    store.bind(1, std::string_view(option.name));
    store.bind(2, std::int64_t{value});
    store.bind(3, std::int64_t{option.standard});
    store.step();
    transaction.commit();
}

void Instance::reconfigure() {
    const std::scoped_lock guard(mutex_);
    registry_.run("UPDATE options SET running = configured WHERE running <> configured");
}

int Instance::version() const {
    const std::scoped_lock guard(mutex_);
    sqlite::Statement row(registry_, "SELECT running FROM options WHERE name = ?1");
    row.bind(1, kVersionOption);
    return row.step() ? static_cast<int>(row.integer(0)) : kStandardVersion;
}

void Instance::setVersion(int version) {
    const std::scoped_lock guard(mutex_);
    sqlite::Statement store(registry_, "INSERT OR REPLACE INTO options VALUES (?1, ?2, ?2)");
    store.bind(1, kVersionOption);
    store.bind(2, std::int64_t{version});
    store.step();
}

std::vector<std::pair<std::string, bool>> Instance::databaseOptions(const std::string& database) const {
    const std::scoped_lock guard(mutex_);
    sqlite::Statement row(registry_, "SELECT value FROM database_options WHERE database_id = ?1 AND name = ?2");
    row.bind(1, std::int64_t{needed(database).id});
    std::vector<std::pair<std::string, bool>> values;
    for (const DatabaseOption& option : engine::databaseOptions()) {
        row.bind(2, std::string_view(option.name));
        values.emplace_back(option.name, row.step() ? row.integer(0) != 0 : option.standard);
        row.reset();
    }
    return values;
}

void Instance::setDatabaseOption(const std::string& database, const std::string& option, bool value) {
    const std::scoped_lock guard(mutex_);
    const DatabaseEntry entry = needed(database);
    const DatabaseOption& known = databaseOption(option);
    sqlite::Statement store(registry_, "INSERT OR REPLACE INTO database_options VALUES (?1, ?2, ?3)");
    store.bind(1, std::int64_t{entry.id});
    store.bind(2, std::string_view(known.name));
    store.bind(3, std::int64_t{value});
    store.step();
}

void Instance::addLogin(const std::string& user, const std::string& password) {
    const std::scoped_lock guard(mutex_);
    sqlite::Statement store(registry_, "INSERT OR REPLACE INTO logins VALUES (?1, ?2)");
    store.bind(1, user);
    store.bind(2, os::hashPassword(password));
    store.step();
}

bool Instance::authenticates(const std::string& user, const std::string& password) const {
    const std::scoped_lock guard(mutex_);
    sqlite::Statement row(registry_, "SELECT hash FROM logins WHERE name = ?1");
    row.bind(1, user);
    return row.step() && os::passwordMatches(password, std::string(row.text(0)));
}

} // namespace engine

// What a session answers when a statement asks about the server, the session or its databases.

#include "engine/run/ServerSession.h"
#include "engine/store/Host.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <utility>

namespace engine {

namespace {

constexpr int kBitsBehindVersion = 24;

std::string versionText(const Instance& instance) {
    return std::to_string(instance.version()) + ".00";
}

std::string serverName(const Instance& instance) {
    std::string name = instance.folder().filename().string();
    for (char& c : name) {
        c = c == '$' ? '\\' : c;
    }
    return name;
}

Scalar serverProperty(const std::string& property, const Instance& instance) {
    const std::pair<const char*, Scalar> properties[] = {
        {"ServerName", serverName(instance)},           {"ProductVersion", versionText(instance)},
        {"Edition", std::string("Embedded")},           {"Collation", std::string("Latin1_General_CI_AS")},
        {"IsIntegratedSecurityOnly", std::string("0")},
    };
    for (const auto& [name, value] : properties) {
        if (sameText(name, property)) {
            return value;
        }
    }
    return {};
}

/// The number of a table among those of its database, counted from 1.
std::int64_t numberOf(const TableInfo& table, Catalog& catalog) {
    const std::vector<std::string> names = catalog.tableNames();
    return std::find(names.begin(), names.end(), table.name) - names.begin() + 1;
}

} // namespace

Scalar ServerSession::fact(Fact fact, const Scalar& argument) {
    const auto* text = std::get_if<std::string>(&argument);
    const auto table = [&] {
        return text == nullptr ? nullptr : current_->catalog().table(text->substr(text->rfind('.') + 1));
    };
    switch (fact) {
    case Fact::CurrentIdentity: {
        const TableInfo* info = table();
        return info == nullptr || info->identity() == nullptr ? Scalar() : current_->catalog().currentIdentity(*info);
    }
    case Fact::DatabaseId: {
        const auto entry = text == nullptr ? std::optional(current_->entry()) : instance_->database(*text);
        return entry ? Scalar(std::int64_t{entry->id}) : Scalar();
    }
    case Fact::DatabaseName: {
        const auto* id = std::get_if<std::int64_t>(&argument);
        if (id == nullptr) {
            return current_->name();
        }
        for (const DatabaseEntry& entry : instance_->databases()) {
            if (entry.id == *id) {
                return entry.name;
            }
        }
        return {};
    }
    case Fact::Error:
        return std::int64_t{lastError_};
    case Fact::FirstDayOfWeek:
        return std::int64_t{settings.firstDayOfWeek};
    case Fact::Host:
        return hostName();
    case Fact::Language:
        return settings.language;
    case Fact::LastIdentity:
        return lastIdentity_ == 0 ? Scalar() : Scalar(lastIdentity_);
    case Fact::LockTimeout:
        return settings.lockTimeout;
    case Fact::Login:
        return login_.user.empty() ? std::string("sa") : login_.user;
    case Fact::ObjectId: {
        const TableInfo* info = table();
        return info == nullptr ? Scalar() : Scalar(numberOf(*info, current_->catalog()));
    }
    case Fact::Options:
        return settings.options();
    case Fact::Process:
        return processNumber();
    case Fact::RowCount:
        return rowCount_;
    case Fact::ServerName:
        return serverName(*instance_);
    case Fact::ServerProperty:
        return text == nullptr ? Scalar() : serverProperty(*text, *instance_);
    case Fact::Transactions:
        return std::int64_t{transactions_};
    case Fact::User:
        return std::string("dbo");
    case Fact::Version:
        return "Embedded server " + versionText(*instance_);
    case Fact::VersionNumber:
        return std::int64_t{instance_->version()} << kBitsBehindVersion;
    case Fact::WidestDecimal:
        return std::int64_t{kWidestDecimal};
    }
    return {};
}

} // namespace engine

// What a session answers when a statement asks about the server, the session or its databases.

#include "engine/errors/Error.h"
#include "engine/run/ServerSession.h"
#include "engine/store/Host.h"
#include "engine/values/Collation.h"

#include <utility>

namespace engine {

namespace {

constexpr int kBitsBehindVersion = 24;
constexpr const char* kLanguage = "us_english";
constexpr std::int64_t kQuotedIdentifierAndNulls = 5496; ///< the usual settings of a connection, as bits
constexpr std::int64_t kWidestDecimal = 38;

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

} // namespace

Scalar ServerSession::fact(std::string_view name, const Scalar& argument) {
    const auto* text = std::get_if<std::string>(&argument);
    const auto table = [&] { return current_->catalog().table(text->substr(text->rfind('.') + 1)); };
    if (name == "@@IDENTITY" || name == "SCOPE_IDENTITY") {
        return lastIdentity_ == 0 ? Scalar() : Scalar(lastIdentity_);
    }
    if (name == "IDENT_CURRENT") {
        const TableInfo* info = text == nullptr ? nullptr : table();
        return info == nullptr || info->identity() == nullptr ? Scalar() : current_->catalog().currentIdentity(*info);
    }
    if (name == "OBJECT_ID") {
        const TableInfo* info = text == nullptr ? nullptr : table();
        if (info == nullptr) {
            return {};
        }
        std::int64_t id = 1;
        for (const std::string& one : current_->catalog().tableNames()) {
            if (one == info->name) {
                break;
            }
            ++id;
        }
        return id;
    }
    if (name == "DB_NAME") {
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
    if (name == "DB_ID") {
        const auto entry = text == nullptr ? std::optional(current_->entry()) : instance_->database(*text);
        return entry ? Scalar(std::int64_t{entry->id}) : Scalar();
    }
    if (name == "SERVERPROPERTY") {
        return text == nullptr ? Scalar() : serverProperty(*text, *instance_);
    }
    if (name == "SUSER_SNAME") {
        return login_.user.empty() ? std::string("sa") : login_.user;
    }
    const std::pair<std::string_view, Scalar> plain[] = {
        {"@@ROWCOUNT", rowCount_},
        {"@@ERROR", std::int64_t{lastError_}},
        {"@@TRANCOUNT", std::int64_t{transactions_}},
        {"@@SPID", processNumber()},
        {"@@SERVERNAME", serverName(*instance_)},
        {"@@VERSION", "Embedded server " + versionText(*instance_)},
        {"@@MICROSOFTVERSION", std::int64_t{instance_->version()} << kBitsBehindVersion},
        {"@@LANGUAGE", std::string(kLanguage)},
        {"@@MAX_PRECISION", kWidestDecimal},
        {"@@OPTIONS", kQuotedIdentifierAndNulls},
        {"USER_NAME", std::string("dbo")},
        {"HOST_NAME", hostName()},
    };
    for (const auto& [known, value] : plain) {
        if (known == name) {
            return value;
        }
    }
    throw InternalError("nobody knows " + std::string(name));
}

} // namespace engine

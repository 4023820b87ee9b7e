// What a session answers when a statement asks about the server, the session or its databases.

#include "engine/run/ServerSession.h"
#include "engine/run/SystemTables.h"
#include "engine/values/Collation.h"
#include "os/Machine.h"
#include "os/Paths.h"

#include <algorithm>
#include <utility>

namespace engine {

namespace {

std::string versionText(const Instance& instance) {
    return std::to_string(instance.version()) + ".00";
}

std::string serverName(const Instance& instance) {
    std::string name = os::utf8Of(instance.folder().filename());
    std::replace(name.begin(), name.end(), '$', '\\');
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

/// The pieces of a name, from the last to the first, without brackets and quotes.
std::vector<std::string> piecesOf(std::string_view name) {
    std::vector<std::string> pieces(1);
    char closing = '\0';
    for (const char c : name) {
        if (closing != '\0') {
            if (c == closing) {
                closing = '\0';
            } else {
                pieces.back() += c;
            }
        } else if (c == '[' || c == '"') {
            closing = c == '[' ? ']' : c;
        } else if (c == '.') {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return {pieces.rbegin(), pieces.rend()};
}

} // namespace

Scalar ServerSession::objectOf(const std::vector<std::string>& pieces) {
    const bool ofDbo = pieces.size() < 2 || pieces[1].empty() || sameText(pieces[1], "dbo");
    // The present database isn't refreshed: the statement that asks uses its tables as they are.
    const bool elsewhere = pieces.size() > 2 && !pieces[2].empty() && !sameText(pieces[2], current_->name());
    const std::shared_ptr<Database> database = elsewhere ? open(pieces[2]) : current_;
    if (!ofDbo || database == nullptr) {
        return {};
    }
    if (elsewhere) {
        database->refresh();
    }
    const TableInfo* table = database->catalog().table(pieces.front());
    return table == nullptr ? Scalar() : Scalar(objectId(*database, *table));
}

Scalar ServerSession::fact(Fact fact, const Scalar& argument) {
    const auto* text = std::get_if<std::string>(&argument);
    const auto table = [&]() -> const TableInfo* {
        return text == nullptr ? nullptr : current_->catalog().table(piecesOf(*text).front());
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
        return os::hostName();
    case Fact::Language:
        return settings.language;
    case Fact::LastIdentity:
        return lastIdentity_ == 0 ? Scalar() : Scalar(lastIdentity_);
    case Fact::LockTimeout:
        return settings.lockTimeout;
    case Fact::Login:
        return login_.user.empty() ? std::string("sa") : login_.user;
    case Fact::ObjectId: {
        return text == nullptr ? Scalar() : objectOf(piecesOf(*text));
    }
    case Fact::Options:
        return settings.options();
    case Fact::Process:
        return os::processNumber();
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
    case Fact::WidestDecimal:
        return std::int64_t{kWidestDecimal};
    }
    return {};
}

} // namespace engine

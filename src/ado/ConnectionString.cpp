#include "ado/ConnectionString.h"

#include "ado/Names.h"
#include "ado/Text.h"

#include <algorithm>
#include <initializer_list>

namespace ado {

namespace {

/// The value up to the closing mark, which is doubled inside the value. Text between the mark and the next ";" is
/// ignored. Without a closing mark all the rest is the value.
std::string takeMarked(std::string_view& rest, char close) {
    std::string value;
    rest.remove_prefix(1);
    while (!rest.empty()) {
        const char c = rest.front();
        rest.remove_prefix(1);
        if (c == close) {
            if (!rest.starts_with(close)) {
                break;
            }
            rest.remove_prefix(1);
        }
        value += c;
    }
    rest.remove_prefix(std::min(rest.find(';'), rest.size()));
    return value;
}

std::string takeValue(std::string_view& rest) {
    while (!rest.empty() && isBlank(rest.front())) {
        rest.remove_prefix(1);
    }
    if (rest.starts_with('{')) {
        return takeMarked(rest, '}');
    }
    if (rest.starts_with('"') || rest.starts_with('\'')) {
        return takeMarked(rest, rest.front());
    }
    const std::string_view value = rest.substr(0, rest.find(';'));
    rest.remove_prefix(value.size());
    return std::string(trimmed(value));
}

} // namespace

ConnectionString::ConnectionString(std::string_view text) : text_(text) {
    std::string_view rest = text_;
    while (!rest.empty()) {
        const std::string_view key = rest.substr(0, rest.find_first_of("=;"));
        rest.remove_prefix(key.size());
        if (rest.starts_with('=')) {
            rest.remove_prefix(1);
            std::string value = takeValue(rest);
            if (!trimmed(key).empty()) {
                pairs_.emplace_back(trimmed(key), std::move(value));
            }
        }
        if (!rest.empty()) {
            rest.remove_prefix(1);
        }
    }
}

std::string ConnectionString::firstOf(std::initializer_list<std::string_view> names) const {
    for (const auto& [key, value] : pairs_) {
        const auto isThis = [&key = key](std::string_view name) { return sameName(key, name); };
        if (std::ranges::any_of(names, isThis)) {
            return value;
        }
    }
    return {};
}

std::optional<std::string> ConnectionString::value(std::string_view key) const {
    const auto found = std::ranges::find_if(pairs_, [&](const auto& pair) { return sameName(pair.first, key); });
    return found == pairs_.end() ? std::nullopt : std::optional(found->second);
}

std::string ConnectionString::provider() const {
    return firstOf({"Provider"});
}
std::string ConnectionString::server() const {
    return firstOf({"Server", "Data Source"});
}
std::string ConnectionString::database() const {
    return firstOf({"Database", "Initial Catalog"});
}
std::string ConnectionString::user() const {
    return firstOf({"UID", "ID utente", "User ID"});
}
std::string ConnectionString::password() const {
    return firstOf({"PWD", "Password"});
}

} // namespace ado

#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ado {

/// The keys and values of a connection text. Values may be in braces or quotes. Where a key occurs twice, its first
/// value counts.
class ConnectionString {
public:
    explicit ConnectionString(std::string_view text);

    const std::string& text() const { return text_; }
    std::optional<std::string> value(std::string_view key) const; ///< key in any case

    std::string provider() const; ///< Provider
    std::string server() const;   ///< Server, Data Source
    std::string database() const; ///< DATABase, Initial Catalog
    std::string user() const;     ///< UID, ID utente, User ID
    std::string password() const; ///< PWD, Password

private:
    /// The value of the first key that is one of the names; empty where there is none.
    std::string firstOf(std::initializer_list<std::string_view> names) const;

    std::string text_;
    std::vector<std::pair<std::string, std::string>> pairs_;
};

} // namespace ado

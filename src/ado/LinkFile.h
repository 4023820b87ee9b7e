#pragma once

#include "ado/Value.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

namespace engine::sqlite {
class Connection;
}

namespace ado {

/// The catalog of a local database file: its tables, and where those that are links lead. It is a SQLite file with the
/// one table `tables`. Everything throws Error; what was written is in the file when the call returns.
class LinkFile {
public:
    struct Entry {
        std::int64_t id = 0;
        Value type, name; ///< null where the file has none
    };

    /// Whether a file is a catalog. Writes nothing to it.
    static bool isOne(const std::filesystem::path& file);
    /// Creates an empty catalog that only its owner can read. Where the file exists, it must be empty.
    static LinkFile create(const std::filesystem::path& file);
    /// Opens an existing catalog, which from then on only its owner can read. Any other file is refused unchanged, and
    /// so is one that another program keeps for itself.
    explicit LinkFile(const std::filesystem::path& file);
    LinkFile(LinkFile&&) noexcept;
    LinkFile& operator=(LinkFile&&) noexcept;
    ~LinkFile();

    /// The tables in the order in which they were added.
    std::vector<Entry> entries();
    /// The text by which a table is reached; null where it has none.
    Value provider(std::int64_t id);
    void setProvider(std::int64_t id, std::string_view text);
    void add(std::string_view type, std::string_view name, const Value& provider);

private:
    explicit LinkFile(std::unique_ptr<engine::sqlite::Connection> connection);

    std::unique_ptr<engine::sqlite::Connection> connection_;
};

} // namespace ado

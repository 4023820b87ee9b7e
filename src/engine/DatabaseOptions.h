#pragma once

#include <span>
#include <string_view>

namespace engine {

/// An option of sp_dboption as a new database has it.
struct DatabaseOption {
    const char* name;
    bool standard;
};

std::span<const DatabaseOption> databaseOptions();

/// By its name or a part that only one option has. Throws 15011 where there is none, 15242 where there are several.
const DatabaseOption& databaseOption(std::string_view name);

} // namespace engine

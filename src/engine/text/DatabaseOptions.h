#pragma once

#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace engine {

/// An option of sp_dboption as a new database has it.
struct DatabaseOption {
    const char* name;
    bool standard;
    const char* toggle = ""; ///< the setting of ALTER DATABASE that turns it on and off
};

std::span<const DatabaseOption> databaseOptions();

/// By its name or a part that only one option has. Throws 15011 where there is none, 15242 where there are several.
const DatabaseOption& databaseOption(std::string_view name);

/// What `ALTER DATABASE … SET option value` does: options of sp_dboption and the values that they take. Nothing where
/// there is no such setting; `value` is empty for a word alone, as READ_ONLY.
std::vector<std::pair<const char*, bool>> databaseSetting(std::string_view option, std::string_view value);
inline bool isDatabaseSetting(std::string_view option, std::string_view value) {
    return !databaseSetting(option, value).empty();
}

} // namespace engine

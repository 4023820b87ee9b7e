#pragma once

#include <string_view>
#include <vector>

namespace provision {

struct Script {
    std::string_view name; ///< file name, `company.sql`
    std::string_view text;
};

/// The scripts of schema/ and data/, which are compiled into the program.
const std::vector<Script>& scripts();

/// The text of one script. Throws std::out_of_range for an unknown name.
std::string_view script(std::string_view name);

/// The batches of a script, which lines `GO` separate; without empty ones.
std::vector<std::string_view> batches(std::string_view script);

} // namespace provision

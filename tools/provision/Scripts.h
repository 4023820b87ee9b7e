#pragma once

#include <string_view>
#include <vector>

namespace provision {

struct Script {
    std::string_view name; ///< file name, `company.sql`
    std::string_view text;
};

/// The scripts of schema/ and data/, part of the program.
const std::vector<Script>& scripts();

/// The text of one of them. Throws std::out_of_range.
std::string_view script(std::string_view name);

/// The batches of a script: what stands between its lines `GO`, empty ones left out.
std::vector<std::string_view> batches(std::string_view script);

} // namespace provision

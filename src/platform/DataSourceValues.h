#pragma once

#include <string>
#include <utility>
#include <vector>

namespace platform::odbcfile {

/// Keys and their values. The case of keys doesn't matter.
using DataSourceValues = std::vector<std::pair<std::string, std::string>>;

/// In bytes, with key, "=" and line feed. ODBC's library reads lines of files up to that length; it would read the rest
/// of a longer one as another line.
inline constexpr std::size_t kLongestLine = 999;

/// Whether the text is a name without control characters and without blanks at its ends.
bool isPlainName(const std::string& name);

/// The values as they are stored and read again: control characters are blanks, and blanks at the ends are cut. Throws
/// std::runtime_error where a line gets too long.
DataSourceValues storable(const DataSourceValues& values);

} // namespace platform::odbcfile

#pragma once

// The user's own file of ODBC data sources, through ODBC's installer interface. Each operating system has one source
// file that implements it.

#include <string>
#include <utility>
#include <vector>

namespace platform::machine {

/// Keys and their values. The case of keys doesn't matter.
using DataSourceValues = std::vector<std::pair<std::string, std::string>>;

/// Whether a data source may have that name.
bool isDataSourceName(const std::string& name);

bool hasDataSource(const std::string& name);

/// Writes these values of a data source; everything else in the file stays. The file is replaced as a whole, so that a
/// kill leaves the old or the new one, and isn't written where it has the values already. In values, control characters
/// become blanks, and blanks at the ends are cut. Throws std::runtime_error, with nothing changed, where a line gets
/// too long for the file or the file can't be written.
void writeDataSource(const std::string& name, const DataSourceValues& values);

} // namespace platform::machine

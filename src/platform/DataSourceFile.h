#pragma once

// The user's own file of data sources, by the interface that the installer of ODBC offers; one source file a system
// implements it.

#include <string>
#include <utility>
#include <vector>

namespace platform::machine {

/// Keys and their values. Keys know no case.
using DataSourceValues = std::vector<std::pair<std::string, std::string>>;

/// Whether a data source may have that name.
bool isDataSourceName(const std::string& name);

bool hasDataSource(const std::string& name);

/// Gives a data source these values; what else the file holds keeps its values. Whoever looks, even after a kill, finds
/// the old file or the new one, and a file that holds the values already isn't touched. Control characters become
/// blanks, blanks at the ends are dropped. Throws std::runtime_error where a line gets too long for the file or it
/// can't be written; nothing has changed then.
void writeDataSource(const std::string& name, const DataSourceValues& values);

} // namespace platform::machine

#pragma once

// The user's own ODBC data sources, through ODBC's installer interface. Where they are kept depends on the system: in a
// file, or in the registry.

#include "platform/DataSourceValues.h"

#include <string>

namespace platform::odbcfile {

/// Whether a data source may have that name.
bool isDataSourceName(const std::string& name);

bool hasDataSource(const std::string& name);

/// Writes these values of a data source as storable() gives them; everything else stays, and nothing is written where
/// the values are there already. A file is replaced as a whole, so that a kill leaves the old or the new one; in the
/// registry a kill leaves the values that were written until then. Throws std::runtime_error, with nothing changed,
/// where a line gets too long; and where the values can't be written.
void writeDataSource(const std::string& name, const DataSourceValues& values);

} // namespace platform::odbcfile

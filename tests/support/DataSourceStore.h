#pragma once

#include <filesystem>
#include <string>

// The user's ODBC data sources of the running test, apart from those of whoever runs it: in a file, or, where the
// system keeps them in its registry, in a part of it that ends with the process.

namespace support {

/// From now on the user's data sources of this process are those of that file (in the registry: those that go by its
/// name), and so are those of processes that it starts, where the system lets a test say so (see Capabilities.h).
void useDataSourceFile(const std::filesystem::path& file);
std::filesystem::path dataSourceFileInUse();

/// All of them as the text of such a file, empty where there are none.
std::string dataSourceText(const std::filesystem::path& file);
/// Replaces all of them by those of a text.
void putDataSources(const std::filesystem::path& file, const std::string& text);

} // namespace support

#pragma once

#include "support/TestWorkstation.h"

#include <map>
#include <string>
#include <vector>

namespace support {

/// What the program keeps: the rows of each table, the lines of each pointer file, the entries of each local file.
using Stored = std::map<std::string, std::vector<TestWorkstation::Row>>;

/// Everything of the workstation and its server. Tables of the company have their bare names, those of the other
/// databases names like VaBoDatiTemp.dbo.Version; files have their path in small letters; besides there are
/// "databases", "sources" (the user's file of data sources) and "options" (those of the local databases).
Stored allStored(const TestWorkstation& posto);

/// Fails where somebody holds rows of a table of that name; files and lists are passed over.
void expectFree(const TestWorkstation& posto, const std::string& name);

} // namespace support

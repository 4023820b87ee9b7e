#pragma once

#include "support/TestWorkstation.h"

#include <string>
#include <vector>

namespace monkey {

/// What is wrong with the stack of forms, empty where nothing is. `names` are the program's forms.
std::string stackFault(const std::vector<std::string>& names);

/// Fails the test where a database file isn't sound, or where another session can't read every table of every database.
void checkDatabases(const support::TestWorkstation& workstation);

} // namespace monkey

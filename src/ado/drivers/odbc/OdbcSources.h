#pragma once

#include "ado/Driver.h"

#include <string>
#include <vector>

namespace ado::odbc {

/// Names the table and the columns behind the fields of a SELECT on one table, as its text tells them: results of this
/// road don't. Fields of expressions, and all fields of any other statement, stay without.
void nameSources(const std::string& statement, std::vector<FieldDescription>& fields);

} // namespace ado::odbc

#pragma once

#include "ado/Driver.h"

#include <string>
#include <vector>

namespace ado::odbc {

/// Fills in table and columns of the fields of a SELECT on one table, read from its text, since ODBC results don't
/// contain them. Fields of expressions and all fields of other statements stay without.
void nameSources(const std::string& statement, std::vector<FieldDescription>& fields);

} // namespace ado::odbc

#pragma once

#include "engine/text/Tree.h"

#include <string>

namespace engine {

/// Trees as nested lists, one line, for tests and for looking at what a text was taken for:
/// `(select (column T.id) (from (table sedi T)) (where (= (column id) 5)))`.
std::string print(const Expression& expression);
std::string print(const Select& select);
std::string print(const TableSource& source);
std::string print(const Statement& statement);
/// One line a statement.
std::string print(const BatchTree& batch);

} // namespace engine

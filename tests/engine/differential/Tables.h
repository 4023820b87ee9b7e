#pragma once

// Two tables `t` and `u` of all types with random rows, and indexes for them.

#include "engine/differential/Dice.h"

#include <string>
#include <vector>

namespace engine::differential {

/// CREATE TABLE and INSERT for both tables. The column `id` tells their rows apart, and no key says so.
std::vector<std::string> tables(Dice& dice);

/// Statements that add indexes and keys to `t` and `u`, each of which stands for itself: one that asks for unique
/// values is refused where the rows have doubles.
struct IndexStatement {
    std::string text;
    std::string table;
    std::string uniqueColumns; ///< separated by commas; empty where doubles are allowed
};
std::vector<IndexStatement> indexes(Dice& dice);

} // namespace engine::differential

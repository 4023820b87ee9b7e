#pragma once

#include "engine/values/DataType.h"

#include <string>

namespace engine {

/// One column of a result. The base names are empty for an expression.
struct ResultColumn {
    std::string name;
    DataType type;
    bool nullable = true;
    bool identity = false;
    bool key = false; ///< part of the primary key of its table
    std::string baseTable;
    std::string baseColumn;
};

} // namespace engine

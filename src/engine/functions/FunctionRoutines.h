#pragma once

// A thin layer over the storage's interface for routines: arguments as scalars, results as scalars, refusals as
// exceptions.

#include "engine/functions/Functions.h"

#include <span>
#include <vector>

namespace engine {

using Arguments = std::span<const Scalar>;
using Routine = Scalar (*)(FunctionContext& context, Arguments arguments);

struct RoutineEntry {
    const char* name;
    int arguments; ///< -1: any number
    Routine routine;
    /// NULL among the arguments gives NULL without a call.
    bool nullGivesNull = true;
};

std::span<const RoutineEntry> textRoutines();
std::span<const RoutineEntry> dateRoutines();
std::span<const RoutineEntry> numberRoutines();

inline const std::string& textAt(Arguments arguments, std::size_t place) {
    return std::get<std::string>(arguments[place]);
}

inline std::int64_t integerAt(Arguments arguments, std::size_t place) {
    return std::get<std::int64_t>(arguments[place]);
}

double numberAt(Arguments arguments, std::size_t place);

} // namespace engine

#include "engine/DatabaseOptions.h"

#include "engine/Error.h"
#include "engine/OptionNames.h"

#include <array>

namespace engine {
namespace {

constexpr std::array options{
    DatabaseOption{"ANSI null default", false},
    DatabaseOption{"ANSI nulls", false},
    DatabaseOption{"ANSI padding", false},
    DatabaseOption{"ANSI warnings", false},
    DatabaseOption{"arithabort", false},
    DatabaseOption{"auto create statistics", true},
    DatabaseOption{"auto update statistics", true},
    DatabaseOption{"autoclose", false},
    DatabaseOption{"autoshrink", false},
    DatabaseOption{"concat null yields null", false},
    DatabaseOption{"cursor close on commit", false},
    DatabaseOption{"db chaining", false},
    DatabaseOption{"dbo use only", false},
    DatabaseOption{"default to local cursor", false},
    DatabaseOption{"merge publish", false},
    DatabaseOption{"numeric roundabort", false},
    DatabaseOption{"offline", false},
    DatabaseOption{"published", false},
    DatabaseOption{"quoted identifier", false},
    DatabaseOption{"read only", false},
    DatabaseOption{"recursive triggers", false},
    DatabaseOption{"select into/bulkcopy", false},
    DatabaseOption{"single user", false},
    DatabaseOption{"subscribed", false},
    DatabaseOption{"torn page detection", true},
    DatabaseOption{"trunc. log on chkpt.", false},
};

} // namespace

std::span<const DatabaseOption> databaseOptions() {
    return options;
}

const DatabaseOption& databaseOption(std::string_view name) {
    const auto match = matchOption(databaseOptions(), name, [](const DatabaseOption&) { return true; });
    if (match.count == 0) {
        throw Error(15011, "Database option '" + std::string(name) + "' does not exist.");
    }
    if (match.option == nullptr) {
        throw Error(15242, "Database option '" + std::string(name) + "' is not unique.");
    }
    return *match.option;
}

} // namespace engine

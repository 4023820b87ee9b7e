#include "engine/text/DatabaseOptions.h"

#include "engine/errors/TextErrors.h"
#include "engine/text/OptionNames.h"

#include <array>

namespace engine {
namespace {

constexpr std::array kOptions{
    DatabaseOption{"ANSI null default", false, "ANSI_NULL_DEFAULT"},
    DatabaseOption{"ANSI nulls", false, "ANSI_NULLS"},
    DatabaseOption{"ANSI padding", false, "ANSI_PADDING"},
    DatabaseOption{"ANSI warnings", false, "ANSI_WARNINGS"},
    DatabaseOption{"arithabort", false, "ARITHABORT"},
    DatabaseOption{"auto create statistics", true, "AUTO_CREATE_STATISTICS"},
    DatabaseOption{"auto update statistics", true, "AUTO_UPDATE_STATISTICS"},
    DatabaseOption{"autoclose", false, "AUTO_CLOSE"},
    DatabaseOption{"autoshrink", false, "AUTO_SHRINK"},
    DatabaseOption{"concat null yields null", false, "CONCAT_NULL_YIELDS_NULL"},
    DatabaseOption{"cursor close on commit", false, "CURSOR_CLOSE_ON_COMMIT"},
    DatabaseOption{"db chaining", false, "DB_CHAINING"},
    DatabaseOption{"dbo use only", false},
    DatabaseOption{"default to local cursor", false},
    DatabaseOption{"merge publish", false},
    DatabaseOption{"numeric roundabort", false, "NUMERIC_ROUNDABORT"},
    DatabaseOption{"offline", false},
    DatabaseOption{"published", false},
    DatabaseOption{"quoted identifier", false, "QUOTED_IDENTIFIER"},
    DatabaseOption{"read only", false},
    DatabaseOption{"recursive triggers", false, "RECURSIVE_TRIGGERS"},
    DatabaseOption{"select into/bulkcopy", false},
    DatabaseOption{"single user", false},
    DatabaseOption{"subscribed", false},
    DatabaseOption{"torn page detection", true, "TORN_PAGE_DETECTION"},
    DatabaseOption{"trunc. log on chkpt.", false},
};

/// A setting with values of its own; one that changes several options has a row for each.
struct Choice {
    const char* setting;
    const char* value;
    const char* option;
    bool becomes;
};

constexpr std::array kChoices{
    Choice{"CURSOR_DEFAULT", "GLOBAL", "default to local cursor", false},
    Choice{"CURSOR_DEFAULT", "LOCAL", "default to local cursor", true},
    Choice{"MULTI_USER", "", "dbo use only", false},
    Choice{"MULTI_USER", "", "single user", false},
    Choice{"OFFLINE", "", "offline", true},
    Choice{"ONLINE", "", "offline", false},
    Choice{"READ_ONLY", "", "read only", true},
    Choice{"READ_WRITE", "", "read only", false},
    Choice{"RECOVERY", "BULK_LOGGED", "select into/bulkcopy", true},
    Choice{"RECOVERY", "BULK_LOGGED", "trunc. log on chkpt.", false},
    Choice{"RECOVERY", "FULL", "select into/bulkcopy", false},
    Choice{"RECOVERY", "FULL", "trunc. log on chkpt.", false},
    Choice{"RECOVERY", "SIMPLE", "trunc. log on chkpt.", true},
    Choice{"RESTRICTED_USER", "", "dbo use only", true},
    Choice{"SINGLE_USER", "", "single user", true},
};

} // namespace

std::vector<std::pair<const char*, bool>> databaseSetting(std::string_view option, std::string_view value) {
    const bool on = sameText(value, "ON");
    std::vector<std::pair<const char*, bool>> effects;
    for (const DatabaseOption& known : kOptions) {
        if (*known.toggle != '\0' && sameText(known.toggle, option) && (on || sameText(value, "OFF"))) {
            effects.emplace_back(known.name, on);
        }
    }
    for (const Choice& choice : kChoices) {
        if (sameText(choice.setting, option) && sameText(choice.value, value)) {
            effects.emplace_back(choice.option, choice.becomes);
        }
    }
    return effects;
}

std::span<const DatabaseOption> databaseOptions() {
    return kOptions;
}

const DatabaseOption& databaseOption(std::string_view name) {
    const auto match = matchOption(databaseOptions(), name, [](const DatabaseOption&) { return true; });
    if (match.count == 0) {
        throw errors::databaseOptionMissing(name);
    }
    if (match.option == nullptr) {
        throw errors::databaseOptionAmbiguous(name);
    }
    return *match.option;
}

} // namespace engine

#include "engine/text/DatabaseOptions.h"

#include "engine/errors/TextErrors.h"
#include "engine/text/OptionNames.h"

#include <array>

namespace engine {
namespace {

constexpr std::array kOptions{
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

/// A setting that is ON or OFF.
struct Toggle {
    const char* setting;
    const char* option;
};

constexpr std::array kToggles{
    Toggle{"ANSI_NULL_DEFAULT", "ANSI null default"},
    Toggle{"ANSI_NULLS", "ANSI nulls"},
    Toggle{"ANSI_PADDING", "ANSI padding"},
    Toggle{"ANSI_WARNINGS", "ANSI warnings"},
    Toggle{"ARITHABORT", "arithabort"},
    Toggle{"AUTO_CLOSE", "autoclose"},
    Toggle{"AUTO_CREATE_STATISTICS", "auto create statistics"},
    Toggle{"AUTO_SHRINK", "autoshrink"},
    Toggle{"AUTO_UPDATE_STATISTICS", "auto update statistics"},
    Toggle{"CONCAT_NULL_YIELDS_NULL", "concat null yields null"},
    Toggle{"CURSOR_CLOSE_ON_COMMIT", "cursor close on commit"},
    Toggle{"DB_CHAINING", "db chaining"},
    Toggle{"NUMERIC_ROUNDABORT", "numeric roundabort"},
    Toggle{"QUOTED_IDENTIFIER", "quoted identifier"},
    Toggle{"RECURSIVE_TRIGGERS", "recursive triggers"},
    Toggle{"TORN_PAGE_DETECTION", "torn page detection"},
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
    for (const Toggle& toggle : kToggles) {
        if (sameText(toggle.setting, option) && (on || sameText(value, "OFF"))) {
            effects.emplace_back(toggle.option, on);
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

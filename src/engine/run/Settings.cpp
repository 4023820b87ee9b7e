#include "engine/run/Settings.h"

#include "engine/errors/DefinitionErrors.h"
#include "engine/run/Definitions.h"
#include "engine/run/StatementKinds.h"
#include "engine/values/Ascii.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace engine {

namespace {

/// What a client asked for, as it is shown to it.
std::string asked(std::string_view option, std::string_view value) {
    return "SET " + capitals(option) + " " + std::string(value);
}

/// The present option and its value.
struct Wish {
    std::string_view option;
    const SetOption& statement;

    const std::string& value() const { return statement.value; }
    [[noreturn]] void refuse() const { throw errors::notSupported(asked(option, value())); }
    bool isOn() const {
        if (!sameText(value(), "ON") && !sameText(value(), "OFF")) {
            refuse();
        }
        return sameText(value(), "ON");
    }
    std::optional<std::int64_t> number(std::int64_t least, std::int64_t most) const {
        std::int64_t number = 0;
        const char* end = value().data() + value().size();
        const auto read = std::from_chars(value().data(), end, number);
        const bool taken = read.ec == std::errc() && read.ptr == end && number >= least && number <= most;
        return taken ? std::optional(number) : std::nullopt;
    }
    std::int64_t neededNumber(std::int64_t least) const {
        const auto wanted = number(least, std::numeric_limits<std::int32_t>::max());
        return wanted ? *wanted : (refuse(), 0);
    }
};

template<bool Settings::*flag>
void turn(ServerSession& session, const Wish& wish) {
    session.settings.*flag = wish.isOn();
}

void setDateFirst(ServerSession& session, const Wish& wish) {
    const auto day = wish.number(1, 7);
    if (!day) {
        throw errors::dateFirstOutOfRange(wish.value());
    }
    session.settings.firstDayOfWeek = static_cast<int>(*day);
}

void setDateFormat(ServerSession& session, const Wish& wish) {
    constexpr std::array kKnown = {"mdy", "dmy", "ymd", "ydm", "myd", "dym"};
    constexpr std::array kOrders = {DateOrder::MonthDayYear, DateOrder::DayMonthYear, DateOrder::YearMonthDay};
    const auto* const known =
        std::find_if(kKnown.begin(), kKnown.end(), [&](const char* one) { return sameText(one, wish.value()); });
    if (known == kKnown.end()) {
        throw errors::invalidDateOrder(wish.value());
    }
    const auto place = static_cast<std::size_t>(known - kKnown.begin());
    if (place >= kOrders.size()) {
        wish.refuse();
    }
    session.settings.dateOrder = kOrders[place];
}

/// Source: the server's table of languages. What differs between them here is how dates are read and weeks begin.
struct Language {
    const char* name;
    const char* alias;
    DateOrder order;
    int firstDayOfWeek;
};

constexpr std::array kLanguages = {
    Language{"us_english", "English", DateOrder::MonthDayYear, 7},
    Language{"British", "British English", DateOrder::DayMonthYear, 1},
    Language{"Deutsch", "German", DateOrder::DayMonthYear, 1},
    Language{"Español", "Spanish", DateOrder::DayMonthYear, 1},
    Language{"Français", "French", DateOrder::DayMonthYear, 1},
    Language{"Italiano", "Italian", DateOrder::DayMonthYear, 1},
    Language{"Nederlands", "Dutch", DateOrder::DayMonthYear, 1},
    Language{"Português", "Portuguese", DateOrder::DayMonthYear, 7},
};

void setLanguage(ServerSession& session, const Wish& wish) {
    const auto* const language = std::find_if(kLanguages.begin(), kLanguages.end(), [&](const Language& one) {
        return sameText(one.name, wish.value()) || sameText(one.alias, wish.value());
    });
    if (language == kLanguages.end()) {
        throw errors::unknownLanguage(wish.value());
    }
    session.settings.language = language->name;
    session.settings.dateOrder = language->order;
    session.settings.firstDayOfWeek = language->firstDayOfWeek;
}

void setLockTimeout(ServerSession& session, const Wish& wish) {
    session.settings.lockTimeout = wish.neededNumber(-1);
}

void setRowCount(ServerSession& session, const Wish& wish) {
    session.settings.rowCount = wish.neededNumber(0);
}

/// Nothing uncommitted is ever read, so the weakest level is as good as the usual one.
void setIsolation(ServerSession& session, const Wish& wish) {
    if (sameText(wish.value(), "SNAPSHOT")) {
        wish.refuse();
    }
    session.settings.stableReads = sameText(wish.value(), "REPEATABLE READ") || sameText(wish.value(), "SERIALIZABLE");
}

void setIdentityInsert(ServerSession& session, const Wish& wish) {
    Settings& settings = session.settings;
    const TableInfo* table = definedTable(session, wish.statement.table);
    if (table == nullptr) {
        throw errors::missingTableToChange(wish.statement.table.last());
    }
    if (table->identity() == nullptr) {
        throw errors::identityMissing(table->name);
    }
    const bool its =
        sameText(settings.identityInsert, table->name) && sameText(settings.identityInsertDatabase, session.database());
    if (wish.isOn()) {
        if (!settings.identityInsert.empty() && !its) {
            throw errors::identityInsertBusy(settings.identityInsert, table->name);
        }
        settings.identityInsert = table->name;
        settings.identityInsertDatabase = session.database();
    } else if (its) {
        settings.identityInsert.clear();
    }
    // Plans made before know the table's identity as it was.
    session.current().cache().clear();
}

void pass(ServerSession& /*session*/, const Wish& /*wish*/) {}

struct Honoured {
    const char* option;
    void (*set)(ServerSession& session, const Wish& wish);
};

constexpr std::array kHonoured = {
    Honoured{"DATEFIRST", setDateFirst},
    Honoured{"DATEFORMAT", setDateFormat},
    Honoured{"DEADLOCK_PRIORITY", pass}, // whoever waits too long is refused, so nobody is chosen
    Honoured{"FMTONLY", turn<&Settings::formatOnly>},
    Honoured{"IDENTITY_INSERT", setIdentityInsert},
    Honoured{"IMPLICIT_TRANSACTIONS", turn<&Settings::implicitTransactions>},
    Honoured{"LANGUAGE", setLanguage},
    Honoured{"LOCK_TIMEOUT", setLockTimeout},
    Honoured{"NOCOUNT", turn<&Settings::noCount>},
    Honoured{"NOEXEC", turn<&Settings::noExecution>},
    Honoured{"PARSEONLY", turn<&Settings::parseOnly>},
    Honoured{"ROWCOUNT", setRowCount},
    Honoured{"SHOWPLAN_ALL", turn<&Settings::showPlan>},
    Honoured{"SHOWPLAN_TEXT", turn<&Settings::showPlan>},
    Honoured{"SHOWPLAN_XML", turn<&Settings::showPlan>},
    Honoured{"TEXTSIZE", pass}, // texts are given whole, and the client cuts them
    Honoured{"TRANSACTION ISOLATION LEVEL", setIsolation},
    Honoured{"XACT_ABORT", turn<&Settings::abortsTransactions>},
};

/// An option whose other value isn't offered.
struct InForce {
    const char* option;
    const char* value;
};

constexpr std::array kInForce = {
    InForce{"ANSI_DEFAULTS", ""}, // neither value: its parts are in force as they are below
    InForce{"ANSI_NULLS", "ON"},
    InForce{"ANSI_NULL_DFLT_OFF", "OFF"},
    InForce{"ANSI_NULL_DFLT_ON", "ON"},
    InForce{"ANSI_PADDING", "ON"},
    InForce{"ANSI_WARNINGS", "ON"},
    InForce{"ARITHABORT", "ON"},
    InForce{"ARITHIGNORE", "OFF"},
    InForce{"CONCAT_NULL_YIELDS_NULL", "ON"},
    InForce{"CURSOR_CLOSE_ON_COMMIT", "OFF"},
    InForce{"FIPS_FLAGGER", "OFF"},
    InForce{"FORCEPLAN", "OFF"},
    InForce{"NUMERIC_ROUNDABORT", "OFF"},
    InForce{"QUERY_GOVERNOR_COST_LIMIT", "0"},
    InForce{"QUOTED_IDENTIFIER", "ON"},
    InForce{"REMOTE_PROC_TRANSACTIONS", "OFF"},
    InForce{"STATISTICS IO", "OFF"},
    InForce{"STATISTICS PROFILE", "OFF"},
    InForce{"STATISTICS TIME", "OFF"},
    InForce{"STATISTICS XML", "OFF"},
};

template<class Options>
auto find(const Options& options, std::string_view name) {
    return std::find_if(options.begin(), options.end(), [&](const auto& one) { return sameText(one.option, name); });
}

void set(ServerSession& session, const Wish& wish) {
    const auto* const honoured = find(kHonoured, wish.option);
    if (honoured != kHonoured.end()) {
        honoured->set(session, wish);
        return;
    }
    const auto* const inForce = find(kInForce, wish.option);
    if (inForce == kInForce.end()) {
        throw errors::unknownSetOption(wish.option);
    }
    if (!sameText(inForce->value, wish.value())) {
        wish.refuse();
    }
}

} // namespace

std::int64_t Settings::patience() const {
    constexpr std::int64_t kMoment = 2000;
    return lockTimeout < 0 ? lockTimeout : std::max(lockTimeout, kMoment);
}

std::int64_t Settings::options() const {
    // ANSI_WARNINGS, ANSI_PADDING, ANSI_NULLS, ARITHABORT, QUOTED_IDENTIFIER, ANSI_NULL_DFLT_ON,
    // CONCAT_NULL_YIELDS_NULL
    constexpr std::int64_t kInForceAlways = 8 + 16 + 32 + 64 + 256 + 1024 + 4096;
    constexpr std::int64_t kImplicitTransactions = 2;
    constexpr std::int64_t kNoCount = 512;
    constexpr std::int64_t kAbortsTransactions = 16384;
    return kInForceAlways + (implicitTransactions ? kImplicitTransactions : 0) + (noCount ? kNoCount : 0) +
           (abortsTransactions ? kAbortsTransactions : 0);
}

void define(ServerSession& session, const SetOption& option) {
    for (const std::string& name : option.options) {
        set(session, {name, option});
    }
}

} // namespace engine

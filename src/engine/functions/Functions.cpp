#include "engine/functions/Functions.h"

#include "engine/errors/Error.h"
#include "engine/functions/FunctionRoutines.h"
#include "engine/values/Collation.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace engine {

namespace {

using Result = FunctionEntry::Result;

constexpr std::array kFunctions = std::to_array<FunctionEntry>({
    {"ABS", "n", 1, Result::AsFirst},
    {"CEILING", "n", 1, Result::AsFirst},
    {"CHARINDEX", "tti", 2, Result::Int},
    {"DATALENGTH", "x", 1, Result::Int},
    {"DATEADD", "pid", 3, Result::DateTime},
    {"DATEDIFF", "pdd", 3, Result::Int},
    {"DATEPART", "pd", 2, Result::Int},
    {"DAY", "d", 1, Result::Int},
    {"DB_ID", "t", 0, Result::Int, true},
    {"DB_NAME", "i", 0, Result::SystemName, true},
    {"FLOOR", "n", 1, Result::AsFirst},
    {"GETDATE", "", 0, Result::DateTime},
    {"HOST_NAME", "", 0, Result::SystemName, true},
    {"IDENT_CURRENT", "t", 1, Result::Numeric, true},
    {"ISDATE", "x", 1, Result::Int},
    {"ISNUMERIC", "x", 1, Result::Int},
    {"LEFT", "ti", 2, Result::AsFirst},
    {"LEN", "t", 1, Result::Int},
    {"LOWER", "t", 1, Result::AsFirst},
    {"LTRIM", "t", 1, Result::AsFirst},
    {"MONTH", "d", 1, Result::Int},
    {"OBJECT_ID", "tt", 1, Result::Int, true},
    {"REPLACE", "ttt", 3, Result::LongText},
    {"REPLICATE", "ti", 2, Result::LongText},
    {"REVERSE", "t", 1, Result::AsFirst},
    {"RIGHT", "ti", 2, Result::AsFirst},
    {"ROUND", "ni", 2, Result::AsFirst},
    {"RTRIM", "t", 1, Result::AsFirst},
    {"SCOPE_IDENTITY", "", 0, Result::Numeric, true},
    {"SERVERPROPERTY", "t", 1, Result::SystemName, true},
    {"SPACE", "i", 1, Result::LongText},
    {"STR", "fii", 1, Result::LongText},
    {"SUBSTRING", "tii", 3, Result::AsFirst},
    {"SUSER_SNAME", "", 0, Result::SystemName, true},
    {"UPPER", "t", 1, Result::AsFirst},
    {"USER_NAME", "", 0, Result::SystemName, true},
    {"YEAR", "d", 1, Result::Int},
});

constexpr std::array kVariables = std::to_array<FunctionEntry>({
    {"@@ERROR", "", 0, Result::Int, true},
    {"@@IDENTITY", "", 0, Result::Numeric, true},
    {"@@LANGUAGE", "", 0, Result::SystemName, true},
    {"@@MAX_PRECISION", "", 0, Result::Int, true},
    {"@@MICROSOFTVERSION", "", 0, Result::Int, true},
    {"@@OPTIONS", "", 0, Result::Int, true},
    {"@@ROWCOUNT", "", 0, Result::Int, true},
    {"@@SERVERNAME", "", 0, Result::SystemName, true},
    {"@@SPID", "", 0, Result::Int, true},
    {"@@TRANCOUNT", "", 0, Result::Int, true},
    {"@@VERSION", "", 0, Result::SystemName, true},
});

std::string capitals(std::string_view name) {
    std::string result(name);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return result;
}

template<class Table>
const FunctionEntry* find(const Table& table, const std::string& name) {
    const auto found = std::find_if(table.begin(), table.end(), [&](const auto& entry) { return entry.name == name; });
    return found == table.end() ? nullptr : &*found;
}

Scalar scalarOf(sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return std::int64_t{sqlite3_value_int64(value)};
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_NULL:
        return {};
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
        return std::string(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
    }
    }
}

void give(sqlite3_context* context, const Scalar& result) {
    if (const auto* integer = std::get_if<std::int64_t>(&result)) {
        sqlite3_result_int64(context, *integer);
    } else if (const auto* number = std::get_if<double>(&result)) {
        sqlite3_result_double(context, *number);
    } else if (const auto* text = std::get_if<std::string>(&result)) {
        sqlite3_result_text64(context, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    } else {
        sqlite3_result_null(context);
    }
}

/// What a routine is registered with. The connection owns it.
struct Registration {
    const RoutineEntry* entry;
    FunctionContext* context;
};

void call(sqlite3_context* context, int count, sqlite3_value** values) {
    constexpr std::size_t kMostArguments = 8;
    const auto& registration = *static_cast<const Registration*>(sqlite3_user_data(context));
    std::array<Scalar, kMostArguments> arguments;
    const auto used = std::min(static_cast<std::size_t>(count), kMostArguments);
    // Nothing may be thrown through the storage: the refusal waits in the context until the statement has failed.
    try {
        for (std::size_t i = 0; i < used; ++i) {
            arguments[i] = scalarOf(values[i]);
            if (registration.entry->nullGivesNull && isNull(arguments[i])) {
                return;
            }
        }
        give(context, registration.entry->routine(*registration.context, Arguments(arguments.data(), used)));
    } catch (...) {
        registration.context->refusal = std::current_exception();
        sqlite3_result_error(context, "refused", -1);
    }
}

void callLike(sqlite3_context* context, int count, sqlite3_value** values) {
    for (int i = 0; i < count; ++i) {
        if (sqlite3_value_type(values[i]) == SQLITE_NULL) {
            return;
        }
    }
    const auto text = [&](int place) {
        const auto* data = reinterpret_cast<const char*>(sqlite3_value_text(values[place]));
        return std::string_view(data, static_cast<std::size_t>(sqlite3_value_bytes(values[place])));
    };
    sqlite3_result_int(context, like(text(0), text(1), count > 2 ? text(2) : std::string_view()) ? 1 : 0);
}

/// Gives what it is given: to the storage the result of a call is no constant.
void callLiteral(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
    sqlite3_result_value(context, values[0]);
}

} // namespace

double numberAt(Arguments arguments, std::size_t place) {
    const Scalar& value = arguments[place];
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    return std::get<double>(value);
}

const FunctionEntry* findFunction(std::string_view name) {
    return find(kFunctions, capitals(name));
}

const FunctionEntry* findServerVariable(std::string_view name) {
    return find(kVariables, capitals(name));
}

std::string storageName(const FunctionEntry& entry) {
    std::string name = "tsql_";
    for (const char c : entry.name) {
        name += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return name;
}

void registerFunctions(sqlite::Connection& connection, FunctionContext& context) {
    const auto check = [](int code) {
        if (code != SQLITE_OK) {
            throw InternalError("a function can't be registered");
        }
    };
    for (const auto routines : {textRoutines(), dateRoutines(), numberRoutines()}) {
        for (const RoutineEntry& entry : routines) {
            check(sqlite3_create_function_v2(
                connection.handle(), entry.name, entry.arguments, SQLITE_UTF8, new Registration{&entry, &context}, call,
                nullptr, nullptr, [](void* registration) { delete static_cast<Registration*>(registration); }));
        }
    }
    check(sqlite3_create_function_v2(connection.handle(), "tsql_literal", 1, SQLITE_UTF8, nullptr, callLiteral, nullptr,
                                     nullptr, nullptr));
    for (const int arguments : {2, 3}) {
        check(sqlite3_create_function_v2(connection.handle(), "tsql_like", arguments,
                                         SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, callLike, nullptr, nullptr,
                                         nullptr));
    }
}

} // namespace engine

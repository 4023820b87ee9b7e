#include "engine/functions/Functions.h"

#include "engine/errors/Error.h"
#include "engine/functions/FunctionRows.h"
#include "engine/functions/Operators.h"
#include "engine/values/Ascii.h"
#include "engine/values/Collation.h"

#include <sqlite3.h>

#include <algorithm>

namespace engine {

namespace {

const FunctionRow* find(std::span<const FunctionRow> rows, std::string_view name) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const FunctionRow& row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

std::array<std::span<const FunctionRow>, 4> functionTables() {
    return {textFunctions(), dateFunctions(), numberFunctions(), sessionFunctions()};
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

/// What the storage calls a body with. The connection owns it.
struct Registration {
    FunctionBody body;
    bool nullGivesNull;
    FunctionContext* context;
};

/// Runs a body of the storage's; its refusal waits in the context until the statement has failed.
template<class Body>
void guarded(sqlite3_context* context, FunctionContext& functions, Body body) {
    // Nothing may be thrown through the storage.
    try {
        body();
    } catch (...) {
        functions.refusal = std::current_exception();
        sqlite3_result_error(context, "refused", -1);
    }
}

void call(sqlite3_context* context, int count, sqlite3_value** values) {
    constexpr std::size_t kMostArguments = 8;
    const auto& registration = *static_cast<const Registration*>(sqlite3_user_data(context));
    std::array<Scalar, kMostArguments> arguments;
    const auto used = std::min(static_cast<std::size_t>(count), kMostArguments);
    guarded(context, *registration.context, [&] {
        for (std::size_t i = 0; i < used; ++i) {
            arguments[i] = scalarOf(values[i]);
            if (registration.nullGivesNull && isNull(arguments[i])) {
                return;
            }
        }
        give(context, registration.body(*registration.context, Arguments(arguments.data(), used)));
    });
}

template<bool blanksCount>
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
    sqlite3_result_int(context, like(text(0), text(1), count > 2 ? text(2) : std::string_view(), blanksCount) ? 1 : 0);
}

/// Returns its argument. The storage doesn't take the result of a call for a constant.
void callLiteral(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
    sqlite3_result_value(context, values[0]);
}

/// The storage's memory begins as zeros; giveSum is called behind the last row, and where the statement fails.
struct RunningSum {
    Decimal* number;
};

void addToSum(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
    guarded(context, *static_cast<FunctionContext*>(sqlite3_user_data(context)), [&] {
        auto* sum = static_cast<RunningSum*>(sqlite3_aggregate_context(context, sizeof(RunningSum)));
        if (sum == nullptr || sqlite3_value_type(values[0]) == SQLITE_NULL) {
            return;
        }
        const Decimal value = decimalOf(scalarOf(values[0]));
        if (sum->number == nullptr) {
            sum->number = new Decimal(value);
        } else {
            *sum->number = sum->number->plus(value);
        }
    });
}

void giveSum(sqlite3_context* context) {
    const auto* running = static_cast<RunningSum*>(sqlite3_aggregate_context(context, 0));
    const std::unique_ptr<Decimal> sum(running == nullptr ? nullptr : running->number);
    give(context, sum ? scalarOf(*sum) : Scalar());
}

void check(int code) {
    if (code != SQLITE_OK) {
        throw InternalError("a function can't be registered");
    }
}

void add(sqlite::Connection& connection, const char* name, std::size_t arguments, const Registration& registration) {
    check(sqlite3_create_function_v2(connection.handle(), name, static_cast<int>(arguments), SQLITE_UTF8,
                                     new Registration(registration), call, nullptr, nullptr,
                                     [](void* owned) { delete static_cast<Registration*>(owned); }));
}

/// For what is called once a row or once a literal: it reads the storage's values without making scalars of them.
void addPlain(sqlite::Connection& connection, const char* name, int arguments, int flags,
              void (*function)(sqlite3_context*, int, sqlite3_value**)) {
    check(sqlite3_create_function_v2(connection.handle(), name, arguments, SQLITE_UTF8 | flags, nullptr, function,
                                     nullptr, nullptr, nullptr));
}

} // namespace

const FunctionRow* findFunction(std::string_view name) {
    const std::string wanted = capitals(name);
    for (const auto rows : functionTables()) {
        if (const FunctionRow* found = find(rows, wanted)) {
            return found;
        }
    }
    return nullptr;
}

const FunctionRow* findServerVariable(std::string_view name) {
    return find(serverVariables(), capitals(name));
}

std::vector<const FunctionRow*> functionRows() {
    std::vector<const FunctionRow*> all;
    const auto addAll = [&](std::span<const FunctionRow> rows) {
        for (const FunctionRow& row : rows) {
            all.push_back(&row);
        }
    };
    for (const auto rows : functionTables()) {
        addAll(rows);
    }
    addAll(serverVariables());
    return all;
}

std::string storageName(const FunctionRow& row) {
    std::string name = "tsql_" + smallLetters(row.name);
    std::replace(name.begin(), name.end(), '@', '_');
    return name;
}

void registerFunctions(sqlite::Connection& connection, FunctionContext& context) {
    for (const FunctionRow* row : functionRows()) {
        const std::string name = storageName(*row);
        for (std::size_t count = row->parameters.least(); count <= row->parameters.most(); ++count) {
            add(connection, name.c_str(), row->parameters.passed(count),
                {row->body, row->nulls == FunctionRow::Nulls::GiveNull, &context});
        }
    }
    for (const OperatorRow& row : operatorRows()) {
        add(connection, row.name, static_cast<std::size_t>(row.arguments), {row.body, true, &context});
    }
    check(sqlite3_create_function_v2(connection.handle(), operators::kDecimalSum, 1, SQLITE_UTF8, &context, nullptr,
                                     addToSum, giveSum, nullptr));
    addPlain(connection, operators::kLiteral, 1, 0, callLiteral);
    for (const int arguments : {2, 3}) {
        addPlain(connection, operators::kLike, arguments, SQLITE_DETERMINISTIC, callLike<false>);
        addPlain(connection, operators::kLikeNational, arguments, SQLITE_DETERMINISTIC, callLike<true>);
    }
}

} // namespace engine

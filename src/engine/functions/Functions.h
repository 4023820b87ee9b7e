#pragma once

// The built-in functions: what the binder has to know of each, and the routines that the storage calls for them.

#include "engine/store/Sqlite.h"
#include "engine/values/DataType.h"
#include "engine/values/Scalar.h"

#include <exception>
#include <functional>
#include <string>
#include <string_view>

namespace engine {

struct FunctionEntry {
    enum class Result { Int, Numeric, Float, DateTime, SystemName, LongText, AsFirst };
    std::string_view name; ///< in capitals
    /// One letter an argument: t text, i integer, f float, n any number, d date, x anything, p the name of a date part.
    std::string_view arguments;
    int minimum; ///< arguments that can't be left out
    Result result;
    /// Asks the session (FunctionContext::fact) instead of computing from its arguments alone.
    bool fact = false;
};

/// nullptr where the dialect has no such function. The name may have any case.
const FunctionEntry* findFunction(std::string_view name);
/// `@@NAME`, in any case; nullptr where there is none.
const FunctionEntry* findServerVariable(std::string_view name);
/// The name under which the storage knows a function: `LEN` is `tsql_len`.
std::string storageName(const FunctionEntry& entry);

/// What the routines need beyond their arguments; lives as long as the connection they are registered on.
struct FunctionContext {
    bool dayFirst = false;
    std::string now; ///< one instant for the whole statement, empty until it is asked for
    /// Answers of the session: `DB_NAME`, `@@ROWCOUNT`; the argument is null where there is none.
    std::function<Scalar(std::string_view fact, const Scalar& argument)> fact;
    /// Set by a routine that refused its arguments; it is the cause of the storage's failure.
    std::exception_ptr refusal;
};

/// Registers all routines on a connection.
void registerFunctions(sqlite::Connection& connection, FunctionContext& context);

/// The present time as the server's datetime has it.
std::string currentTime();

} // namespace engine

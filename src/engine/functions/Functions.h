#pragma once

// The dialect's functions and server variables: a row for each, which the binder reads and the storage calls.

#include "engine/store/Sqlite.h"
#include "engine/values/DataType.h"
#include "engine/values/Scalar.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

/// What a statement may ask about its session, server or databases.
enum class Fact {
    CurrentIdentity,
    DatabaseId,
    DatabaseName,
    Error,
    FirstDayOfWeek,
    Host,
    Language,
    LastIdentity,
    LockTimeout,
    Login,
    ObjectId,
    Options,
    Process,
    RowCount,
    ServerName,
    ServerProperty,
    Transactions,
    User,
    Version,
    WidestDecimal
};

/// What the bodies need beyond their arguments; lives as long as the connection they are registered on.
struct FunctionContext {
    DateOrder dateOrder = DateOrder::MonthDayYear;
    int firstDayOfWeek = 7; ///< 1 is Monday, 7 Sunday
    std::string now;        ///< one instant for the whole statement, empty until it is asked for
    /// The session's answer; the argument is null where there is none.
    std::function<Scalar(Fact fact, const Scalar& argument)> fact;
    /// Set by a body that refused its arguments; it is the cause of the storage's failure.
    std::exception_ptr refusal;
};

using Arguments = std::span<const Scalar>;
using FunctionBody = Scalar (*)(FunctionContext& context, Arguments arguments);

/// What a function takes in one place; the binder converts to it what is written there.
struct FunctionParameter {
    enum class Kind {
        Text,
        Written, ///< a text, and nothing that would have to become one
        Int,
        Float,
        Number, ///< of any kind
        Date,
        DatePart, ///< a bare name as `month`; the body gets it as a text
        Any,
        Typed ///< anything; the body gets its type behind it, as encodeType has it
    };
    Kind kind = Kind::Any;
    bool optional = false;
};

class FunctionParameters {
public:
    constexpr FunctionParameters(std::initializer_list<FunctionParameter> list) {
        for (const FunctionParameter& parameter : list) {
            list_.at(most_++) = parameter;
            least_ += parameter.optional ? 0 : 1;
        }
    }

    constexpr std::size_t least() const { return least_; }
    constexpr std::size_t most() const { return most_; }
    const FunctionParameter& operator[](std::size_t place) const { return list_[place]; }
    /// How many arguments the body gets where the statement writes so many: a Typed one has its type behind it.
    constexpr std::size_t passed(std::size_t written) const {
        return written +
               static_cast<std::size_t>(std::count_if(list_.begin(), list_.begin() + written, [](const auto& one) {
                   return one.kind == FunctionParameter::Kind::Typed;
               }));
    }

private:
    std::array<FunctionParameter, 3> list_{};
    std::size_t least_ = 0, most_ = 0;
};

struct FunctionRow {
    enum class Result {
        Int,
        Numeric,
        DateTime,
        SystemName,
        LongText,
        TextAsFirst,   ///< the type of the first argument, but without a fixed length
        AsFirstBeyond, ///< the type of the first argument; what the body gives may lie outside of it and is converted
        Rounded,       ///< the same, but the integers below int are ints, and real is float
        Whole          ///< that of Rounded without places
    };
    enum class Nulls {
        GiveNull, ///< NULL among the arguments gives NULL without a call
        AreTaken
    };
    std::string_view name; ///< in capitals; of a variable with its @@
    FunctionParameters parameters;
    Result result;
    FunctionBody body;
    Nulls nulls = Nulls::GiveNull;
};

/// nullptr where the dialect has no such function. The name may have any case.
const FunctionRow* findFunction(std::string_view name);
/// `@@NAME`, in any case; nullptr where there is none.
const FunctionRow* findServerVariable(std::string_view name);
/// All rows there are, functions first.
std::vector<const FunctionRow*> functionRows();

/// The name under which the storage knows a function: `LEN` is `tsql_len`.
std::string storageName(const FunctionRow& row);

/// Registers all functions and operators on a connection. The context must live as long as the connection.
void registerFunctions(sqlite::Connection& connection, FunctionContext& context);

/// The present time as the server's datetime has it.
std::string currentTime();

} // namespace engine

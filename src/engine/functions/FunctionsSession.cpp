#include "engine/functions/FunctionRows.h"
#include "engine/values/Collation.h"

namespace engine {

namespace {

template<Fact fact>
Scalar ask(FunctionContext& context, Arguments arguments) {
    return context.fact(fact, arguments.empty() ? Scalar() : arguments[0]);
}

/// Where a kind of object is asked for, only tables have it.
Scalar objectNumber(FunctionContext& context, Arguments arguments) {
    const auto* kind = arguments.size() > 1 ? std::get_if<std::string>(&arguments[1]) : nullptr;
    return arguments.size() > 1 && (kind == nullptr || !sameText(*kind, "U"))
               ? Scalar()
               : context.fact(Fact::ObjectId, arguments[0]);
}

constexpr FunctionRow kFunctions[] = {
    {"DB_ID", {optional(kText)}, Result::Int, ask<Fact::DatabaseId>, kNullsTaken},
    {"DB_NAME", {optional(kInt)}, Result::SystemName, ask<Fact::DatabaseName>, kNullsTaken},
    {"HOST_NAME", {}, Result::SystemName, ask<Fact::Host>},
    {"IDENT_CURRENT", {kText}, Result::Numeric, ask<Fact::CurrentIdentity>, kNullsTaken},
    {"OBJECT_ID", {kText, optional(kText)}, Result::Int, objectNumber, kNullsTaken},
    {"SCOPE_IDENTITY", {}, Result::Numeric, ask<Fact::LastIdentity>},
    {"SERVERPROPERTY", {kText}, Result::SystemName, ask<Fact::ServerProperty>, kNullsTaken},
    {"SUSER_SNAME", {}, Result::SystemName, ask<Fact::Login>},
    {"USER_NAME", {}, Result::SystemName, ask<Fact::User>},
};

constexpr FunctionRow kVariables[] = {
    {"@@DATEFIRST", {}, Result::Int, ask<Fact::FirstDayOfWeek>},
    {"@@ERROR", {}, Result::Int, ask<Fact::Error>},
    {"@@IDENTITY", {}, Result::Numeric, ask<Fact::LastIdentity>},
    {"@@LANGUAGE", {}, Result::SystemName, ask<Fact::Language>},
    {"@@LOCK_TIMEOUT", {}, Result::Int, ask<Fact::LockTimeout>},
    {"@@MAX_PRECISION", {}, Result::Int, ask<Fact::WidestDecimal>},
    {"@@OPTIONS", {}, Result::Int, ask<Fact::Options>},
    {"@@ROWCOUNT", {}, Result::Int, ask<Fact::RowCount>},
    {"@@SERVERNAME", {}, Result::SystemName, ask<Fact::ServerName>},
    {"@@SPID", {}, Result::Int, ask<Fact::Process>},
    {"@@TRANCOUNT", {}, Result::Int, ask<Fact::Transactions>},
    {"@@VERSION", {}, Result::SystemName, ask<Fact::Version>},
};

} // namespace

std::span<const FunctionRow> sessionFunctions() {
    return kFunctions;
}

std::span<const FunctionRow> serverVariables() {
    return kVariables;
}

} // namespace engine

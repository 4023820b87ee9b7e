#pragma once

#include "engine/run/Plan.h"
#include "engine/run/ServerSession.h"

namespace engine {

/// Another session has changed the schema since the plan was made. Nothing was written; the plan can't be used again.
struct StalePlan {};

/// Runs an INSERT, UPDATE or DELETE as one all-or-nothing change, durable when this returns unless a transaction is
/// open. Gives the number of rows written. Throws StalePlan.
std::int64_t write(ServerSession& session, Plan& plan, const Bindings& bindings);

/// Throws 1222 where another session holds one of the rows that a text finds; called under the write lock.
void refuseHeldRows(Database& database, const std::string& table, sqlite::Statement& rows);

} // namespace engine

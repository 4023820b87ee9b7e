#pragma once

#include "engine/run/Plan.h"
#include "engine/run/ServerSession.h"

namespace engine {

/// Binds, translates and prepares a statement of a kind that runs by a plan.
PlanPtr makePlan(ServerSession& session, const Statement& statement);
/// The same for a condition alone, as of IF; gives a plan with one row and one column.
PlanPtr makeConditionPlan(ServerSession& session, const Expression& condition);
/// The same for a value alone, as of PRINT.
PlanPtr makeValuePlan(ServerSession& session, const Expression& value);

/// Throws what is wrong with the names of a statement whose kind is checked, without preparing it; a missing table is
/// no fault yet.
void checkNames(ServerSession& session, const Statement& statement);

/// Which literals a plan for statements of this shape has fixed: those that are no parameter of it, and those whose
/// digits matter.
void fixLiterals(Plan& plan, const Shape& shape);

} // namespace engine

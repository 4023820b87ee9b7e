#include "engine/run/StatementRun.h"

#include "engine/run/Planner.h"
#include "engine/run/Procedures.h"
#include "engine/run/StatementKinds.h"
#include "engine/run/Writer.h"
#include "engine/values/Collation.h"

#include <algorithm>

namespace engine {

namespace {

using RunBy = StatementKind::RunBy;

/// UPDLOCK behind the one table of a SELECT: its rows are the transaction's alone until it ends.
bool asksForHold(const Select& select) {
    const auto& from = select.cores.front().from;
    const auto* table = from.size() == 1 ? std::get_if<NamedTable>(&from.front()->node) : nullptr;
    return table != nullptr && std::any_of(table->hints.begin(), table->hints.end(),
                                           [](const std::string& hint) { return sameText(hint, "UPDLOCK"); });
}

Outcome runByPlan(ServerSession& session, const Statement& statement, const std::optional<Shape>& shape) {
    const auto* select = std::get_if<Select>(&statement.node);
    const bool holding = select != nullptr && asksForHold(*select);
    if (holding && session.inTransaction()) {
        session.holdUntilTransactionEnds(*select);
    }
    while (true) {
        const PlanPtr plan = makePlan(session, statement);
        if (shape && plan->reusable && !holding && session.settings.takesPlans()) {
            fixLiterals(*plan, *shape);
            session.current().cache().add(*shape, plan);
        }
        try {
            return runPlan(session, plan, {nullptr, session.settings.dateOrder});
        } catch (const StalePlan&) {
            continue; // with the schema as it is now
        }
    }
}

Message messageOf(ServerSession& session, const Print& print) {
    PlanRows row(session, makeValuePlan(session, *print.text), {nullptr, session.settings.dateOrder});
    return {0, row.next() && !row.isNull(0) ? std::string(row.text(0)) : std::string()};
}

} // namespace

Outcome runStatement(ServerSession& session, const Statement& statement, const std::optional<Shape>& shape,
                     std::vector<Message>& messages) {
    Outcome outcome;
    std::visit(
        [&](const auto& node) {
            constexpr RunBy kBy = kKindOf<decltype(node)>.runBy;
            if constexpr (kBy == RunBy::Plan) {
                outcome = runByPlan(session, statement, shape);
            } else if constexpr (kBy == RunBy::Definition) {
                define(session, node);
            } else if constexpr (kBy == RunBy::Procedure) {
                if (auto listing = callProcedure(session, node, messages)) {
                    outcome.rows = std::make_unique<ListedRows>(std::move(*listing));
                }
            } else if constexpr (kBy == RunBy::Message) {
                messages.push_back(messageOf(session, node));
            } else {
                static_assert(kBy == RunBy::Batch);
                throw InternalError("control flow is run by its batch");
            }
        },
        statement.node);
    return outcome;
}

Outcome runPlan(ServerSession& session, const PlanPtr& plan, const Bindings& bindings) {
    Outcome outcome;
    if (plan->writes()) {
        outcome.affected = write(session, *plan, bindings);
    } else {
        outcome.rows = std::make_unique<PlanRows>(session, plan, bindings, session.settings.rowCount);
    }
    return outcome;
}

bool holds(ServerSession& session, const Expression& condition) {
    PlanRows row(session, makeConditionPlan(session, condition), {nullptr, session.settings.dateOrder});
    return row.next() && row.integer(0) != 0;
}

} // namespace engine

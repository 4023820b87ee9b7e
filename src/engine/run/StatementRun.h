#pragma once

// The running of one statement that isn't control flow, each kind by what StatementKinds.h names.

#include "engine/run/ResultRows.h"
#include "engine/text/Tree.h"

#include <memory>
#include <optional>
#include <vector>

namespace engine {

/// What one statement gave.
struct Outcome {
    std::unique_ptr<ResultRows> rows; ///< nullptr where it gives none
    std::int64_t affected = -1;       ///< rows written, -1 where it writes none
};

/// `shape` where the plan of the statement may be kept. What the server says of the statement goes to `messages`.
Outcome runStatement(ServerSession& session, const Statement& statement, const std::optional<Shape>& shape,
                     std::vector<Message>& messages);
/// Throws StalePlan of Writer.h where it writes.
Outcome runPlan(ServerSession& session, const PlanPtr& plan, const Bindings& bindings);
/// Whether the condition of an IF holds.
bool holds(ServerSession& session, const Expression& condition);

} // namespace engine

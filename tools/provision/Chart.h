#pragma once

#include "engine/run/Session.h"

namespace provision {

/// Adds accounts for each project but the general one, one for each line of its budget.
void addProjectAccounts(engine::Session& session);

/// Adds accounts of the general project, alternating between all four classes, until the chart has that many.
void growChart(engine::Session& session, long accounts);

} // namespace provision

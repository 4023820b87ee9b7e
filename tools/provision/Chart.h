#pragma once

#include "engine/run/Session.h"

namespace provision {

/// Gives each project but the general one its own accounts, one for each line of its budget.
void addProjectAccounts(engine::Session& session);

/// Adds accounts of the general project, of all four classes in turn, until the chart has that many.
void growChart(engine::Session& session, long accounts);

} // namespace provision

#pragma once

#include "engine/run/BatchRun.h"

namespace engine {

/// Calls one of the server's procedures: what it lists is the outcome, what it says goes to `messages`.
/// Throws 2812 for a name that is none, 201 for an argument that can't be left out, and the procedures' own errors.
Outcome callProcedure(ServerSession& session, const Execute& call, std::vector<Message>& messages);

} // namespace engine

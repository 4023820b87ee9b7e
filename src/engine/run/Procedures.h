#pragma once

#include "engine/run/ResultRows.h"

#include <optional>
#include <vector>

namespace engine {

/// Calls one of the server's procedures: gives what it lists, nothing where it lists nothing; its messages go to
/// `messages`. Throws 2812 for an unknown name, 201 for an argument that can't be left out, and the procedures' own
/// errors.
std::optional<Listing> callProcedure(ServerSession& session, const Execute& call, std::vector<Message>& messages);

} // namespace engine

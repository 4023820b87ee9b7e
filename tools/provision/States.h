#pragma once

#include "engine/run/Session.h"

namespace provision {

/// Fills `stati` and `ZoneGeografiche` of an empty company: Italy first, the others by their Italian names, each with
/// codes, currency and area.
void addStates(engine::Session& session);

} // namespace provision

#pragma once

#include <functional>

namespace ado {

/// Runs `forget` once, when what the program does in the present event is over and its event loop waits for something
/// new. False, and `forget` never runs, where no event loop runs: then nothing is to be remembered.
bool atEndOfEvent(std::function<void()> forget);

} // namespace ado

#pragma once

#include <functional>

namespace engine {

/// Runs a call that waits or works without ever calling back, on a thread beside the present one, whose idler runs
/// until the call is over. Nothing that the call uses is used by two threads at a time, since the present one waits for
/// it. What the call throws is thrown here.
void runBeside(const std::function<void()>& call);

} // namespace engine

#pragma once

#include <functional>

namespace platform {

/// The one way to end the program. It doesn't return.
[[noreturn]] void TerminaProcesso();

/// What a replaced end throws, so that the caller's road is left as the end of the process would leave it.
struct ProcessEnded {};

/// Tests: instead of ending, tell `ended` and throw ProcessEnded. An empty function restores the real end.
void replaceEnd(std::function<void()> ended);

} // namespace platform

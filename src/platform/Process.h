#pragma once

#include <functional>

namespace platform {

/// Ends the program. There is no other way.
[[noreturn]] void TerminaProcesso();

/// Thrown by a replaced end, so that no code of the caller runs after it, as at the end of the process.
struct ProcessEnded {};

/// For tests: TerminaProcesso then calls `ended` and throws ProcessEnded. An empty function restores the real end.
void replaceEnd(std::function<void()> ended);

} // namespace platform

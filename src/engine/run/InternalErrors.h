#pragma once

// The border of a session: behind it there are answers of the server alone.

#include <utility>

namespace engine {

/// Told what a bug of ours was, before it becomes an error of the statement; called from any thread.
using InternalErrorListener = void (*)(const char* what);

/// Sets who is told, instead of the standard error stream; nullptr sets that again. Gives the one before.
InternalErrorListener onInternalError(InternalErrorListener listener);

/// Rethrows the exception in flight as an answer of the server: Error stays as it is, failures of the storage and of
/// the machine become the server's own errors, and what is left is told as a bug and becomes 8630.
[[noreturn]] void rethrowAsAnswer();

/// Runs a step of a session. Nothing but engine::Error leaves it.
template<class Step>
decltype(auto) answered(Step&& step) {
    try {
        return std::forward<Step>(step)();
    } catch (...) {
        rethrowAsAnswer();
    }
}

} // namespace engine

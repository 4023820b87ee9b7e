#pragma once

// What leaves a session is an error of the server, whatever was thrown inside.

#include <utility>

namespace engine {

/// Receives the text of an internal error before it becomes an error of its statement; called on any thread.
using InternalErrorListener = void (*)(const char* what);

/// Sets the listener in the place of the standard error stream, which nullptr restores. Gives the listener before it.
InternalErrorListener onInternalError(InternalErrorListener listener);

/// Rethrows the present exception as an error of the server: Error stays as it is, failures of the storage and of the
/// machine become the server's own errors, and any other goes to the listener and becomes 8630.
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

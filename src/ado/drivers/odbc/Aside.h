#pragma once

#include <functional>

namespace ado::odbc {

/// Runs a call that waits for the server. Where the thread has something to do meanwhile (WhileWaiting.h), the call
/// runs on a thread beside it, and the present one does that until the call is over: the handles are still used by one
/// thread at a time. The call must not throw.
void aside(const std::function<void()>& call);

} // namespace ado::odbc

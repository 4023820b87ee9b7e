#pragma once

#include "ado/WhileWaiting.h"

#include <functional>

namespace ado::odbc {

/// Runs the call on a thread beside the present one, which does meanwhile what it has to do while it waits
/// (WhileWaiting.h). What the call throws is thrown here.
void runBeside(const std::function<void()>& call);

/// Runs a call that waits for the server: beside the present thread where that has something to do meanwhile, otherwise
/// as it is. Handles are used by one thread at a time either way.
template<class Call>
void aside(const Call& call) {
    if (isWaitingUsed()) {
        runBeside(call);
    } else {
        call();
    }
}

} // namespace ado::odbc

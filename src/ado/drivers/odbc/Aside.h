#pragma once

#include "ado/WhileWaiting.h"
#include "engine/store/Beside.h"

namespace ado::odbc {

/// Runs a call that waits for the server: on a thread beside the present one where that has something to do meanwhile,
/// otherwise as it is.
template<typename Call>
void aside(const Call& call) {
    if (isWaitingUsed()) {
        engine::runBeside(call);
    } else {
        call();
    }
}

} // namespace ado::odbc

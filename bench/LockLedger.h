#pragma once

#include "engine/run/Session.h"

namespace bench {

inline constexpr int kLockedProject = 10000002;
inline constexpr int kLockedBranch = 2;
inline constexpr const char* kLockDate = "31/03/2024";
/// The balance, and the day after it.
inline constexpr const char* kBalance = "2023-12-31";

/// The tables that a lock touches, with a ledger of so many rows over two years around the balance: transactions of two
/// rows. A third of the rows is of the project and of the branch; a tenth makes its transaction definitive in any case.
void layLedger(engine::Session& session, long rows);

} // namespace bench

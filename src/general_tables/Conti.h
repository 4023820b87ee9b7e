#pragma once

#include <cstdint>

namespace vabo {

/// The group of an account, read on a connection of its own; 0 for an account that doesn't exist. A null group raises
/// 94 "Invalid use of Null" in the caller.
std::int32_t LeggiGruppoVabo(double idConto);

/// Whether the account's master is 1 or 4. False for no account and where anything fails.
bool ContoEconomico(double idConto);

} // namespace vabo

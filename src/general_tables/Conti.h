#pragma once

#include <cstdint>

namespace vabo {

/// The group of an account, read on a separate connection; 0 for an account that doesn't exist. A null group raises 94
/// "Invalid use of Null".
std::int32_t LeggiGruppoVabo(double idConto);

/// Whether the account's master is 1 or 4. False for an empty number and where anything fails.
bool ContoEconomico(double idConto);

} // namespace vabo

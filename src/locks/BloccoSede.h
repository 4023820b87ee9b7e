#pragma once

#include <optional>
#include <string>

namespace vabo {

class Avanzamento;

/// The final lock date of a branch as text; nothing where it has none.
std::optional<std::string> LeggiDataSede(double sede);

/// The date is ahead of the balance, which no branch can be unlocked before. Errors raise, of a text that is no date
/// too.
bool PrimaDelBilancio(const std::string& data);
/// The same, or the balance date itself.
bool NonDopoIlBilancio(const std::string& data);

/// Stores the final lock date of a branch, opens again what is later than it and the balance, and makes definitive all
/// up to the balance and the transactions that are so in any case. Errors raise and leave done what was done; a second
/// run puts it right.
void BloccaSede(double sede, const std::string& data, Avanzamento& avanzamento);

} // namespace vabo

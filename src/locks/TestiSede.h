#pragma once

#include "ado/Value.h"

#include <string>

namespace vabo {

/// The branches with their states.
std::string ElencoSediDaBloccare();
/// The final lock date of a branch.
std::string DataBloccoSede(double sede);
/// The row of the branch, to be written.
std::string RigaSede(double sede);

// The statements of the branch's lock, in the order in which they run.

/// What is later than both dates is open again.
std::string RiapriSede(double sede, const ado::Date& data, const ado::Date& bilancio);
/// All before that day is definitive.
std::string ChiudiSede(double sede, const ado::Date& giorno);
/// The branch's rows that make their transaction definitive whatever its date.
std::string RigheSempreDefinitiveSede(double sede, const std::string& sempreDefinitive);

/// In front of the transaction: definitive, its report as it was.
inline constexpr const char* kDefinisci = "update partitadoppia set definito = -1";

} // namespace vabo

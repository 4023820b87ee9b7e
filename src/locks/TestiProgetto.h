#pragma once

#include "ado/Value.h"

#include <string>

namespace vabo {

// The statements of the project's lock, in the order in which they run.

/// The date on the project's row.
std::string SegnaDataProgetto(double progetto, const ado::Date& data);
/// All later than the balance is open again.
std::string RiapriProgetto(double progetto, const ado::Date& bilancio);
/// What is reported up to the date is definitive, but for transactions with a row on a definitive account; `definitivi`
/// names the accounts as columns of b.
std::string ChiudiProgetto(double progetto, const ado::Date& data, const std::string& definitivi);
/// The project's rows that make their transaction definitive whatever its date.
std::string RigheSempreDefinitive(double progetto, const std::string& sempreDefinitive);
/// The project's rows on definitive accounts that are reported on the very date.
std::string RigheAllaData(double progetto, const ado::Date& data, const std::string& definitivi);

/// In front of the transaction: definitive, and reported on its own date.
inline constexpr const char* kDefinisciERendiconta =
    "update partitadoppia set definito = -1, datareport = datatransazione";

} // namespace vabo

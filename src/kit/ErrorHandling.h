#pragma once

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// Updates the current record. An update that fails raises in the caller, whose rule decides.
void AggiornaRecord(ado::Recordset& rs);

/// Closes a shared recordset where it can and drops it.
void RilasciaRecordset(int posto);

/// Closes and drops all shared recordsets and DbLocale; the three long-lived connections stay. Always the empty text.
std::string ChiudiRecordset();

} // namespace vabo

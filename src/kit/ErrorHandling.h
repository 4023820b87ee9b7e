#pragma once

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// Updates the current record. Errors raise; the caller's failure rule handles them.
void AggiornaRecord(ado::Recordset& rs);

/// Closes and drops a shared recordset. A Close that fails is skipped.
void RilasciaRecordset(int posto);

/// Closes and drops all shared recordsets and DbLocale; DbControllo, DbAzienda and DbTemp stay open. Always returns the
/// empty text.
std::string ChiudiRecordset();

} // namespace vabo

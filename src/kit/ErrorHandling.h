#pragma once

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// Updates the current record. Errors raise; the caller's failure rule handles them.
void AggiornaRecord(ado::Recordset& rs);

/// Closes and drops a shared recordset. A Close that fails is skipped.
void RilasciaRecordset(int posto);

/// Closes and drops a shared recordset at the end of a scope, after an error too, so that it is closed for the next
/// user.
class Restituzione {
public:
    explicit Restituzione(int posto) : posto_(posto) {}
    Restituzione(const Restituzione&) = delete;
    Restituzione& operator=(const Restituzione&) = delete;
    ~Restituzione() { RilasciaRecordset(posto_); }

private:
    int posto_;
};

/// Closes and drops all shared recordsets and DbLocale; DbControllo, DbAzienda and DbTemp stay open. Always returns the
/// empty text.
std::string ChiudiRecordset();

} // namespace vabo

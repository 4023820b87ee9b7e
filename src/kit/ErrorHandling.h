#pragma once

#include "ado/Recordset.h"

#include <string>

namespace vabo {

/// Updates the current record. An update that fails raises in the caller, whose rule decides.
void AggiornaRecord(ado::Recordset& rs);

/// Closes a shared recordset where it can and drops it.
void RilasciaRecordset(int posto);

/// Gives a shared recordset back at its end: every opener leaves it closed for the next, also where an error stops it.
class Restituzione {
public:
    explicit Restituzione(int posto) : posto_(posto) {}
    Restituzione(const Restituzione&) = delete;
    Restituzione& operator=(const Restituzione&) = delete;
    ~Restituzione() { RilasciaRecordset(posto_); }

private:
    int posto_;
};

/// Closes and drops all shared recordsets and DbLocale; the three long-lived connections stay. Always the empty text.
std::string ChiudiRecordset();

} // namespace vabo

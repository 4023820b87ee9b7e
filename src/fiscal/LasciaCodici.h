#pragma once

// What is done with the two tax codes of a company when their fields are entered and left. They are looked at only for
// a company in Italy, or in no state: the codes of others are taken as typed.

#include <string>

namespace vabo {

/// Puts the fiscal code in capitals and checks it, a number as a VAT number. False for a code that isn't taken: its
/// field keeps the focus. A box tells why, but for a text of zeros.
bool LasciaCodiceFiscale(std::string& codice, double idStato);

/// Checks a VAT number; a box tells where it is wrong.
void LasciaPartitaIva(const std::string& partitaIva, double idStato);

/// What stands in the field of the VAT number when it is entered: a fiscal code that is a number where it was empty.
std::string PartitaIvaProposta(const std::string& partitaIva, const std::string& codiceFiscale);

} // namespace vabo

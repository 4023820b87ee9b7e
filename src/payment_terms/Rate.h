#pragma once

// What the form of the payment terms works out from its fields.

#include <array>
#include <string>

namespace vabo {

inline constexpr std::size_t kRate = 12;

/// The fields of a term as they stand on the screen.
struct CampiCondizione {
    std::string descrizione;
    std::string numeroRate;
    std::string decorrenza; ///< the rule's name
    std::string anticipo;
    std::array<std::string, kRate> scadenze{};
    std::string tipoRimessa; ///< the kind's name
};

/// Empties the first empty instalment and all behind it. A "0" is empty.
void TogliRateVuote(CampiCondizione& campi);

/// Removes the gaps of the instalments. Where a kind of payment is chosen the term is named after it, its instalments
/// and its rule, and the instalments are counted; where none is, their number is 1 and the name stays.
void AggiornaRate(CampiCondizione& campi);

/// The name of a term that has none after that: kind, rule and the first ten instalments.
std::string NomeDiRipiego(const CampiCondizione& campi);

} // namespace vabo

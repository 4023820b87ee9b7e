#pragma once

// What the form of the commencement rules works out from its fields.

#include <array>
#include <string>

namespace vabo {

/// The fields of a rule as they stand on the screen.
struct CampiDecorrenza {
    std::string descrizione;
    std::array<std::string, 4> giorni{};
    std::array<std::string, 3> mesi{}; ///< those excluded, by their numbers
};

/// Days and months as lists without gaps: the first "0" of each is emptied, with all behind it.
void TogliZeri(CampiDecorrenza& campi);

/// Makes the name of a rule out of its days and adds the months to it, also where it has them already. Days replace a
/// name where there is a second one, and are added to it else; a rule without a name gets its months alone. Raises 9
/// "Subscript out of range" for a month below 0 or above 13, 6 "Overflow" for one that is too large for a number of
/// that kind, 13 "Type mismatch" for one that is no number; the name has then what comes ahead of that month.
void ComponiNome(CampiDecorrenza& campi);

} // namespace vabo

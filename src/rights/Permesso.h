#pragma once

#include "state/variabili.h"

#include <string>

namespace vabo {

inline constexpr const char* kNonAbilitato = "Utente non abilitato!\nContattare l'amministratore di sistema";

/// Whether the user has the right; shows `testo` in a box where not.
bool Permesso(Flag diritto, const std::string& testo = kNonAbilitato);

} // namespace vabo

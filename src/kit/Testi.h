#pragma once

#include "ado/Value.h"

#include <string>

namespace vabo {

/// What a combo shows while nothing is chosen in it.
inline constexpr const char* kNessunaScelta = "Seleziona";

/// Lower and upper case; letters with accents are converted too.
std::string Minuscolo(const std::string& testo);
std::string Maiuscolo(const std::string& testo);

/// A value as text for a concatenation; null gives the empty text.
std::string Pezzo(const ado::Value& valore);

} // namespace vabo

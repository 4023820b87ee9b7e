#pragma once

#include "ado/Value.h"

#include <string>

namespace vabo {

/// What a combo shows while nothing is chosen in it.
inline constexpr const char* kNessunaScelta = "Seleziona";

/// Case of all letters, accents included.
std::string Minuscolo(const std::string& testo);
std::string Maiuscolo(const std::string& testo);

/// A value as a piece of a concatenation: null is nothing and raises nothing.
std::string Pezzo(const ado::Value& valore);

} // namespace vabo

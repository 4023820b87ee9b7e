#pragma once

#include <string>

namespace vabo {

/// The title of the program's windows.
inline constexpr const char* kTitolo = "Tlv - Aldane Works Software Solutions";

/// "1.2.3"
std::string NumeroDiVersione();
/// A name with the version behind it.
std::string ConVersione(const std::string& nome);

} // namespace vabo

#pragma once

#include <string>

namespace vabo {

/// The title of the program's windows.
inline constexpr const char* kTitolo = "Tlv - Aldane Works Software Solutions";

/// "1.2.3"
std::string NumeroDiVersione();
/// The name, followed by the version.
std::string ConVersione(const std::string& nome);

} // namespace vabo

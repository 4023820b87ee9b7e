#pragma once

#include <string>

namespace vabo {

/// One field of the row whose numeric key has that value, as text; empty where there is none, where the field counts as
/// nothing and where anything fails.
std::string LeggiCampo(const std::string& tabella, const std::string& campo, const std::string& campoChiave,
                       double valore);

} // namespace vabo

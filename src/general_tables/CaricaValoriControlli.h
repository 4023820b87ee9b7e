#pragma once

#include <string>

namespace vabo {

/// One field, as text, of the row whose numeric key has that value. Empty where there is no such row, where
/// IsEmptyValue is true of the field and where anything fails.
std::string LeggiCampo(const std::string& tabella, const std::string& campo, const std::string& campoChiave,
                       double valore);

} // namespace vabo

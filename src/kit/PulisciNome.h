#pragma once

#include <string>

namespace vabo {

/// Replaces blanks and punctuation by underscores, in place, and gives the same text back. It is the only cleaning that
/// a name gets before it enters a statement, and it takes the quotes out.
std::string PulisciNome(std::string& testo);

} // namespace vabo

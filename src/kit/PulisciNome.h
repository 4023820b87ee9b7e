#pragma once

#include <string>

namespace vabo {

/// Replaces blanks and punctuation by underscores, in place, and returns the text. Quotes are among them, which is all
/// that keeps a typed name from changing the statement it is put into.
std::string PulisciNome(std::string& testo);

} // namespace vabo

#pragma once

#include <string>

namespace vabo {

/// Replaces each character of punctuation in `testo` by the wildcard %, so that a name can stand in the pattern of a
/// LIKE. Returns `testo` as it is then.
std::string SostituisciSpeciali(std::string& testo);

} // namespace vabo

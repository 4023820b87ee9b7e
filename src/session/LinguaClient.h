#pragma once

#include <string>

namespace vabo {

/// The language of this workstation ("IT", "EN", "ES", "FR", "PO"), kept in the temporary database and in
/// LinguaCorrente. An empty argument reads it; a valid code, in any case, is stored as given. Any other code changes
/// nothing and returns "IT". Raises nothing: "IT" where it can't be read.
std::string LeggiLinguaClient(const std::string& lingua);

} // namespace vabo

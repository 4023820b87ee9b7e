#pragma once

#include <string>

namespace vabo {

/// The language of this workstation ("IT", "EN", "ES", "FR", "PO"), from the temporary database, also left in
/// LinguaCorrente. An empty argument reads it, a valid code of any case is stored as given; another code changes
/// nothing and gives "IT". Whatever fails, the answer is "IT".
std::string LeggiLinguaClient(const std::string& lingua);

} // namespace vabo

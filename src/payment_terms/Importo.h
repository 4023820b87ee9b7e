#pragma once

#include <string>

namespace vabo {

/// An amount as it was typed, with the machine's decimal separator: the separator of the thousands that is less than
/// four digits and two decimals from the end stands for it, as the point of a numeric keypad does.
std::string ImportoNormale(const std::string& testo);

/// The amount normalised, with two decimals. An empty one stays as it is. Raises 13 "Type mismatch" where it is no
/// number.
std::string ImportoScritto(const std::string& testo);

} // namespace vabo

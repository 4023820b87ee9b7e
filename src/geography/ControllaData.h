#pragma once

#include <cstdint>
#include <string>

namespace vabo {

/// The check of a date as people type it, with or without slashes. Takes the slashes out of `data` and, where only
/// digits are left, puts them back and fills the year up with the present one. `esito` becomes -1, or 0 for a refusal:
/// no day or month, one that isn't a number, or one that is too high. Shows nothing and raises nothing.
void ControllaData(std::string& data, std::int16_t& esito);

/// What becomes of a date field that is left.
enum class DataLasciata { Vuota, Rifiutata, Scritta };
/// The same check for a field that may be empty. `testo` changes where the date is Scritta alone.
DataLasciata LasciaData(std::string& testo);

} // namespace vabo

#pragma once

#include <algorithm>
#include <string>

namespace vabo {

/// Makes a row of fields a list without gaps: the first one of which `fine` is true is emptied, with all behind it.
template<typename Campi, typename Prova>
void SenzaBuchi(Campi& campi, const Prova& fine) {
    std::fill(std::find_if(campi.begin(), campi.end(), fine), campi.end(), std::string());
}

} // namespace vabo

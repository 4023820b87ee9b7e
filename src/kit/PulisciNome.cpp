#include "kit/PulisciNome.h"

#include <algorithm>
#include <string_view>

namespace vabo {

std::string PulisciNome(std::string& testo) {
    constexpr std::string_view vietati = " ,/\\'&@\"-+!=?^$#()[]*";
    std::replace_if(
        testo.begin(), testo.end(), [&](char c) { return vietati.find(c) != std::string_view::npos; }, '_');
    return testo;
}

} // namespace vabo

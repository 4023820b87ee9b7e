#include "kit/PulisciNome.h"

#include <algorithm>
#include <string_view>

namespace vabo {

std::string PulisciNome(std::string& testo) {
    constexpr std::string_view kVietati = " ,/\\'&@\"-+!=?^$#()[]*";
    std::replace_if(
        testo.begin(), testo.end(), [&](char c) { return kVietati.find(c) != std::string_view::npos; }, '_');
    return testo;
}

} // namespace vabo

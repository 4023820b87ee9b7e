#include "geography/SostituisciSpeciali.h"

#include <algorithm>
#include <string_view>

namespace vabo {

std::string SostituisciSpeciali(std::string& testo) {
    static constexpr std::string_view kSpeciali = R"(/\'%&@"-+!=?^$#()[]*)";
    std::ranges::replace_if(
        testo, [](char c) { return kSpeciali.find(c) != std::string_view::npos; }, '%');
    return testo;
}

} // namespace vabo

#include "os/SystemText.h"

namespace os {

std::string fromSystemText(std::string_view bytes) {
    return std::string(bytes);
}

std::string toSystemText(std::string_view utf8) {
    return std::string(utf8);
}

} // namespace os

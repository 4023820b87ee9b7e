#include "support/CommaLocale.h"

#include <clocale>
#include <stdexcept>
#include <string_view>

namespace support {

CommaLocale::CommaLocale() : before_(std::setlocale(LC_ALL, nullptr)) {
    const bool set = std::setlocale(LC_ALL, "Italian_Italy.1252") != nullptr;
    if (!set || std::string_view(std::localeconv()->decimal_point) != ",") {
        throw std::runtime_error("There is no Italian locale.");
    }
}

CommaLocale::~CommaLocale() {
    std::setlocale(LC_ALL, before_.c_str());
}

} // namespace support

#include "support/CommaLocale.h"

#include <clocale>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace support {

CommaLocale::CommaLocale() : before_(std::setlocale(LC_ALL, nullptr)) {
    ::setenv("LOCPATH", VABO_TEST_LOCALES, 1); // the machine may have no such locale; the build makes one
    const bool set = std::setlocale(LC_ALL, "it_IT.UTF-8") != nullptr;
    if (!set || std::string_view(std::localeconv()->decimal_point) != ",") {
        throw std::runtime_error("There is no Italian locale.");
    }
}

CommaLocale::~CommaLocale() {
    std::setlocale(LC_ALL, before_.c_str());
    ::unsetenv("LOCPATH");
}

} // namespace support

#include "support/TestedDriver.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace support {

namespace {

TestedDriver& chosen() {
    static TestedDriver current = TestedDriver::Embedded;
    return current;
}

} // namespace

void chooseTestedDriver(int argc, const char* const* argv) {
    constexpr std::string_view kOption = "--driver=";
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (!argument.starts_with(kOption)) {
            continue;
        }
        const std::string_view wanted = argument.substr(kOption.size());
        if (wanted != name(TestedDriver::Embedded) && wanted != name(TestedDriver::Wire)) {
            std::fprintf(stderr, "No such driver: %s\n", argv[i]);
            std::exit(2);
        }
        chosen() = wanted == name(TestedDriver::Wire) ? TestedDriver::Wire : TestedDriver::Embedded;
    }
}

TestedDriver testedDriver() {
    return chosen();
}

const char* name(TestedDriver of) {
    return of == TestedDriver::Wire ? "wire" : "embedded";
}

const Capabilities& capabilities(TestedDriver of) {
    return of == TestedDriver::Wire ? kWireCapabilities : kEmbeddedCapabilities;
}

} // namespace support

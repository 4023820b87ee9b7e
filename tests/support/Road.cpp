#include "support/Road.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace support {

namespace {

Road& chosen() {
    static Road current = Road::Embedded;
    return current;
}

} // namespace

void chooseRoad(int argc, const char* const* argv) {
    constexpr std::string_view kOption = "--road=";
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (!argument.starts_with(kOption))
            continue;
        const std::string_view wanted = argument.substr(kOption.size());
        if (wanted != name(Road::Embedded) && wanted != name(Road::Wire)) {
            std::fprintf(stderr, "No such road: %s\n", argv[i]);
            std::exit(2);
        }
        chosen() = wanted == name(Road::Wire) ? Road::Wire : Road::Embedded;
    }
}

Road road() {
    return chosen();
}

const char* name(Road of) {
    return of == Road::Wire ? "wire" : "embedded";
}

const Capabilities& capabilities(Road of) {
    return of == Road::Wire ? kWireCapabilities : kEmbeddedCapabilities;
}

} // namespace support

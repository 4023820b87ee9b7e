#include "support/Capabilities.h"

namespace support {

const SystemCapabilities& systemCapabilities() {
    static constexpr SystemCapabilities kAll = [] {
        SystemCapabilities all;
        all.westernTextFiles = {"Text files are in UTF-8."};
        return all;
    }();
    return kAll;
}

} // namespace support

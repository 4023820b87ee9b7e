#include "support/Capabilities.h"

namespace support {

const SystemCapabilities& systemCapabilities() {
    static constexpr SystemCapabilities kAll{};
    return kAll;
}

} // namespace support

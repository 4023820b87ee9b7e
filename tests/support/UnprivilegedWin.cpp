#include "support/Capabilities.h"
#include "support/Unprivileged.h"

#include <stdexcept>

namespace support {

std::string unprivileged(const std::filesystem::path& /*tree*/, const std::function<std::string()>& /*work*/) {
    throw std::logic_error(systemCapabilities().otherUsers.missing);
}

} // namespace support

#include "support/Capabilities.h"
#include "support/LargestFile.h"

#include <stdexcept>

namespace support {

class LargestFile::Limit {};

LargestFile::LargestFile(long long /*process*/, std::uint64_t /*bytes*/) {
    throw std::logic_error(systemCapabilities().limitedFileSize.missing);
}

LargestFile::~LargestFile() = default;

} // namespace support

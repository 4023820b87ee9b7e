#pragma once

#include <cstdint>
#include <memory>

namespace support {

/// While this object lives no file of a process can grow beyond that many bytes. Throws std::logic_error where the
/// system doesn't offer it (see Capabilities.h).
class LargestFile {
public:
    LargestFile(long long process, std::uint64_t bytes);
    ~LargestFile();
    LargestFile(const LargestFile&) = delete;
    LargestFile& operator=(const LargestFile&) = delete;

private:
    class Limit;
    std::unique_ptr<Limit> limit_;
};

} // namespace support

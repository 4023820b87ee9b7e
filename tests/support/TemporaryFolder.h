#pragma once

#include <filesystem>

namespace support {

/// A folder for one test, empty at first, removed with this object. It is in memory where the machine has space for it,
/// so that tests don't wait for a disk.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace support

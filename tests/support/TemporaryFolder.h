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

/// Copies a folder with all that is in it; `to` may be there already. The standard library's own function takes all
/// files for one where the system gives them no numbers.
void copyTree(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace support

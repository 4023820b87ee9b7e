#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

namespace os {

/// Exclusive and shared locks on single bytes of a file, which need not exist in it. They belong to this object alone
/// (two objects of one process exclude each other) and end with it or with its process.
class FileLock {
public:
    /// Bytes may be locked below this place.
    static constexpr std::uint64_t kEnd = std::uint64_t{1} << 62U;

    /// Makes the file, owner only, where it is missing. Throws std::filesystem::filesystem_error.
    explicit FileLock(const std::filesystem::path& file);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// At once; false when another holds the byte.
    bool tryExclusive(std::uint64_t place);
    bool tryShared(std::uint64_t place);
    void unlock(std::uint64_t place);

    /// Whether another holds one of `length` bytes in any way.
    bool heldByOthers(std::uint64_t place, std::uint64_t length) const;

private:
    class OpenFile;
    std::unique_ptr<OpenFile> file_;
};

} // namespace os

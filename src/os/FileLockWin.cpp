#include "os/FileLock.h"
#include "os/Files.h"

#include <windows.h>

#include <map>
#include <system_error>

namespace os {
namespace {

enum class Kind { Shared, Exclusive };

OVERLAPPED positionOf(std::uint64_t place) {
    OVERLAPPED position{};
    position.Offset = static_cast<DWORD>(place);
    position.OffsetHigh = static_cast<DWORD>(place >> 32U);
    return position;
}

bool lockRange(HANDLE file, std::uint64_t place, std::uint64_t length, DWORD flags) {
    OVERLAPPED position = positionOf(place);
    return LockFileEx(file, flags, 0, static_cast<DWORD>(length), static_cast<DWORD>(length >> 32U), &position) != 0;
}

void unlockRange(HANDLE file, std::uint64_t place, std::uint64_t length) {
    OVERLAPPED position = positionOf(place);
    UnlockFileEx(file, 0, static_cast<DWORD>(length), static_cast<DWORD>(length >> 32U), &position);
}

[[noreturn]] void fail(const char* what, const std::filesystem::path& file) {
    throw std::filesystem::filesystem_error(what, file,
                                            std::error_code(static_cast<int>(GetLastError()), std::system_category()));
}

/// This system can't be asked who holds a byte: to learn it one takes the byte. Whoever takes or asks holds the byte
/// behind all places meanwhile, so that nobody meets a lock that only asks.
class Turn {
public:
    Turn(HANDLE handle, const std::filesystem::path& file) : handle_(handle) {
        if (!lockRange(handle_, FileLock::kEnd, 1, LOCKFILE_EXCLUSIVE_LOCK)) {
            fail("cannot lock", file);
        }
    }
    ~Turn() { unlockRange(handle_, FileLock::kEnd, 1); }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    HANDLE handle_;
};

} // namespace

class FileLock::OpenFile {
public:
    explicit OpenFile(const std::filesystem::path& file) : file_(file) {
        makeFileOfOwner(file);
        handle_ = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle_ == INVALID_HANDLE_VALUE) {
            fail("cannot open the file of locks", file_);
        }
    }
    ~OpenFile() {
        for (const auto& [place, kind] : own_) {
            unlockRange(handle_, place, 1); // what a closed file held is free only at some later time
        }
        CloseHandle(handle_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// A byte that is held already is held in the new way from now on, if no other stands against it.
    bool tryLock(Kind kind, std::uint64_t place) {
        const auto own = own_.find(place);
        if (own != own_.end() && own->second == kind) {
            return true;
        }
        const Turn turn(handle_, file_);
        if (own == own_.end()) {
            if (!tryTake(kind, place)) {
                return false;
            }
            own_.emplace(place, kind);
            return true;
        }
        unlockRange(handle_, place, 1); // nobody else can take it before the turn is over
        const bool changed = tryTake(kind, place);
        if (changed) {
            own->second = kind;
        } else {
            takeBack(own->second, place);
        }
        return changed;
    }

    void unlock(std::uint64_t place) {
        if (own_.erase(place) != 0) {
            unlockRange(handle_, place, 1);
        }
    }

    bool heldByOthers(std::uint64_t place, std::uint64_t length) const {
        const Turn turn(handle_, file_);
        const std::uint64_t end = place + length;
        for (auto own = own_.lower_bound(place); own != own_.end() && own->first < end; ++own) {
            if (!isFree(place, own->first - place) || isSharedWithOthers(*own)) {
                return true;
            }
            place = own->first + 1;
        }
        return !isFree(place, end - place);
    }

private:
    bool tryTake(Kind kind, std::uint64_t place) const {
        const DWORD flags = LOCKFILE_FAIL_IMMEDIATELY | (kind == Kind::Exclusive ? LOCKFILE_EXCLUSIVE_LOCK : 0);
        if (lockRange(handle_, place, 1, flags)) {
            return true;
        }
        if (GetLastError() != ERROR_LOCK_VIOLATION && GetLastError() != ERROR_IO_PENDING) {
            fail("cannot lock", file_);
        }
        return false;
    }

    /// What was given up in the same turn.
    void takeBack(Kind kind, std::uint64_t place) const {
        if (!tryTake(kind, place)) {
            fail("cannot lock again", file_);
        }
    }

    bool isFree(std::uint64_t place, std::uint64_t length) const {
        if (length == 0) {
            return true;
        }
        if (!lockRange(handle_, place, length, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY)) {
            return false;
        }
        unlockRange(handle_, place, length);
        return true;
    }

    bool isSharedWithOthers(const std::pair<const std::uint64_t, Kind>& own) const {
        if (own.second == Kind::Exclusive) {
            return false;
        }
        unlockRange(handle_, own.first, 1);
        const bool alone = isFree(own.first, 1);
        takeBack(Kind::Shared, own.first);
        return !alone;
    }

    std::filesystem::path file_;
    HANDLE handle_ = INVALID_HANDLE_VALUE;
    std::map<std::uint64_t, Kind> own_;
};

FileLock::FileLock(const std::filesystem::path& file) : file_(std::make_unique<OpenFile>(file)) {}

FileLock::~FileLock() = default;

bool FileLock::tryExclusive(std::uint64_t place) {
    return file_->tryLock(Kind::Exclusive, place);
}

bool FileLock::tryShared(std::uint64_t place) {
    return file_->tryLock(Kind::Shared, place);
}

void FileLock::unlock(std::uint64_t place) {
    file_->unlock(place);
}

bool FileLock::heldByOthers(std::uint64_t place, std::uint64_t length) const {
    return file_->heldByOthers(place, length);
}

} // namespace os

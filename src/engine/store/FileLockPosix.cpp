#include "engine/store/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace engine {
namespace {

constexpr mode_t kOwnerOnly = 0600;

[[noreturn]] void fail(const char* what, const std::filesystem::path& file) {
    throw std::filesystem::filesystem_error(what, file, std::error_code(errno, std::generic_category()));
}

/// Locks that belong to the open file, not to the process: closing another descriptor of the file keeps them.
struct flock request(short type, std::uint64_t place, std::uint64_t length) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = static_cast<off_t>(place);
    lock.l_len = static_cast<off_t>(length);
    return lock;
}

bool tryLock(int descriptor, short type, std::uint64_t place, const std::filesystem::path& file) {
    struct flock lock = request(type, place, 1);
    while (fcntl(descriptor, F_OFD_SETLK, &lock) != 0) {
        if (errno == EAGAIN || errno == EACCES) {
            return false;
        }
        if (errno != EINTR) {
            fail("cannot lock", file);
        }
    }
    return true;
}

} // namespace

FileLock::FileLock(const std::filesystem::path& file)
    : file_(file), descriptor_(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kOwnerOnly)) {
    if (descriptor_ < 0) {
        fail("cannot open the file of locks", file);
    }
}

FileLock::~FileLock() {
    close(descriptor_);
}

bool FileLock::tryExclusive(std::uint64_t place) {
    return tryLock(descriptor_, F_WRLCK, place, file_);
}

bool FileLock::tryShared(std::uint64_t place) {
    return tryLock(descriptor_, F_RDLCK, place, file_);
}

void FileLock::unlock(std::uint64_t place) {
    tryLock(descriptor_, F_UNLCK, place, file_);
}

bool FileLock::heldByOthers(std::uint64_t place, std::uint64_t length) const {
    struct flock lock = request(F_WRLCK, place, length);
    if (fcntl(descriptor_, F_OFD_GETLK, &lock) != 0) {
        fail("cannot ask for the locks", file_);
    }
    return lock.l_type != F_UNLCK;
}

} // namespace engine

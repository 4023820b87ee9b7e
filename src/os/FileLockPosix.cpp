#include "os/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace os {
namespace {

constexpr mode_t kOwnerOnly = 0600;

/// Locks that belong to the open file, not to the process: closing another descriptor of the file keeps them.
struct flock request(short type, std::uint64_t place, std::uint64_t length) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = static_cast<off_t>(place);
    lock.l_len = static_cast<off_t>(length);
    return lock;
}

} // namespace

class FileLock::OpenFile {
public:
    explicit OpenFile(const std::filesystem::path& file)
        : file_(file), descriptor_(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kOwnerOnly)) {
        if (descriptor_ < 0) {
            fail("cannot open the file of locks");
        }
    }
    ~OpenFile() { close(descriptor_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool tryLock(short type, std::uint64_t place) const {
        struct flock lock = request(type, place, 1);
        while (fcntl(descriptor_, F_OFD_SETLK, &lock) != 0) {
            if (errno == EAGAIN || errno == EACCES) {
                return false;
            }
            if (errno != EINTR) {
                fail("cannot lock");
            }
        }
        return true;
    }

    bool heldByOthers(std::uint64_t place, std::uint64_t length) const {
        struct flock lock = request(F_WRLCK, place, length);
        if (fcntl(descriptor_, F_OFD_GETLK, &lock) != 0) {
            fail("cannot ask for the locks");
        }
        return lock.l_type != F_UNLCK;
    }

private:
    [[noreturn]] void fail(const char* what) const {
        throw std::filesystem::filesystem_error(what, file_, std::error_code(errno, std::generic_category()));
    }

    std::filesystem::path file_;
    int descriptor_;
};

FileLock::FileLock(const std::filesystem::path& file) : file_(std::make_unique<OpenFile>(file)) {}

FileLock::~FileLock() = default;

bool FileLock::tryExclusive(std::uint64_t place) {
    return file_->tryLock(F_WRLCK, place);
}

bool FileLock::tryShared(std::uint64_t place) {
    return file_->tryLock(F_RDLCK, place);
}

void FileLock::unlock(std::uint64_t place) {
    file_->tryLock(F_UNLCK, place);
}

bool FileLock::heldByOthers(std::uint64_t place, std::uint64_t length) const {
    return file_->heldByOthers(place, length);
}

} // namespace os

#include "os/Files.h"
#include "os/Paths.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace os {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

class Descriptor {
public:
    Descriptor(int number, const char* what) : number_(number) {
        if (number_ < 0) {
            fail(what);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { ::close(number_); }
    int number() const { return number_; }

private:
    int number_;
};

/// A new file in the folder of the one to be replaced. It is removed where it doesn't replace that one.
class TemporarySibling {
public:
    explicit TemporarySibling(const fs::path& folder)
        : name_((folder / ".vabo-XXXXXX").string()), descriptor_(::mkostemp(name_.data(), O_CLOEXEC), "create") {}
    TemporarySibling(const TemporarySibling&) = delete;
    TemporarySibling& operator=(const TemporarySibling&) = delete;
    ~TemporarySibling() {
        if (!kept_) {
            ::unlink(name_.c_str());
        }
    }

    void permit(fs::perms permissions) const {
        if (::fchmod(descriptor_.number(), static_cast<mode_t>(permissions & fs::perms::mask)) != 0) {
            fail("permit");
        }
    }

    void write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t written = ::write(descriptor_.number(), bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR) {
                fail("write");
            }
            if (written > 0) {
                bytes.remove_prefix(static_cast<std::size_t>(written));
            }
        }
        if (::fsync(descriptor_.number()) != 0) {
            fail("sync");
        }
    }

    void takeThePlaceOf(const fs::path& file) {
        if (::rename(name_.c_str(), file.c_str()) != 0) {
            fail("rename");
        }
        kept_ = true;
    }

private:
    std::string name_;
    Descriptor descriptor_;
    bool kept_ = false;
};

void syncFolder(const fs::path& folder) {
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), "open folder");
    if (::fsync(descriptor.number()) != 0) {
        fail("sync folder");
    }
}

} // namespace

bool isFileName(std::string_view name) {
    return !name.empty() && name.find('/') == std::string_view::npos && name.find('\0') == std::string_view::npos;
}

std::optional<fs::path> entryOf(const fs::path& folder, std::string_view name) {
    std::error_code ignored;
    fs::path entry = folder / pathOf(name);
    return fs::exists(fs::symlink_status(entry, ignored)) ? std::optional(std::move(entry)) : std::nullopt;
}

void replaceFile(const fs::path& file, std::string_view bytes, fs::perms permissions) {
    // Without this check the rename would replace a file that its owner has made read-only.
    if (::access(file.c_str(), W_OK) != 0 && errno != ENOENT) {
        fail("access");
    }
    TemporarySibling sibling(file.parent_path());
    sibling.permit(permissions);
    sibling.write(bytes);
    sibling.takeThePlaceOf(file);
    syncFolder(file.parent_path());
}

void makeFileOfOwner(const fs::path& file) {
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor >= 0) {
        ::close(descriptor);
    }
}

std::optional<std::uintmax_t> sizeOf(const fs::path& file) {
    std::error_code missing;
    const std::uintmax_t size = fs::file_size(file, missing);
    return missing ? std::nullopt : std::optional(size);
}

void removeFile(const fs::path& file) {
    fs::remove(file);
}

FolderContent contentOf(const fs::path& folder) {
    FolderContent content;
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored), end; entry != end; entry.increment(ignored)) {
        const fs::file_type type = entry->symlink_status(ignored).type();
        if (type == fs::file_type::regular) {
            content.files.push_back(entry->path());
        } else if (type == fs::file_type::directory) {
            content.folders.push_back(entry->path());
        }
    }
    return content;
}

bool canBeRemoved(const fs::path& /*file*/) {
    return true; // those who have it open keep a file without a name
}

std::error_code keepForOwner(const fs::path& file) {
    std::error_code error;
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write, error);
    return error;
}

void makePrivateFolder(const fs::path& folder) {
    if (::mkdir(folder.c_str(), S_IRWXU) != 0) {
        fail("mkdir");
    }
}

} // namespace os

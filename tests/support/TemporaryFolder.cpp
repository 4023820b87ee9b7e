#include "support/TemporaryFolder.h"

#include "os/Paths.h"

#include <QTemporaryDir>

#include <stdexcept>

namespace support {

namespace fs = std::filesystem;

namespace {

fs::path base() {
    constexpr std::uintmax_t kRoom = 512ULL << 20U;
    const fs::path memory = "/dev/shm";
    std::error_code missing;
    const fs::space_info space = fs::space(memory, missing);
    return memory.is_absolute() && !missing && space.available >= kRoom ? memory : fs::temp_directory_path();
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    QTemporaryDir folder(QString::fromStdString(os::utf8Of(base() / "vabo-test-XXXXXX")));
    if (!folder.isValid()) {
        throw std::runtime_error("No temporary folder: " + folder.errorString().toStdString());
    }
    folder.setAutoRemove(false); // Qt's removal fails for folders that a test has made unreadable
    path_ = os::pathOf(folder.path().toStdString()).make_preferred();
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    for (fs::recursive_directory_iterator entry(path_, ignored), end; entry != end; entry.increment(ignored)) {
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored)) {
            fs::permissions(entry->path(), fs::perms::owner_all, ignored);
        }
    }
    fs::remove_all(path_, ignored);
}

void copyTree(const fs::path& from, const fs::path& to) {
    if (!fs::exists(to)) {
        fs::create_directory(to, from); // with its permissions
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(from)) {
        const fs::path place = to / entry.path().filename();
        if (entry.is_directory()) {
            copyTree(entry.path(), place);
        } else {
            fs::copy_file(entry.path(), place);
        }
    }
}

} // namespace support

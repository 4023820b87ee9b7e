#include "platform/FileSearch.h"

#include "os/Paths.h"

#include <QString>

#include <algorithm>
#include <system_error>
#include <vector>

namespace platform {

namespace fs = std::filesystem;

namespace {

struct Content {
    std::vector<fs::path> files;
    std::vector<fs::path> folders;
};

/// What can be read of a folder, each kind in the order of names.
Content contentOf(const fs::path& folder) {
    Content content;
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored), end; entry != end; entry.increment(ignored)) {
        const fs::file_type type = entry->symlink_status(ignored).type();
        if (type == fs::file_type::regular) {
            content.files.push_back(entry->path());
        } else if (type == fs::file_type::directory) {
            content.folders.push_back(entry->path());
        }
    }
    std::sort(content.files.begin(), content.files.end());
    std::sort(content.folders.begin(), content.folders.end());
    return content;
}

QString lowered(const std::string& name) {
    return QString::fromStdString(name).toLower();
}

} // namespace

// Without recursion, so that no depth of folders is too large.
std::optional<std::string> findFile(const DriveC& drive, const std::string& name, const std::function<void()>& pause) {
    const QString wanted = lowered(name);
    std::vector<fs::path> waiting = {drive.root()}; // the next one is the last
    while (!waiting.empty()) {
        const fs::path folder = std::move(waiting.back());
        waiting.pop_back();
        pause();
        const Content content = contentOf(folder);
        for (const fs::path& file : content.files) {
            if (lowered(os::utf8Of(file.filename())) == wanted) {
                if (auto path = drive.pathOf(file)) {
                    return path;
                }
            }
        }
        waiting.insert(waiting.end(), content.folders.rbegin(), content.folders.rend());
    }
    return std::nullopt;
}

} // namespace platform

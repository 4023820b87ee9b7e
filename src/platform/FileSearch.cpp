#include "platform/FileSearch.h"

#include "os/Files.h"
#include "os/Paths.h"

#include <QString>

#include <algorithm>
#include <vector>

namespace platform {

namespace fs = std::filesystem;

namespace {

/// Each kind in the order of names.
os::FolderContent contentOf(const fs::path& folder) {
    os::FolderContent content = os::contentOf(folder);
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
        const os::FolderContent content = contentOf(folder);
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

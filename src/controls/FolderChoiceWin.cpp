#include "controls/FolderChoice.h"
#include "os/Paths.h"
#include "platform/Workstation.h"

#include <QDir>
#include <QFileDialog>

namespace controls {

// A folder of another machine may be picked, too. One on the drive gets its path there, which differs from the system's
// where a folder stands for the drive.
std::string chooseFolder(QWidget* parent, const QString& title) {
    const platform::DriveC& drive = platform::workstation().driveC;
    const QString root = QString::fromStdString(os::utf8Of(drive.root()));
    const QString chosen = QFileDialog::getExistingDirectory(parent, title, root);
    if (chosen.isEmpty()) {
        return {};
    }
    const std::string place = QDir::toNativeSeparators(chosen).toStdString();
    return drive.pathOf(os::pathOf(place)).value_or(place);
}

} // namespace controls

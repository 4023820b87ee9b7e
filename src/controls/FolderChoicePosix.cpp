#include "controls/FolderBrowser.h"
#include "controls/FolderChoice.h"

namespace controls {

std::string chooseFolder(QWidget* parent, const QString& title) {
    FolderBrowser box(parent, title);
    return box.exec() == QDialog::Accepted ? box.chosen() : std::string();
}

} // namespace controls

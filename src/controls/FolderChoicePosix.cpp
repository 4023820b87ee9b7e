#include "controls/FolderBrowser.h"
#include "controls/FolderChoice.h"
#include "controls/Modal.h"

namespace controls {

std::string chooseFolder(QWidget* parent, const QString& title) {
    Modal<FolderBrowser> box(parent, title);
    return box.accepted() ? box->chosen() : std::string();
}

} // namespace controls

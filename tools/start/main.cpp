// vabo-start: what the desktop's menu starts. It becomes the console, and offers a sample workstation before where none
// has been set up.

#include "controls/Mark.h"
#include "controls/QtDialogs.h"
#include "controls/Style.h"
#include "os/Machine.h"
#include "os/Paths.h"
#include "platform/Dialogs.h"
#include "platform/Workstation.h"
#include "start/FirstStart.h"

#include <QApplication>

#include <cstdio>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

bool setUp(int argc, char** argv) {
    QApplication application(argc, argv);
    // The desktop knows the window as one of the console by that.
    QApplication::setApplicationName(QString::fromStdString(platform::workstation().productName));
    controls::style::install(application);
    QApplication::setWindowIcon(controls::Mark::icon());
    platform::setDialogs(std::make_unique<controls::QtDialogs>());
    return start::setUp();
}

} // namespace

int main(int argc, char** argv) {
    // The toolkit takes its own options out of argv, and the console is to have them too.
    std::vector<char*> arguments(argv, argv + argc + 1);
    if (!start::isSetUp() && !setUp(argc, argv)) {
        return 1;
    }
    const std::string console = os::utf8Of(os::programFile().parent_path() / "vabo");
    std::string name = "vabo"; // not the path, which one system would take apart at a blank
    arguments.front() = name.data();
    ::execv(console.c_str(), arguments.data());
    std::perror(console.c_str());
    return 1;
}

// vabo-start: what the desktop's menu starts. It becomes the console, and offers a sample workstation before where none
// has been set up.

#include "controls/Mark.h"
#include "controls/QtDialogs.h"
#include "controls/Style.h"
#include "os/Machine.h"
#include "platform/Dialogs.h"
#include "platform/Workstation.h"
#include "start/FirstStart.h"

#include <QApplication>

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace {

/// Something to be said or asked before there is a console.
class Desktop {
public:
    /// Takes the toolkit's options out of both.
    Desktop(int& argc, char** argv) : application_(argc, argv) {
        // The desktop knows the window as one of the console by that.
        QApplication::setApplicationName(QString::fromStdString(platform::workstation().productName));
        controls::style::install(application_);
        QApplication::setWindowIcon(controls::Mark::icon());
        platform::setDialogs(std::make_unique<controls::QtDialogs>());
    }

private:
    QApplication application_;
};

} // namespace

int main(int argc, char** argv) {
    // The toolkit takes its own options out of argv, and the console is to have them too.
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (!start::isSetUp()) {
        const Desktop desktop(argc, argv);
        if (!start::setUp()) {
            return 1;
        }
    }
    std::filesystem::path console = os::programFile();
    console.replace_filename("vabo").replace_extension(os::programFile().extension());
    const std::error_code reason = os::become(console, arguments);
    const Desktop desktop(argc, argv);
    start::tellNotStarted(console, reason);
    return 1;
}

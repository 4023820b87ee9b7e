#include "app/Program.h"

#include "app/Forms.h"
#include "controls/Mark.h"
#include "controls/QtDialogs.h"
#include "os/Machine.h"
#include "platform/Workstation.h"

#include <QLibraryInfo>
#include <QTimer>

namespace app {

Program::Program(int& argc, char** argv, controls::style::Scheme scheme) : application_(argc, argv) {
    os::refuseTooLargeFiles();
    // Between two forms only the hidden start form may be left, which must not end the process.
    QApplication::setQuitOnLastWindowClosed(false);
    if (italian_.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&italian_);
    }
    controls::style::install(application_, scheme);
    QApplication::setWindowIcon(controls::Mark::icon());

    platform::takeRealWorkstation();
    QApplication::setApplicationName(QString::fromStdString(platform::workstation().productName));
    platform::setDialogs(std::make_unique<controls::QtDialogs>());
    registerForms(forms_);
    platform::setFormHost(&forms_);
}

Program::~Program() {
    platform::setFormHost(nullptr);
}

int Program::run() {
    QTimer::singleShot(0, &forms_, [this] { forms_.show("Avvio"); });
    return QApplication::exec();
}

} // namespace app

#include "app/Forms.h"
#include "controls/Mark.h"
#include "controls/QtDialogs.h"
#include "controls/Style.h"
#include "platform/Workstation.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // The hidden start form stands until the end of the process.
    QApplication::setQuitOnLastWindowClosed(false);

    QTranslator italian;
    if (italian.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&italian);
    controls::style::install(application);
    QApplication::setWindowIcon(controls::Mark::icon());

    platform::takeRealWorkstation();
    QApplication::setApplicationName(QString::fromStdString(platform::workstation().productName));
    platform::setDialogs(std::make_unique<controls::QtDialogs>());
    controls::FormRegistry forms;
    app::registerForms(forms);
    platform::setFormHost(&forms);

    QTimer::singleShot(0, &forms, [&forms] { forms.show("Avvio"); });
    return QApplication::exec();
}

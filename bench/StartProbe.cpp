// The program, started by the benchmark with a sample workstation. It prints how long each taking up of a company took,
// and the time from its parent's call to the login on the screen. Then it logs in as the first user, opens the company
// console and ends.

#include "app/Program.h"
#include "session/TreatForms.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

long long now() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void tell(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text) {
    if (context.category && qstrcmp(context.category, "vabo.time") == 0) {
        std::printf("%s\n", qPrintable(text));
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        return 2;
    }
    const long long called = std::atoll(argv[1]);
    qInstallMessageHandler(tell);
    app::Program program(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("vabo.time=true"));
    QTimer::singleShot(0, &program.forms(), [&] {
        program.forms().show("Avvio");
        QCoreApplication::processEvents();
        if (!program.forms().isLoaded("About")) {
            std::_Exit(1);
        }
        std::printf("shown %lld\n", now() - called);
        vabo::ApriForm("Avvio_Azienda", true);
        std::fflush(stdout);
        std::_Exit(0);
    });
    return QApplication::exec();
}

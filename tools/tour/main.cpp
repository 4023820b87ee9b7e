// vabo-tour <drive-c> <output-folder>: walks all forms of the program on a provisioned drive C, without a screen, and
// saves a picture of each, three times: normal, at 200 per cent, and with a dark palette.

#include "app/Program.h"
#include "os/Paths.h"
#include "tour/Tour.h"

#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryFile>

#include <array>
#include <cstdio>
#include <filesystem>

namespace {

struct Walk {
    const char* name;
    const char* suffix;
    const char* scale;
    controls::style::Scheme scheme;
};

constexpr std::array kWalks = {Walk{"light", "", "1", controls::style::Scheme::Light},
                               Walk{"large", "-200", "2", controls::style::Scheme::Light},
                               Walk{"dark", "-scuro", "1", controls::style::Scheme::Dark}};

QtMessageHandler toldBefore = nullptr;

/// The platform without a screen says of each window what it can't do with it.
void tellAllButWhatNoScreenCan(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QLatin1String("This plugin does not support"))) {
        toldBefore(type, context, text);
    }
}

int walkOnce(int argc, char** argv, const Walk& walk) {
    toldBefore = qInstallMessageHandler(tellAllButWhatNoScreenCan);
    app::Program program(argc, argv, walk.scheme);
    try {
        tour::Tour tour(program.forms(), argv[2], walk.suffix);
        tour::walk(tour);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}

/// A screen large enough for every form at every scale; the platform's default is 800 by 600.
QByteArray largeScreen() {
    return R"({"screens": [{"name": "tour", "x": 0, "y": 0, "width": 3840, "height": 2160,
               "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
}

/// Each walk is its own process, since the scale can't be changed after the start.
int walkAll(const QString& program, const QString& driveC, const QString& folder) {
    std::filesystem::create_directories(os::pathOf(folder.toStdString()));
    QTemporaryFile screen;
    const QFileInfo screenFile(screen.open() ? screen.fileName() : QString());
    if (!screen.isOpen() || screen.write(largeScreen()) < 0 || !screen.flush()) {
        std::fprintf(stderr, "No temporary file can be written.\n");
        return 1;
    }
    for (const Walk& walk : kWalks) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(walk.scale));
        environment.insert(QStringLiteral("VABO_DRIVE_C"), driveC);
        // So that a walk doesn't change the user's data sources.
        environment.insert(QStringLiteral("ODBCINI"), driveC + QStringLiteral("/odbc.ini"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                           QStringLiteral("offscreen:configfile=") + screenFile.fileName());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(screenFile.path()); // since a colon in the file's path would end it
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(program, {driveC, folder, QString::fromLatin1(walk.name)});
        constexpr int kForever = -1;
        if (!process.waitForFinished(kForever) || process.exitStatus() != QProcess::NormalExit ||
            process.exitCode() != 0) {
            std::fprintf(stderr, "The walk \"%s\" failed.\n", walk.name);
            return 1;
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 4) {
        for (const Walk& walk : kWalks) {
            if (std::string_view(argv[3]) == walk.name) {
                return walkOnce(argc, argv, walk);
            }
        }
    }
    if (argc != 3) {
        std::fprintf(stderr, "usage: vabo-tour <drive-c> <output-folder>\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    const auto absolute = [](const char* path) { return QFileInfo(QString::fromLocal8Bit(path)).absoluteFilePath(); };
    return walkAll(QCoreApplication::applicationFilePath(), absolute(argv[1]), absolute(argv[2]));
}

// vabo-tour <drive-c> <output-folder>: walks all forms of the program on a provisioned drive C, without a screen, and
// leaves a picture of each, three times: as it is, at 200 per cent, and in a dark palette.

#include "controls/QtDialogs.h"
#include "controls/Style.h"
#include "platform/Workstation.h"
#include "tour/Tour.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTranslator>

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

int walkOnce(int argc, char** argv, const Walk& walk) {
    QApplication application(argc, argv);
    QTranslator italian;
    if (italian.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&italian);
    controls::style::install(application, walk.scheme);
    platform::takeRealWorkstation();
    platform::setDialogs(std::make_unique<controls::QtDialogs>());
    try {
        tour::Tour tour(argv[2], walk.suffix);
        tour::walk(tour);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}

/// The scale is fixed when a process starts: each walk is a process of its own.
int walkAll(const QString& program, const QString& driveC, const QString& folder) {
    std::filesystem::create_directories(folder.toStdString());
    for (const Walk& walk : kWalks) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(walk.scale));
        environment.insert(QStringLiteral("VABO_DRIVE_C"), driveC);
        if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        QProcess process;
        process.setProcessEnvironment(environment);
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
    if (argc == 4)
        for (const Walk& walk : kWalks)
            if (std::string_view(argv[3]) == walk.name)
                return walkOnce(argc, argv, walk);
    if (argc != 3) {
        std::fprintf(stderr, "usage: vabo-tour <drive-c> <output-folder>\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    return walkAll(QCoreApplication::applicationFilePath(), QString::fromLocal8Bit(argv[1]),
                   QString::fromLocal8Bit(argv[2]));
}
